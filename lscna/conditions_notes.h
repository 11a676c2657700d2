// Mistakes in a conditions file that its reader accepts in silence, or ends the run at.
#pragma once

#include "lscna/notes.h"

// Notes the mistakes of the file at `path` as "FILE:LINE: text"; one that can't be opened is a
// mistake, too. Returns false for a file that cnatool refuses.
bool examine_conditions(const char* path, Notes& notes);
