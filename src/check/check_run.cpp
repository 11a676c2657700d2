#include "check/check_run.h"

#include "check/consistency.h"
#include "conditions/match.h"
#include "inventory/hba_info.h"
#include "run/base/diagnostics.h"
#include "run/base/settings.h"

#include <set>
#include <utility>

namespace {

void print_missing_serial(const hba_info& port) {
    message(2, "\tVendor: %s Model: %s; SN: %s port: %s function: %s\n", port.mfg, port.model,
            port.serial_no, port.port_number, port.pci_function);
    message(1, "\tNo serial number => SKIP\n");
    message(2, "%s\n", divider);
}

// The chains that have been walked as a whole, by their flash port, and for which
// record.
using WholeWalks = std::set<std::pair<const hba_info*, fc_config_file_entry**>>;

void check_match(const Match& match, WholeWalks& whole_walks, global_ctrl_flags& flags) {
    if (serial_missing(*match.port)) {
        if (levels_above(5)) {
            print_missing_serial(*match.port);
        }
        return;
    }
    flags.MatchingCtrlModelInstalled = 1;
    if (match.record == nullptr) {
        return;
    }
    if (levels_above(5)) {
        print_record(match);
    }
    // All ports of such a chain are done, which shows from level 4 on. An adapter of
    // many thousand ports would be walked that many times for nothing.
    const std::pair walk(static_cast<const hba_info*>(match.port->flash_port), match.record);
    if (!levels_above(3) && whole_walks.contains(walk)) {
        return;
    }
    if (DoSubSystemCheck(*match.port, *match.record, flags)) {
        whole_walks.insert(walk);
    }
}

int selected_check_passed(const global_ctrl_flags& flags) {
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
    WholeWalks whole_walks;
    for (const Match& match : match_selection(selection, Identity::as_selected)) {
        check_match(match, whole_walks, flags);
    }
    message(3, "\n%s\n%s\n\n", star_divider, star_divider);
    return selected_check_passed(flags);
}
