// Finding the firmware and BIOS images.
#pragma once

#include "run/base/settings.h"

#include <cstdint>

// Looks in `directory` (with a trailing "/") for the first file, in directory
// order, that matches `pattern`: a name that begins with it or, for a pattern
// "*.EXT", a name whose last extension begins with EXT. Returns RET_OK with the
// file's path in `result`, or RET_FW_NOT_AVAILABLE with `result` unchanged.
// Hidden files and paths that are too long for `result` are passed over.
std::int32_t FindFlashImage(const char* directory, char (&result)[path_capacity],
                            const char* pattern);
