#include "run/base/regular_file.h"

#include <fcntl.h>
#include <unistd.h>

int open_regular_file(const char* path, int flags, mode_t mode, struct stat& status) {
    // What others may have put there is neither waited for nor made a terminal.
    const int descriptor = open(path, flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode);
    if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(descriptor);
        return -1;
    }
    return descriptor;
}
