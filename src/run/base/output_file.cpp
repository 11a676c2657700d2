#include "run/base/output_file.h"

#include "run/base/regular_file.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

bool has_one_name(const struct stat& status) {
    return S_ISREG(status.st_mode) && status.st_nlink == 1;
}

// Whether opening failed for a reason that the shell may tell of: it was not because
// of a link, a FIFO or a device.
bool may_be_left_to_shell(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) != 0 || S_ISDIR(status.st_mode) || has_one_name(status);
}

} // namespace

bool prepare_output(const std::string& path, Output output) {
    struct stat status {};
    const int descriptor =
        open_regular_file(path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW, 0666, status);
    if (descriptor < 0) {
        return may_be_left_to_shell(path);
    }
    const bool writable = has_one_name(status);
    if (writable && output == Output::rewritten) {
        // Another owner's mode can't be changed. A file that can't be emptied is left to
        // the shell, which empties it once more.
        const mode_t mode = status.st_mode & 07777U & ~static_cast<mode_t>(S_IWGRP | S_IWOTH);
        static_cast<void>(fchmod(descriptor, mode));
        [[maybe_unused]] const int result = ftruncate(descriptor, 0);
    }
    close(descriptor);
    return writable;
}
