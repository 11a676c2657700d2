// The options of the command line.
#pragma once

#include "run/selection_lists.h"

#include <cstdint>
#include <span>
#include <string_view>

// What the driver does about an option.
enum class Effect : std::uint8_t {
    help,
    tool_information,
    version,
    return_codes,
    silence,
    level,       // its value has been read with the levels
    list,        // a selection list of one kind
    pci_ids,     // a selection list of PCI identities
    directory,   // where the files are
    switched_on, // a setting becomes 1
};

// One row of the table; a word belongs to the first row that matches it.
struct Option {
    std::string_view text;
    bool (*matches)(std::string_view word, std::string_view text);
    Effect effect;
    SelectionKind kind{};                 // of a list
    std::int32_t* setting = nullptr;      // what is switched on
    const char* value_missing = nullptr;  // the refusal when no word follows
    const char* value_unusable = nullptr; // when the next word is empty or an option
};

// Every option in the order in which words are tested.
std::span<const Option> options();
