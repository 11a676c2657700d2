// The exit statuses of the tool. One table gives the enumeration and the list
// that `--show-return-codes` prints, so that the two cannot disagree.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#define CNATOOL_RETURN_CODES(X)                                                                    \
    X(RET_OK, 0)                                                                                   \
    X(RET_NOT_CTRL_WIDE_IDENTICAL, 1)                                                              \
    X(RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL, 2)                                                       \
    X(RET_BAD_CALL, 3)                                                                             \
    X(RET_INVALID_CTRL_SUBSYSTEM_COMBINATION, 4)                                                   \
    X(RET_FLASH_ERROR, 10)                                                                         \
    X(RET_NO_FC_HBA_CONDITIONS_ENTRY, 11)                                                          \
    X(RET_NO_MATCHING_CTRL_FOUND, 12)                                                              \
    X(RET_NO_FC_CTRL_INSTALLED, 13)                                                                \
    X(RET_FC_HBA_CONDITIONS_MISSING, 15)                                                           \
    X(RET_INFOFILE_MISSING, 16)                                                                    \
    X(RET_FW_NOT_AVAILABLE, 20)                                                                    \
    X(RET_SCLI_NOT_INSTALLED, 21)                                                                  \
    X(RET_KERNEL_MODULE_MISSING, 22)                                                               \
    X(RET_MEMALLOC_FAIL, 54)                                                                       \
    X(RET_FATAL_ERROR, 55)

enum ReturnCode : std::int32_t {
#define CNATOOL_ENUMERATOR(name, value) name = (value),
    CNATOOL_RETURN_CODES(CNATOOL_ENUMERATOR)
#undef CNATOOL_ENUMERATOR
};

struct ReturnCodeName {
    const char* name;
    std::int32_t value;
};

// Every return code in ascending order, by name and value.
std::span<const ReturnCodeName> return_codes();

// The text of the return-code list: one leading newline, two at the end.
std::string returnMessage();
