#include "run/driver.h"

#include "check/check_run.h"
#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "flash/flash_run.h"
#include "inventory/hba_info.h"
#include "inventory/inventory.h"
#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/environment.h"
#include "run/base/result_flags.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/terminal_line.h"
#include "run/command_line.h"
#include "run/directories.h"
#include "run/summary.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <string>

namespace {

const char* base_name(const char* word) {
    const char* const slash = std::strrchr(word, '/');
    return slash == nullptr ? word : slash + 1;
}

void start_debug_log() {
    if (DebugLevel > 0) {
        open_debug_log((std::string(pHBAWorkingPath) + "Merlie_DLL.log").c_str());
    }
}

void read_conditions(const char* program_name) {
    switch (const std::int32_t result = Read_FC_Config_File(pHBAConditionsPath); result) {
    case RET_OK:
        break;
    case RET_FC_HBA_CONDITIONS_MISSING:
        message(1, "\nCann't access file %s.\n\n", pHBAConditionsPath);
        end_run(result);
    case RET_MEMALLOC_FAIL:
        message(1, "Error: %s, Memory allocation failed!\n", program_name);
        end_run(result);
    default:
        message(1, "Error: Fatal error!\n");
        end_run(RET_FATAL_ERROR);
    }
    if (VerboseLevel > 3) {
        list_conditions();
    }
}

// How a run that found nothing ends: `status`, or 0 under --qmr-mode.
std::int32_t status_when_nothing_found(std::int32_t status) {
    return active_option_qmr_mode != 0 ? RET_OK : status;
}

void make_inventory(global_ctrl_flags& flags) {
    flags.NoFcCtrlInstalled = 0;
    flags.VendorReferenceSubsystem = nullptr;
    // Only an absent list ends the run: the ports that could be read are checked.
    Get_All_Hba_Info();
    if (p_hba_info_list == nullptr) {
        message(1, "\nNo Blade Engine was found in this system.\n\n");
        flags.NoFcCtrlInstalled = 1;
        end_run(status_when_nothing_found(RET_NO_FC_CTRL_INSTALLED));
    }
}

// Ends the run at a port whose adapter has no flash port: some of the adapter's functions are
// missing, as without the kernel module that provides them.
void check_kernel_module() {
    for (const hba_info* port : all_ports()) {
        if (!serial_missing(*port) && port->flash_port == nullptr) {
            end_run(RET_KERNEL_MODULE_MISSING);
        }
    }
}

// The code of the first requested check that failed, RET_OK when none did.
std::int32_t failed_check(const global_ctrl_flags& flags) {
    if (flags.InvalidCtrlSubsystemCombinationFound != 0) {
        return RET_INVALID_CTRL_SUBSYSTEM_COMBINATION;
    }
    if (active_option_ctrl_vendor_wide_identical != 0 &&
        flags.CtrlVendorSpecificSubsystemEquality == 0) {
        return RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL;
    }
    if (active_option_ctrl_wide_identical != 0 && flags.CtrlSpecificSubsystemEquality == 0) {
        return RET_NOT_CTRL_WIDE_IDENTICAL;
    }
    return RET_OK;
}

bool check_requested() {
    return active_option_valid_subsystem != 0 || active_option_ctrl_wide_identical != 0 ||
           active_option_ctrl_vendor_wide_identical != 0;
}

void show_check_result(bool passed) {
    message(3, "OverallSubSystemCheck returned: %d \n", passed);
}

void flash(const option_input* selection, global_ctrl_flags& flags) {
    const std::int32_t result = OverallFlashBladeEngine(selection, flags);
    message(3, "\t\tOverallFlashBladeEngine returned: %d \n\n", result);
    if (result != RET_OK) {
        end_run(result);
    }
}

// Flashes only when the check has passed. After a check that failed without a code of its own
// the run goes on to its usual end, without the flash.
void check_then_flash(const option_input* selection, global_ctrl_flags& flags) {
    if (OverallSubSystemCheck(selection, flags)) {
        flash(selection, flags);
        return;
    }
    show_check_result(false);
    if (const std::int32_t code = failed_check(flags); code != RET_OK) {
        end_run(code);
    }
}

void dispatch(const option_input* selection, global_ctrl_flags& flags) {
    if (!check_requested()) {
        flash(selection, flags);
    } else if (active_option_flash != 0) {
        check_then_flash(selection, flags);
    } else {
        show_check_result(OverallSubSystemCheck(selection, flags));
    }
}

std::int32_t exit_status(const global_ctrl_flags& flags) {
    if (flags.NoFcCtrlInstalled != 0) {
        return status_when_nothing_found(RET_NO_FC_CTRL_INSTALLED);
    }
    if (flags.MatchingCtrlModelInstalled == 0) {
        return status_when_nothing_found(RET_NO_MATCHING_CTRL_FOUND);
    }
    return failed_check(flags);
}

void reset_results(global_ctrl_flags& flags) {
    flags.InvalidCtrlSubsystemCombinationFound = 0;
    flags.MatchingCtrlModelInstalled = 0;
    flags.CtrlVendorSpecificSubsystemEquality = 1;
    flags.CtrlSpecificSubsystemEquality = 1;
}

// Returns the exit status of a run that comes to its end.
std::int32_t run(const char* typed_program, const char* program_name, Words words) {
    const option_input* const selection = read_command_line(program_name, words);
    terminal_lines_enabled = VerboseLevel != 0;

    resolve_temporary_directory();
    resolve_directories(typed_program);
    start_debug_log();
    message(3, "HBA conditions file: %s\n", pHBAConditionsPath);
    read_conditions(program_name);

    global_ctrl_flags flags{};
    make_inventory(flags);
    Classify_Ctrl_List();
    Determine_Flash_Ports();
    check_kernel_module();
    if (any_level_above(3)) {
        list_controllers();
    }

    reset_results(flags);
    if (any_level_above(5)) {
        list_flags("\n", flags);
    }
    dispatch(selection, flags);
    if (any_level_above(5)) {
        list_flags("", flags);
    }
    return exit_status(flags);
}

} // namespace

int run_tool(int argc, char** argv) {
    reset_inherited_state();
    DebugLevel = 0;
    VerboseLevel = 1;
    PrintDebugOnScreen = 1;
    const char* const program_name = base_name(argv[0]);
    try {
        return run(argv[0], program_name, Words(argv + 1, argv + argc));
    } catch (const RunEnd& end) {
        return end.status;
    } catch (const std::bad_alloc&) {
        message(1, "Error: %s, Memory allocation failed!\n", program_name);
        return RET_MEMALLOC_FAIL;
    }
}
