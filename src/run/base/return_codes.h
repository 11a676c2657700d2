// The exit statuses of the tool. help.cpp has the list that --show-return-codes prints.
#pragma once

#include <cstdint>

enum ReturnCode : std::int32_t {
    RET_OK = 0,
    RET_NOT_CTRL_WIDE_IDENTICAL = 1,
    RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL = 2,
    RET_BAD_CALL = 3,
    RET_INVALID_CTRL_SUBSYSTEM_COMBINATION = 4,
    RET_FLASH_ERROR = 10,
    RET_NO_FC_HBA_CONDITIONS_ENTRY = 11,
    RET_NO_MATCHING_CTRL_FOUND = 12,
    RET_NO_FC_CTRL_INSTALLED = 13,
    RET_FC_HBA_CONDITIONS_MISSING = 15,
    RET_INFOFILE_MISSING = 16,
    RET_FW_NOT_AVAILABLE = 20,
    RET_SCLI_NOT_INSTALLED = 21,
    RET_KERNEL_MODULE_MISSING = 22,
    RET_MEMALLOC_FAIL = 54,
    RET_FATAL_ERROR = 55,
};
