// The library's functions that the unit tests can let fail.
#pragma once

inline bool memory_is_exhausted = false; // no memory is given out
inline bool reading_fails = false;       // a file that was read seems to have ended with an error
