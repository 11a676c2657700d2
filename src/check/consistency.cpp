#include "check/consistency.h"

#include "check/subsystem.h"
#include "run/diagnostics.h"

namespace {

void port_line(std::int32_t level, const char* indent, const hba_info& port) {
    message(level,
            "%sVendor: %s, Model: %s SerialNumber: %s PortType: %s PortNumber: %s PCI function: "
            "%s\n",
            indent, port.mfg, port.model, port.serial_no, port.port_type, port.port_number,
            port.pci_function);
}

void announce(const hba_info& port) {
    message(1, "\n\t\t%s\n", divider);
    message(1, "\n\t\tPerform subsystem check for:\n");
    port_line(1, "\t\t", port);
}

void compare_with_controller(hba_info*& reference, hba_info& port, bool valid,
                             global_ctrl_flags& flags) {
    if (reference == nullptr) {
        reference = &port;
        message(2, "\t\tTake this sub-system as reference-sub-system for this "
                   "controller-device.\n");
    } else if (!valid) {
        return;
    } else if (NewCompareWithReferenceSystem(*reference, port)) {
        message(2, "\t\tThis sub-system differs from controller specific "
                   "reference-sub-system.\n");
        flags.CtrlSpecificSubsystemEquality = 0;
        flags.CtrlVendorSpecificSubsystemEquality = 0;
    } else {
        message(2, "\t\tThis sub-system is consistent with controller specific "
                   "reference-sub-system (only vendor-id was checked).\n");
    }
    port_line(2, "\t\t\t", port);
}

// The controller's reference stands for the whole controller.
void compare_with_vendor(hba_info& controller, global_ctrl_flags& flags) {
    if (flags.VendorReferenceSubsystem == nullptr) {
        flags.VendorReferenceSubsystem = &controller;
        message(2, "\t\tTake this sub-system as reference-sub-system for vendor %s.\n",
                controller.mfg);
        port_line(2, "\t\t\t", controller);
        return;
    }
    const hba_info& vendor = *flags.VendorReferenceSubsystem;
    if (flags.CtrlVendorSpecificSubsystemEquality != 0 &&
        !NewCompareWithReferenceSystem(vendor, controller)) {
        message(2,
                "\t\tAll sub-systems are consistent with vendor specific reference-sub-system "
                "(only vendor-id was checked) %s.\n\n",
                vendor.port_wwn);
        return;
    }
    message(2, "vendor specific reference-sub-system %d >%s< >%s<.\n",
            flags.CtrlVendorSpecificSubsystemEquality, vendor.target_mapping->vendor_id,
            controller.target_mapping->vendor_id);
    message(2, "\t\tAt least one sub-system differs from vendor specific reference-sub-system "
               "(different vendors).\n\n");
    flags.CtrlVendorSpecificSubsystemEquality = 0;
}

// Examines one port of the chain. Returns false when that ends the walk.
bool examine(hba_info& port, fc_config_file_entry* const& entry, hba_info*& reference,
             global_ctrl_flags& flags) {
    if (!begins_with(port.mfg, entry->vendor) || !begins_with(port.model, entry->model)) {
        return true;
    }
    if (port.check_done != 0) {
        if (levels_above(3)) {
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
    const bool valid = DoIndividualSubSystemCheck(port, entry, flags) != 0;
    compare_with_controller(reference, port, valid, flags);
    message(1, "\n");
    if (!valid) {
        flags.CtrlSpecificSubsystemEquality = 0;
        flags.CtrlVendorSpecificSubsystemEquality = 0;
        return false;
    }
    compare_with_vendor(*reference, flags);
    return true;
}

// Whether the walk from `first` has come back to a port that it has passed, as
// it does on the self-link of an adapter with one FCoE port.
bool passed(const hba_info* first, const hba_info* port, int steps) {
    for (const hba_info* earlier = first; steps > 0; --steps, earlier = earlier->next_port) {
        if (earlier == port) {
            return true;
        }
    }
    return false;
}

} // namespace

bool NewCompareWithReferenceSystem(const hba_info& a, const hba_info& b) {
    return a.target_mapping != nullptr && b.target_mapping != nullptr &&
           std::strcmp(a.target_mapping->vendor_id, b.target_mapping->vendor_id) != 0;
}

void DoSubSystemCheck(const hba_info& port, fc_config_file_entry* const& entry,
                      global_ctrl_flags& flags) {
    hba_info* reference = nullptr;
    hba_info* const first = port.flash_port->next_port;
    hba_info* member = first;
    for (int steps = 0; member != nullptr && !passed(first, member, steps); ++steps) {
        if (!examine(*member, entry, reference, flags)) {
            break;
        }
        member = member->next_port;
    }
    message(6, "%s\n", divider);
}
