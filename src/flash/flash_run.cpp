#include "flash/flash_run.h"

#include "conditions/match.h"
#include "flash/flash_engine.h"
#include "inventory/hba_info.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"

namespace {

void print_missing_serial(const hba_info& port) {
    message(1, "System:\n");
    message(1, "\tFound an adequate installed controller-device:\n");
    print_controller_port(port);
    message(1, "\t\tPort index: %d; Ignore this port due to missing serial number  => SKIP.\n",
            port.port_index);
}

std::int32_t flash_match(const Match& match, global_ctrl_flags& flags) {
    if (serial_missing(*match.port)) {
        print_missing_serial(*match.port);
        return RET_OK;
    }
    flags.MatchingCtrlModelInstalled = 1;
    if (match.record == nullptr) {
        return RET_OK;
    }
    if (levels_above(5)) {
        message(2, "\t%s\n\n", divider);
        print_record(match);
    }
    return FlashBladeEngine(*match.port, *match.record, flags);
}

} // namespace

std::int32_t OverallFlashBladeEngine(const option_input* selection, global_ctrl_flags& flags) {
    // The images of another subsystem of the same device could brick the adapter,
    // so all four identifiers count here, whatever the selection named.
    for (const Match& match : match_selection(selection, Identity::whole)) {
        if (const std::int32_t result = flash_match(match, flags); result != RET_OK) {
            return result;
        }
    }
    return RET_OK;
}
