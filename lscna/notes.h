// What is to be looked at.
#pragma once

#include "inventory/hba_info.h"

#include <string>
#include <vector>

// A cause and what to do. The adapter's serial number is empty where it is about none.
struct Note {
    std::string text;
    std::string adapter{};
    std::vector<std::string> functions{}; // of the adapter, those that it is about
};

using Notes = std::vector<Note>;

// Adds what there is to say of a port, once for all ports of its adapter. An empty text is nothing
// to say.
void add_note(Notes& notes, const hba_info& port, const std::string& text);
