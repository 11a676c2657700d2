#include "check/check_run.h"

#include "check/consistency.h"
#include "conditions/match.h"
#include "inventory/hba_info.h"
#include "run/base/diagnostics.h"
#include "run/base/settings.h"

namespace {

void print_missing_serial(const hba_info& port) {
    message(2, "\tVendor: %s Model: %s; SN: %s port: %s function: %s\n", port.mfg, port.model,
            port.serial_no, port.port_number, port.pci_function);
    message(1, "\tNo serial number => SKIP\n");
    message(2, "%s\n", divider);
}

void check_port(const option_input& entry, const hba_info& port, global_ctrl_flags& flags) {
    if (serial_missing(port)) {
        if (any_level_above(5)) {
            print_missing_serial(port);
        }
        return;
    }
    if (!selects(entry, port)) {
        return;
    }
    flags.MatchingCtrlModelInstalled = 1;
    for (const fc_config_file_entry* record : all_conditions()) {
        if (!describes(*record, port, named_ids(entry))) {
            continue;
        }
        if (any_level_above(5)) {
            print_record(*record);
        }
        DoSubSystemCheck(port, *record, flags);
    }
}

bool selected_check_passed(const global_ctrl_flags& flags) {
    if (active_option_valid_subsystem != 0) {
        return flags.InvalidCtrlSubsystemCombinationFound == 0;
    }
    if (active_option_ctrl_wide_identical != 0) {
        return flags.CtrlSpecificSubsystemEquality != 0;
    }
    if (active_option_ctrl_vendor_wide_identical != 0) {
        return flags.CtrlVendorSpecificSubsystemEquality != 0;
    }
    return true;
}

} // namespace

bool OverallSubSystemCheck(const option_input* selection, global_ctrl_flags& flags) {
    flags.CtrlVendorSpecificSubsystemEquality = 1;
    message(3, "\n\n%s\n%s\n", star_divider, star_divider);
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        for (const hba_info* port : all_ports()) {
            check_port(*entry, *port, flags);
        }
    }
    message(3, "\n%s\n%s\n\n", star_divider, star_divider);
    return selected_check_passed(flags);
}
