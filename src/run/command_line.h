// The command line: its options, and what a run is asked to do.
#pragma once

#include "run/levels.h"
#include "run/selection.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

// What the command line asks for, beside the settings of the run.
struct Request {
    std::array<bool, selection_kinds> given{}; // the list options, by kind
    bool qmr_mode = false;
    bool check_valid_subsystem = false;
    bool ctrl_wide_identical = false;
    bool ctrl_vendor_wide_identical = false;
    bool flash = false;
    bool simulate = false;
    option_input* selection = nullptr; // the list of the last selection option

    [[nodiscard]] bool check() const {
        return check_valid_subsystem || ctrl_wide_identical || ctrl_vendor_wide_identical;
    }
};

enum class Effect : std::uint8_t {
    help,
    tool_information,
    version,
    return_codes,
    silence,
    level,   // its value has been read with the levels
    list,    // a selection list of one kind
    pci_ids, // a selection list of PCI identities
    directory,
    flag,
};

// One option; a word is the first one's that matches it.
struct Option {
    std::string_view text;
    bool (*matches)(std::string_view word, std::string_view text);
    Effect effect;
    SelectionKind kind{};
    bool Request::*flag = nullptr;
    const char* value_missing = nullptr;  // the refusal when no word follows
    const char* value_unusable = nullptr; // when the next one is empty or an option
};

// Every option in the order in which words are tested.
std::span<const Option> options();

// Reads the words behind the program name: levels, options, the rules about
// their combination, the default check. Sets the levels, the switches and, for
// a directory, the three paths. Whatever can't be accepted ends the process
// with RET_BAD_CALL or the selection parsers' codes; informational options end
// it with RET_OK.
Request read_command_line(const char* program, Words words);
