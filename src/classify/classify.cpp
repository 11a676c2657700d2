#include "classify/classify.h"

#include "classify/port_order.h"
#include "inventory/hba_info.h"
#include "run/diagnostics.h"

namespace {

void list_ports(const char* header, const char* first_line) {
    if (!message_shown(6)) {
        return;
    }
    message(6, "%s", header);
    const char* format = first_line;
    for (int count = 0; p_hba_info_list[count] != nullptr; ++count) {
        const hba_info& port = *p_hba_info_list[count];
        message(6, format, count, port.model, port.port_type, port.serial_no, port.pci_function,
                port.port_number);
        format = "%d\t%s %s %s %s %s\n";
    }
}

void remove_fibre_channel_ports() {
    hba_info** kept = p_hba_info_list;
    for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
        if (has_type(**port, "FC")) {
            release_hba_info_entry(*port);
        } else {
            *kept++ = *port;
        }
    }
    *kept = nullptr;
}

bool any_port_of(const char* type) {
    for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
        if (has_type(**port, type)) {
            return true;
        }
    }
    return false;
}

} // namespace

int Classify_Ctrl_List() {
    list_ports("\n\nOriginal input list.\n", "\n%d\t%s %s %s %s %s\n");
    remove_fibre_channel_ports();
    list_ports("\n\nList of CNA controller.\n", "\n%d\t%s %s %s %s %s\n");

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
    list_ports("\n\nTotal Result after PCI function sort.\n\n", "%d\t%s %s %s %s %s\n");
    return 0;
}
