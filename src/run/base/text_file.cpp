#include "run/base/text_file.h"

#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

// Opens a regular file, as open(2) does but without waiting, and reads its `status`. Returns null
// when the file can't be opened or is something else (a directory, a FIFO).
TextFile open_regular_file(const char* path, int flags, mode_t mode, struct stat& status) {
    const int descriptor = open(path, flags | O_CLOEXEC | O_NONBLOCK, mode);
    if (descriptor < 0) {
        return nullptr;
    }
    TextFile file(fdopen(descriptor, (flags & O_WRONLY) != 0 ? "w" : "r"));
    if (file == nullptr) {
        close(descriptor);
        throw std::bad_alloc();
    }
    const bool regular = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    return regular ? std::move(file) : nullptr;
}

} // namespace

TextFile open_text_file(const char* path) {
    struct stat status {};
    return open_regular_file(path, O_RDONLY, 0, status);
}

TextFile create_private_file(const char* path) {
    struct stat status {};
    TextFile file = open_regular_file(path, O_WRONLY | O_CREAT | O_NOFOLLOW, 0600, status);
    const bool own = file != nullptr && status.st_nlink == 1 && status.st_uid == geteuid() &&
                     fchmod(fileno(file.get()), 0600) == 0 && ftruncate(fileno(file.get()), 0) == 0;
    return own ? std::move(file) : nullptr;
}
