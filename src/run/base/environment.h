// What the process has been handed down by whoever started it.
#pragma once

// Makes the run independent of it: closed standard streams are opened, so that no
// report takes their place; a reader that goes away does not end the run; and
// ended child processes can be waited for.
void prepare_process();
