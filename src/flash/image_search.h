// Finding the firmware and BIOS images.
#pragma once

#include "inventory/hba_info.h"
#include "run/base/settings.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Whether there is something at `path`.
bool path_exists(const std::string& path);

// The directory with a trailing "/" in which the images of the port's adapter are looked for: its
// model's own or the common one.
std::string image_directory(const hba_info& port);

// The paths of the files in `directory` (with a trailing "/") that match `pattern`, in directory
// order: a name that begins with it or, for a pattern "*.EXT", a name whose last extension begins
// with EXT. Nothing matches an empty pattern. Hidden files and paths of path_capacity characters
// or more are passed over.
std::vector<std::string> matching_images(const std::string& directory, std::string_view pattern);

// Finds the first of matching_images(). Returns RET_OK with its path in `result`, or
// RET_FW_NOT_AVAILABLE with `result` unchanged.
std::int32_t FindFlashImage(const char* directory, char (&result)[path_capacity],
                            const char* pattern);
