#include "classify/port_order.h"

#include <cstdlib>
#include <utility>

namespace {

int function_number(const hba_info& port) {
    // At most three characters, so the value fits.
    return static_cast<int>(std::strtol(port.pci_function, nullptr, 10));
}

} // namespace

void PortOrder::swap(std::size_t a, std::size_t b) {
    if (a != b) {
        std::swap(ports_[a], ports_[b]);
        regrouped_from_ = nowhere;
    }
}

// Brings every later port that matches the one at `position` right behind it,
// unless one stands there already.
void PortOrder::gather_behind(std::size_t position) {
    if (follows(position + 1, position)) {
        return;
    }
    std::size_t slot = position + 1;
    for (std::size_t later = position + 2; ports_[later] != nullptr; ++later) {
        if (follows(later, position)) {
            swap(slot++, later);
        }
    }
}

void PortOrder::regroup(std::size_t start) {
    if (regrouped_from_ <= start) {
        return;
    }
    for (std::size_t p = start; ports_[p] != nullptr && ports_[p + 1] != nullptr; ++p) {
        gather_behind(p);
    }
    regrouped_from_ = start;
}

// The same, but only as far as the ports match the one at `base`.
void PortOrder::regroup_adapter_of(std::size_t base) {
    const hba_info& first = *ports_[base];
    for (std::size_t p = base; ports_[p] != nullptr && serial_leads(first, *ports_[p]); ++p) {
        if (ports_[p + 1] == nullptr) {
            return;
        }
        gather_behind(p);
    }
}

// Brings an adapter with a port of `type` to the cursor and moves the cursor to
// that adapter's last port. Returns false when there is none from the cursor on.
bool PortOrder::place_adapter(std::size_t& cursor, const char* type) {
    if (has_type(*ports_[cursor], type)) {
        regroup(cursor);
    } else {
        std::size_t found = cursor + 1;
        while (ports_[found] != nullptr && !has_type(*ports_[found], type)) {
            ++found;
        }
        if (ports_[found] == nullptr) {
            return false;
        }
        swap(cursor, found);
        regroup_adapter_of(cursor);
    }
    while (ports_[cursor + 1] != nullptr && follows(cursor + 1, cursor)) {
        ++cursor;
    }
    return true;
}

void PortOrder::by_type(bool fcoe, bool iscsi) {
    for (std::size_t cursor = 0; ports_[cursor] != nullptr && (fcoe || iscsi); ++cursor) {
        if (!(fcoe && place_adapter(cursor, "FCoE")) &&
            !(iscsi && place_adapter(cursor, "iSCSI"))) {
            return;
        }
    }
}

void PortOrder::by_function() {
    for (std::size_t p = 0; ports_[p] != nullptr; ++p) {
        for (std::size_t q = p + 1; ports_[q] != nullptr && follows(q, p); ++q) {
            if (function_number(*ports_[p]) > function_number(*ports_[q])) {
                swap(p, q);
            }
        }
    }
}
