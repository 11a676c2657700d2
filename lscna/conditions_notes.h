// Mistakes in a conditions file that its reader accepts in silence, or ends the run at.
#pragma once

#include <string>
#include <vector>

struct ConditionsNotes {
    std::vector<std::string> texts; // "FILE:LINE: text", in the order of the file
    bool usable = true;             // false: cnatool refuses the file
};

// Looks through the file at `path`; one that can't be opened is a mistake, too.
ConditionsNotes examine_conditions(const char* path);
