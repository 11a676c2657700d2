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

// Returns the first result of the flash engine that is not RET_OK.
std::int32_t flash_port(const option_input& entry, hba_info& port, global_ctrl_flags& flags) {
    if (serial_missing(port)) {
        print_missing_serial(port);
        return RET_OK;
    }
    if (!selects(entry, port)) {
        return RET_OK;
    }
    flags.MatchingCtrlModelInstalled = 1;
    for (const fc_config_file_entry* record : all_conditions()) {
        // The images of another PCI subsystem of the same device could brick the adapter, so all
        // four identifiers count here, whatever the entry names.
        if (!describes(*record, port, Ids::four)) {
            continue;
        }
        if (any_level_above(5)) {
            message(2, "\t%s\n\n", divider);
            print_record(*record);
        }
        const std::int32_t result = FlashBladeEngine(port, *record, flags);
        if (result != RET_OK) {
            return result;
        }
    }
    return RET_OK;
}

} // namespace

std::int32_t OverallFlashBladeEngine(const option_input* selection, global_ctrl_flags& flags) {
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        for (hba_info* port : all_ports()) {
            if (const std::int32_t result = flash_port(*entry, *port, flags); result != RET_OK) {
                return result;
            }
        }
    }
    return RET_OK;
}
