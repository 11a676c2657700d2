#include "classify/classify.h"

#include "classify/adapter.h"
#include "run/base/diagnostics.h"

#include <algorithm>
#include <cstdlib>
#include <span>
#include <utility>

namespace {

// A place in the array of ports. The places hold the order, the records never move; the place
// after the last port holds null.
using Slot = hba_info**;

// Lists the ports; `lead` is written directly before the first.
void list_ports(const char* lead) {
    int count = 0;
    for (const hba_info* port : all_ports()) {
        message(6, "%s%d\t%s %s %s %s %s\n", count == 0 ? lead : "", count, port->model,
                port->port_type, port->serial_no, port->pci_function, port->port_number);
        ++count;
    }
}

void remove_fibre_channel_ports() {
    const std::span<hba_info*> ports = all_ports();
    Slot kept = ports.data();
    for (hba_info* port : ports) {
        if (has_type(*port, "FC")) {
            release_hba_info_entry(port);
        } else {
            *kept++ = port;
        }
    }
    *kept = nullptr;
}

bool any_port_of(const char* type) {
    return std::ranges::any_of(all_ports(),
                               [=](const hba_info* port) { return has_type(*port, type); });
}

bool next_matches(Slot p) {
    return p[1] != nullptr && matches(*p[1], *p[0]);
}

// Moves every later port that matches the one at `p` to the places right after it, unless the
// next port matches already.
void gather_behind(Slot p) {
    if (p[1] == nullptr || next_matches(p)) {
        return;
    }
    Slot insertion = p + 1;
    for (Slot q = p + 2; *q != nullptr; ++q) {
        if (matches(**q, **p)) {
            std::swap(*insertion++, *q);
        }
    }
}

// Gathers the ports of each adapter, from `start` to the end of the list.
void regroup(Slot start) {
    for (Slot p = start; *p != nullptr; ++p) {
        gather_behind(p);
    }
}

// The same, but only as far as the port at `start` matches the ones that follow.
void regroup_adapter(Slot start) {
    for (Slot p = start; *p != nullptr && matches(**start, **p); ++p) {
        gather_behind(p);
    }
}

// Brings an adapter with a port of `type` to the cursor and moves the cursor to that adapter's
// last port. Returns false if no port from the cursor on has the type.
bool place_adapter(Slot& cursor, const char* type) {
    if (has_type(**cursor, type)) {
        regroup(cursor);
    } else {
        Slot found = cursor + 1;
        while (*found != nullptr && !has_type(**found, type)) {
            ++found;
        }
        if (*found == nullptr) {
            return false;
        }
        std::swap(*cursor, *found);
        regroup_adapter(cursor);
    }
    while (next_matches(cursor)) {
        ++cursor;
    }
    return true;
}

// Brings the adapters with FCoE ports to the front, then those with iSCSI ports.
void order_by_type(bool fcoe, bool iscsi) {
    for (Slot cursor = p_hba_info_list; *cursor != nullptr; ++cursor) {
        if (!(fcoe && place_adapter(cursor, "FCoE")) &&
            !(iscsi && place_adapter(cursor, "iSCSI"))) {
            return;
        }
    }
}

long function_of(const hba_info& port) {
    return std::strtol(port.pci_function, nullptr, 10);
}

void sort_by_function() {
    for (Slot p = p_hba_info_list; *p != nullptr; ++p) {
        for (Slot q = p + 1; *q != nullptr && matches(**q, **p); ++q) {
            if (function_of(**p) > function_of(**q)) {
                std::swap(*p, *q);
            }
        }
    }
}

} // namespace

std::int32_t Classify_Ctrl_List() {
    message(6, "\n\nOriginal input list.\n");
    list_ports("\n");
    remove_fibre_channel_ports();
    message(6, "\n\nList of CNA controller.\n");
    list_ports("\n");

    const bool fcoe = any_port_of("FCoE");
    const bool iscsi = any_port_of("iSCSI");
    regroup(p_hba_info_list);
    if (fcoe && iscsi) {
        message(6, "\nFC and iSCSI ports detected.\n");
    } else if (iscsi) {
        message(6, "\nOnly iSCSI ports detected.\n");
    } else if (fcoe) {
        message(6, "\nOnly FC ports detected.\n");
    }
    order_by_type(fcoe, iscsi);
    sort_by_function();
    message(6, "\n\nTotal Result after PCI function sort.\n\n");
    list_ports("");
    return 0;
}
