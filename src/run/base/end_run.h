// The single exit of a run.
#pragma once

#include <cstdint>

// Flushes the messages and ends the process with `status`. It is alone in its file so that
// another program can define its own.
[[noreturn]] void end_run(std::int32_t status);
