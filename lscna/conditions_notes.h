// Mistakes in a conditions file that its reader accepts in silence, or ends the run at.
#pragma once

#include "lscna/notes.h"

struct ConditionsNotes {
    Notes notes;        // "FILE:LINE: text", in the order of the file
    bool usable = true; // false: cnatool refuses the file
};

// Looks through the file at `path`; one that can't be opened is a mistake, too.
ConditionsNotes examine_conditions(const char* path);
