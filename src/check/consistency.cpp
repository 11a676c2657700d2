#include "check/consistency.h"

#include "check/subsystem.h"
#include "conditions/match.h"
#include "run/base/diagnostics.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

// One walk over the ports of an adapter.
struct Walk {
    const fc_config_file_entry& record;
    global_ctrl_flags& flags;
    hba_info* reference = nullptr; // the controller's: the first port that sees storage
};

void print_port(std::int32_t level, const char* indent, const hba_info& port) {
    message(level,
            "%sVendor: %s, Model: %s SerialNumber: %s PortType: %s PortNumber: %s PCI function: "
            "%s\n",
            indent, port.mfg, port.model, port.serial_no, port.port_type, port.port_number,
            port.pci_function);
}

void announce(const hba_info& port) {
    message(1, "\n\t\t%s\n", divider);
    message(1, "\n\t\tPerform subsystem check for:\n");
    print_port(1, "\t\t", port);
}

void compare_with_controller(Walk& walk, hba_info& port, bool valid) {
    if (walk.reference == nullptr) {
        walk.reference = &port;
        message(2, "\t\tTake this sub-system as reference-sub-system for this "
                   "controller-device.\n");
        print_port(2, "\t\t\t", port);
    } else if (valid && NewCompareWithReferenceSystem(*walk.reference, port)) {
        message(2, "\t\tThis sub-system differs from controller specific "
                   "reference-sub-system.\n");
        print_port(2, "\t\t\t", port);
        walk.flags.CtrlSpecificSubsystemEquality = 0;
        walk.flags.CtrlVendorSpecificSubsystemEquality = 0;
    } else if (valid) {
        message(2, "\t\tThis sub-system is consistent with controller specific "
                   "reference-sub-system (only vendor-id was checked).\n");
        print_port(2, "\t\t\t", port);
    }
}

// A controller's reference is compared for the whole controller; the first of a run becomes the
// vendor's.
void compare_with_vendor(hba_info& controller_reference, global_ctrl_flags& flags) {
    if (flags.VendorReferenceSubsystem == nullptr) {
        flags.VendorReferenceSubsystem = &controller_reference;
        message(2, "\t\tTake this sub-system as reference-sub-system for vendor %s.\n",
                controller_reference.mfg);
        print_port(2, "\t\t\t", controller_reference);
        return;
    }
    const hba_info& vendor_reference = *flags.VendorReferenceSubsystem;
    if (flags.CtrlVendorSpecificSubsystemEquality != 0 &&
        !NewCompareWithReferenceSystem(vendor_reference, controller_reference)) {
        message(2,
                "\t\tAll sub-systems are consistent with vendor specific reference-sub-system "
                "(only vendor-id was checked) %s.\n\n",
                vendor_reference.port_wwn);
        return;
    }
    message(2, "vendor specific reference-sub-system %d >%s< >%s<.\n",
            flags.CtrlVendorSpecificSubsystemEquality, vendor_reference.target_mapping->vendor_id,
            controller_reference.target_mapping->vendor_id);
    message(2, "\t\tAt least one sub-system differs from vendor specific reference-sub-system "
               "(different vendors).\n\n");
    flags.CtrlVendorSpecificSubsystemEquality = 0;
}

// Examines one port of the chain. Returns false when that ends the walk.
bool examine(Walk& walk, hba_info& port) {
    if (!is_for_model(walk.record, port)) {
        return true;
    }
    if (port.check_done != 0) {
        if (any_level_above(3)) {
            announce(port);
            message(1, "\t\tSubsystem check already done => continue.\n");
        }
        return true;
    }
    announce(port);
    port.check_done = 1;
    if (port.target_mapping == nullptr) {
        message(1, "\n");
        return true;
    }
    const bool valid = DoIndividualSubSystemCheck(port, walk.record, walk.flags);
    compare_with_controller(walk, port, valid);
    message(1, "\n");
    if (!valid) {
        walk.flags.CtrlSpecificSubsystemEquality = 0;
        walk.flags.CtrlVendorSpecificSubsystemEquality = 0;
        return false;
    }
    compare_with_vendor(*walk.reference, walk.flags);
    return true;
}

} // namespace

bool NewCompareWithReferenceSystem(const hba_info& a, const hba_info& b) {
    return a.target_mapping != nullptr && b.target_mapping != nullptr &&
           std::strcmp(a.target_mapping->vendor_id, b.target_mapping->vendor_id) != 0;
}

std::vector<hba_info*> adapter_chain(const hba_info& port) {
    std::vector<hba_info*> chain;
    // The chain of an adapter with one FCoE port leads from that port back to it.
    for (hba_info* member = port.flash_port->next_port;
         member != nullptr && std::find(chain.begin(), chain.end(), member) == chain.end();
         member = member->next_port) {
        chain.push_back(member);
    }
    return chain;
}

void DoSubSystemCheck(const hba_info& port, const fc_config_file_entry& record,
                      global_ctrl_flags& flags) {
    Walk walk{record, flags};
    for (hba_info* member : adapter_chain(port)) {
        if (!examine(walk, *member)) {
            break;
        }
    }
    message(6, "%s\n", divider);
}
