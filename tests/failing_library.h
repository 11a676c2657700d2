// The library's functions that the unit tests can let fail.
#pragma once

inline bool memory_is_exhausted = false; // there is none for another record
inline bool reading_fails = false;       // a file that was read seems to have ended with an error
