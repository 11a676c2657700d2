// What the process inherits from its caller.
#pragma once

// Resets what would change how a run or its commands behave: closed standard streams are
// opened, so that no report takes their place; a reader that goes away, or a file-size limit,
// does not end the run; ended child processes can be waited for; new files are writable by their
// owner alone; and no variable changes how the shell runs a command.
void reset_inherited_state();
