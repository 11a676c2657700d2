// What the process has been handed down by whoever started it.
#pragma once

// Makes the run independent of it: closed standard streams are opened, so that no
// report takes their place; a reader that goes away, or a limit of file size, does
// not end the run; ended child processes can be waited for; what is written is
// writable by its owner alone; and no variable changes what the shell does with a
// command.
void prepare_process();
