#include "run/base/output_file.h"

#include "run/base/regular_file.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

bool has_one_name(const struct stat& status) {
    return S_ISREG(status.st_mode) && status.st_nlink == 1;
}

// Whether it is no link or the like that keeps the file from being opened.
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
        // Where that fails, the shell's own attempt tells.
        const mode_t mode = status.st_mode & 07777U & ~static_cast<mode_t>(S_IWGRP | S_IWOTH);
        [[maybe_unused]] const bool emptied =
            ftruncate(descriptor, 0) == 0 && fchmod(descriptor, mode) == 0;
    }
    close(descriptor);
    return writable;
}
