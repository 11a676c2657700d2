// The command line: what a run is asked to do.
#pragma once

#include "run/base/selection.h"
#include "run/levels.h"

// Reads the words after the program name: levels, options, the rules about their
// combination, the default check. Sets the levels, the switches and, for a
// directory, the three paths. Returns the list of the last selection option, null
// when there was none. Whatever can't be accepted ends the run with RET_BAD_CALL
// or the codes of the selection lists; informational options end it with RET_OK.
const option_input* read_command_line(const char* program_name, Words words);
