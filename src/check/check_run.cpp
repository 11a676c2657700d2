#include "check/check_run.h"

#include "check/consistency.h"
#include "conditions/match.h"
#include "run/diagnostics.h"

namespace {

void report_missing_serial(const hba_info& port) {
    message(2, "\tVendor: %s Model: %s; SN: %s port: %s function: %s\n", port.mfg, port.model,
            port.serial_no, port.port_number, port.pci_function);
    message(1, "\tNo serial number => SKIP\n");
    message(2, "%s\n", divider);
}

void check_port(const option_input& entry, const hba_info& port, global_ctrl_flags& flags) {
    for_each_record(port, names_subsystem(entry),
                    [&](fc_config_file_entry* const& record, int position) {
                        if (levels_above(5)) {
                            report_match(*record, position);
                        }
                        DoSubSystemCheck(port, record, flags);
                        return 0;
                    });
}

int result(const global_ctrl_flags& flags) {
    if (active_option_valid_subsystem != 0) {
        return flags.InvalidCtrlSubsystemCombinationFound == 0;
    }
    if (active_option_ctrl_wide_identical != 0) {
        return flags.CtrlSpecificSubsystemEquality != 0;
    }
    if (active_option_ctrl_vendor_wide_identical != 0) {
        return flags.CtrlVendorSpecificSubsystemEquality != 0;
    }
    return 1;
}

} // namespace

int OverallSubSystemCheck(const option_input* selection, global_ctrl_flags& flags) {
    flags.CtrlVendorSpecificSubsystemEquality = 1;
    message(3, "\n\n%s\n%s\n", star_divider, star_divider);
    for (const auto* entry = selection; entry != nullptr; entry = entry->next) {
        for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
            if (serial_missing(**port)) {
                if (levels_above(5)) {
                    report_missing_serial(**port);
                }
            } else if (selects(*entry, **port)) {
                flags.MatchingCtrlModelInstalled = 1;
                check_port(*entry, **port, flags);
            }
        }
    }
    message(3, "\n%s\n%s\n\n", star_divider, star_divider);
    return result(flags);
}
