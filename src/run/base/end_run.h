// The one door out of a run.
#pragma once

#include <cstdint>

// Ends the process with `status`, after what has been said is written. It stands
// alone in its file so that a program that makes many runs in one process can
// bring another.
[[noreturn]] void end_run(std::int32_t status);
