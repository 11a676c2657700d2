#include "classify/port_order.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

PortOrder::Key PortOrder::key_of(std::size_t position) const {
    const hba_info& port = *ports_[position];
    // At most three characters, so the value fits.
    const long function = std::strtol(port.pci_function, nullptr, 10);
    const Type type = has_type(port, "FCoE")    ? Type::fcoe
                      : has_type(port, "iSCSI") ? Type::iscsi
                                                : Type::other;
    return {serials_.of_ports()[position], static_cast<std::uint32_t>(position),
            static_cast<std::int16_t>(function), type};
}

PortOrder::PortOrder(hba_info** ports) : ports_(ports), serials_(ports), behind_(serials_.count()) {
    for (std::size_t position = 0; ports_[position] != nullptr; ++position) {
        keys_.push_back(key_of(position));
        positions_.push_back(position);
        behind_[keys_.back().serial.own] += position > counted_at_ ? 1 : 0;
    }
}

void PortOrder::swap(std::size_t a, std::size_t b) {
    std::swap(ports_[a], ports_[b]);
    std::swap(keys_[a], keys_[b]);
    positions_[keys_[a].port] = a;
    positions_[keys_[b].port] = b;
    if (keys_[a].serial.own == keys_[b].serial.own) {
        return;
    }
    regrouped_from_ = nowhere;
    if (a <= counted_at_ && counted_at_ < b) {
        --behind_[keys_[a].serial.own];
        ++behind_[keys_[b].serial.own];
    }
}

void PortOrder::count_behind(std::size_t position) {
    while (counted_at_ < position) {
        --behind_[keys_[++counted_at_].serial.own];
    }
    while (counted_at_ > position) {
        ++behind_[keys_[counted_at_--].serial.own];
    }
}

// The positions behind `position` of the ports that match the one there.
const std::vector<std::size_t>& PortOrder::followers_behind(std::size_t position) {
    count_behind(position);
    followers_.clear();
    for (std::uint32_t serial = keys_[position].serial.own; serial != SerialNumbers::none;
         serial = serials_.leader(serial)) {
        if (behind_[serial] == 0) {
            continue;
        }
        for (const std::uint32_t port : serials_.ports_with(serial)) {
            if (positions_[port] > position) {
                followers_.push_back(positions_[port]);
            }
        }
    }
    std::ranges::sort(followers_);
    return followers_;
}

// Brings every later port that matches the one at `position` right behind it,
// unless one stands there already.
void PortOrder::gather_behind(std::size_t position) {
    if (follows(position + 1, position)) {
        return;
    }
    std::size_t slot = position;
    for (const std::size_t later : followers_behind(position)) {
        swap(++slot, later);
    }
}

void PortOrder::regroup(std::size_t start) {
    if (regrouped_from_ <= start) {
        return;
    }
    for (std::size_t p = start; p + 1 < keys_.size(); ++p) {
        gather_behind(p);
    }
    regrouped_from_ = start;
}

// The same, but only as far as the ports match the one at `base`.
void PortOrder::regroup_adapter_of(std::size_t base) {
    const SerialNumbers::Number first = keys_[base].serial;
    for (std::size_t p = base; p + 1 < keys_.size() && first.leads(keys_[p].serial); ++p) {
        gather_behind(p);
    }
}

// Brings an adapter with a port of `type` to the cursor and moves the cursor to
// that adapter's last port. Returns false when no port from the cursor on has it.
bool PortOrder::place_adapter(std::size_t& cursor, Type type) {
    if (keys_[cursor].type == type) {
        regroup(cursor);
    } else {
        std::size_t found = cursor + 1;
        while (found < keys_.size() && keys_[found].type != type) {
            ++found;
        }
        if (found == keys_.size()) {
            return false;
        }
        swap(cursor, found);
        regroup_adapter_of(cursor);
    }
    while (cursor + 1 < keys_.size() && follows(cursor + 1, cursor)) {
        ++cursor;
    }
    return true;
}

void PortOrder::by_type(bool fcoe, bool iscsi) {
    for (std::size_t cursor = 0; cursor < keys_.size() && (fcoe || iscsi); ++cursor) {
        // Once no port of a type is left behind the cursor, none comes there again.
        fcoe = fcoe && place_adapter(cursor, Type::fcoe);
        if (!fcoe && !(iscsi && place_adapter(cursor, Type::iscsi))) {
            return;
        }
    }
}

// Exchanges the port at `position` with each one of its run that is lower than what
// stands there by then; nothing is lower than `lowest`.
void PortOrder::pull_lowest(std::size_t position, std::int16_t lowest) {
    for (std::size_t later = position + 1;
         keys_[position].function > lowest && later < keys_.size() && follows(later, position);
         ++later) {
        if (keys_[position].function > keys_[later].function) {
            swap(position, later);
        }
    }
}

void PortOrder::by_function() {
    std::vector<std::int16_t> ascending;
    for (std::size_t p = 0; p < keys_.size();) {
        ascending.clear();
        std::size_t end = p;
        while (end < keys_.size() && keys_[end].serial.own == keys_[p].serial.own) {
            ascending.push_back(keys_[end++].function);
        }
        if (end < keys_.size() && follows(end, p)) {
            // The run goes on with another serial number, which could get among these.
            pull_lowest(p++, std::numeric_limits<std::int16_t>::min());
            continue;
        }
        std::ranges::sort(ascending);
        for (const std::int16_t function : ascending) {
            pull_lowest(p++, function);
        }
    }
}
