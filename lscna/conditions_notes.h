// Mistakes in a conditions file that its reader takes without a word, or ends the run at.
#pragma once

#include <string>
#include <vector>

struct ConditionsNotes {
    std::vector<std::string> texts; // "FILE:LINE: text", in the order of the file
    bool usable = true; // false: every check and flash ends before the adapters are read
};

// Looks through the file. It need not exist.
ConditionsNotes examine_conditions(const char* path);
