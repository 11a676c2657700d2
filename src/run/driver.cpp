#include "run/driver.h"

#include "check/check_run.h"
#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "flash/flash_run.h"
#include "inventory/hba_info.h"
#include "inventory/inventory.h"
#include "run/command_line.h"
#include "run/diagnostics.h"
#include "run/directories.h"
#include "run/process.h"
#include "run/return_codes.h"
#include "run/settings.h"
#include "run/summary.h"

#include <cstdlib>
#include <cstring>

namespace {

const char* program_name(const char* word) {
    const char* const slash = std::strrchr(word, '/');
    return slash == nullptr ? word : slash + 1;
}

void read_conditions(const char* program) {
    switch (const std::int32_t result = Read_FC_Config_File(pHBAConditionsPath); result) {
    case RET_OK:
        break;
    case RET_FC_HBA_CONDITIONS_MISSING:
        message(1, "\nCann't access file %s.\n\n", pHBAConditionsPath);
        std::exit(result);
    case RET_MEMALLOC_FAIL:
        message(1, "Error: %s, Memory allocation failed!\n", program);
        std::exit(result);
    default:
        message(1, "Error: Fatal error!\n");
        std::exit(RET_FATAL_ERROR);
    }
    if (VerboseLevel > 3) {
        list_conditions();
    }
}

int none_found(const Request& request, ReturnCode code) {
    return request.qmr_mode ? RET_OK : code;
}

void take_inventory(const Request& request, global_ctrl_flags& flags) {
    flags.NoFcCtrlInstalled = 0;
    flags.VendorReferenceSubsystem = nullptr;
    // Only an absent list ends the run: what could be read is checked.
    static_cast<void>(Get_All_Hba_Info());
    if (p_hba_info_list == nullptr) {
        message(1, "\nNo Blade Engine was found in this system.\n\n");
        flags.NoFcCtrlInstalled = 1;
        std::exit(none_found(request, RET_NO_FC_CTRL_INSTALLED));
    }
}

// A port that belongs to no adapter that could be flashed: its functions are not
// all there, as when a kernel module is missing.
void check_kernel_module() {
    for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
        if (!serial_missing(**port) && (*port)->flash_port == nullptr) {
            std::exit(RET_KERNEL_MODULE_MISSING);
        }
    }
}

// The code of the first check that failed, RET_OK when none did.
ReturnCode failed_check(const Request& request, const global_ctrl_flags& flags) {
    if (flags.InvalidCtrlSubsystemCombinationFound != 0) {
        return RET_INVALID_CTRL_SUBSYSTEM_COMBINATION;
    }
    if (request.ctrl_vendor_wide_identical && flags.CtrlVendorSpecificSubsystemEquality == 0) {
        return RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL;
    }
    if (request.ctrl_wide_identical && flags.CtrlSpecificSubsystemEquality == 0) {
        return RET_NOT_CTRL_WIDE_IDENTICAL;
    }
    return RET_OK;
}

void flash(const Request& request, global_ctrl_flags& flags) {
    const std::int32_t result = OverallFlashBladeEngine(request.selection, flags);
    message(3, "\t\tOverallFlashBladeEngine returned: %d \n\n", result);
    if (result != RET_OK) {
        std::exit(result);
    }
}

// Runs what was asked for; a flash only after the check beside it has passed.
void dispatch(const Request& request, global_ctrl_flags& flags) {
    if (!request.check()) {
        flash(request, flags);
        return;
    }
    const bool passed = OverallSubSystemCheck(request.selection, flags) != 0;
    if (!request.flash || !passed) {
        message(3, "OverallSubSystemCheck returned: %d \n", passed);
    }
    if (!request.flash) {
        return;
    }
    if (passed) {
        flash(request, flags);
    } else if (const ReturnCode code = failed_check(request, flags); code != RET_OK) {
        std::exit(code);
    }
}

int exit_status(const Request& request, const global_ctrl_flags& flags) {
    if (flags.NoFcCtrlInstalled != 0) {
        return none_found(request, RET_NO_FC_CTRL_INSTALLED);
    }
    if (flags.MatchingCtrlModelInstalled == 0) {
        return none_found(request, RET_NO_MATCHING_CTRL_FOUND);
    }
    return failed_check(request, flags);
}

void reset_results(global_ctrl_flags& flags) {
    flags.InvalidCtrlSubsystemCombinationFound = 0;
    flags.MatchingCtrlModelInstalled = 0;
    flags.CtrlVendorSpecificSubsystemEquality = 1;
    flags.CtrlSpecificSubsystemEquality = 1;
}

} // namespace

int run_tool(int argc, char** argv) {
    prepare_process();
    // A caller may start a program without any word at all.
    const char* const typed = argc > 0 ? argv[0] : "cnatool";
    const Words words(argv + 1, argc > 0 ? static_cast<std::size_t>(argc) - 1 : 0);
    const char* const program = program_name(typed);
    const Request request = read_command_line(program, words);

    settle_temporary_directory();
    settle_directories(typed);
    read_conditions(program);

    global_ctrl_flags flags{};
    take_inventory(request, flags);
    Classify_Ctrl_List();
    Determine_Flash_Ports();
    check_kernel_module();
    if (levels_above(3)) {
        list_controllers();
    }

    reset_results(flags);
    if (levels_above(5)) {
        list_flags("\n", flags);
    }
    dispatch(request, flags);
    if (levels_above(5)) {
        list_flags("", flags);
    }
    return exit_status(request, flags);
}
