// The process itself, whatever its caller has handed down.
#pragma once

// Makes the run independent of what it inherited: closed standard streams are
// opened, so that no report takes their place; a reader that goes away does not
// end the run; and ended child processes can be waited for.
void prepare_process();
