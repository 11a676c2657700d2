// Opening files in directories that others may write to.
#pragma once

#include <sys/stat.h>

// Opens a regular file with the flags of open(2) and, where it is created, the mode,
// and tells its `status`; never waits, as opening a FIFO would. Returns the
// descriptor, to be closed by the caller; -1 when the file can't be opened or is
// something else (a directory, a device).
int open_regular_file(const char* path, int flags, mode_t mode, struct stat& status);
