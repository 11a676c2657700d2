#include "classify/classify.h"

#include "classify/port_order.h"
#include "inventory/hba_info.h"
#include "run/base/diagnostics.h"

namespace {

// Lists the ports after `lead`, which stands directly before the first.
void list_ports(const char* lead) {
    if (!message_shown(6)) {
        return;
    }
    int count = 0;
    for (const hba_info& port : all_ports()) {
        message(6, "%s%d\t%s %s %s %s %s\n", count == 0 ? lead : "", count, port.model,
                port.port_type, port.serial_no, port.pci_function, port.port_number);
        ++count;
    }
}

void remove_fibre_channel_ports() {
    hba_info** kept = p_hba_info_list;
    for (hba_info& port : all_ports()) {
        if (has_type(port, "FC")) {
            release_hba_info_entry(&port);
        } else {
            *kept++ = &port;
        }
    }
    *kept = nullptr;
}

bool any_port_of(const char* type) {
    bool found = false;
    for (const hba_info& port : all_ports()) {
        found = found || has_type(port, type);
    }
    return found;
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
    PortOrder order(p_hba_info_list);
    order.regroup(0);
    if (fcoe && iscsi) {
        message(6, "\nFC and iSCSI ports detected.\n");
    } else if (iscsi) {
        message(6, "\nOnly iSCSI ports detected.\n");
    } else if (fcoe) {
        message(6, "\nOnly FC ports detected.\n");
    }
    order.by_type(fcoe, iscsi);
    order.by_function();
    message(6, "\n\nTotal Result after PCI function sort.\n\n");
    list_ports("");
    return 0;
}
