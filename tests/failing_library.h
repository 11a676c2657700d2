// The library's functions that the unit tests can let fail.
#pragma once

#include <climits>

inline int records_left = INT_MAX; // for so many more records there is memory
inline bool reading_fails = false; // a file that was read seems to have ended with an error
