// The end of a run where it stands.
#pragma once

#include <cstdint>

// Thrown to end the run with a status; the entry point of the program catches it.
struct RunEnd {
    std::int32_t status;
};

[[noreturn]] inline void end_run(std::int32_t status) {
    throw RunEnd{status};
}
