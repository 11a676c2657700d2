// The library's functions that the unit tests can let fail.
#pragma once

#include <climits>

inline int records_left = INT_MAX; // made before there is no memory for one
inline bool reading_fails = false; // a file that was read seems to have ended with an error
