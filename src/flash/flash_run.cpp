#include "flash/flash_run.h"

#include "conditions/match.h"
#include "flash/flash_engine.h"
#include "run/diagnostics.h"
#include "run/return_codes.h"

namespace {

void report_missing_serial(const hba_info& port) {
    message(1, "System:\n");
    message(1, "\tFound an adequate installed controller-device:\n");
    report_flash_port(port);
    message(1, "\t\tPort index: %d; Ignore this port due to missing serial number  => SKIP.\n",
            port.port_index);
}

// The images of another subsystem of the same device could brick the adapter,
// so all four identifiers count here, whatever the selection named.
std::int32_t flash_port(hba_info& port, global_ctrl_flags& flags) {
    return for_each_record(port, true, [&](fc_config_file_entry* const& record, int position) {
        if (levels_above(5)) {
            message(2, "\t%s\n\n", divider);
            report_match(*record, position);
        }
        return FlashBladeEngine(port, record, flags);
    });
}

} // namespace

std::int32_t OverallFlashBladeEngine(const option_input* selection, global_ctrl_flags& flags) {
    for (const auto* entry = selection; entry != nullptr; entry = entry->next) {
        for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
            if (serial_missing(**port)) {
                report_missing_serial(**port);
                continue;
            }
            if (!selects(*entry, **port)) {
                continue;
            }
            flags.MatchingCtrlModelInstalled = 1;
            if (const std::int32_t result = flash_port(**port, flags); result != RET_OK) {
                return result;
            }
        }
    }
    return RET_OK;
}
