// What is to be looked at.
#pragma once

#include "inventory/hba_info.h"

#include <string>
#include <vector>

// A cause, and what to do.
struct Note {
    std::string text;
    std::string adapter{};                // its serial number
    std::vector<std::string> functions{}; // of the adapter; none: it is about no adapter
};

using Notes = std::vector<Note>;

// Adds a note about no adapter, once.
void add_note(Notes& notes, const std::string& text);

// Adds what there is to say of a port: one note for all ports of its adapter, none where the text
// is empty or is that of a note about no adapter.
void add_note(Notes& notes, const hba_info& port, const std::string& text);
