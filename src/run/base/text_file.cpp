#include "run/base/text_file.h"

#include "run/base/regular_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace {

// The stream of a descriptor, which it takes over.
TextFile stream_of(int descriptor, const char* mode) {
    TextFile file(descriptor < 0 ? nullptr : fdopen(descriptor, mode));
    if (file == nullptr && descriptor >= 0) {
        close(descriptor);
    }
    return file;
}

} // namespace

TextFile open_text_file(const char* path) {
    struct stat status {};
    return stream_of(open_regular_file(path, O_RDONLY, 0, status), "r");
}

TextFile open_text_file_without_links(const char* path) {
    struct stat status {};
    TextFile file = stream_of(open_regular_file(path, O_RDONLY | O_NOFOLLOW, 0, status), "r");
    return status.st_nlink == 1 ? std::move(file) : nullptr;
}

TextFile create_private_file(const char* path) {
    struct stat status {};
    const int descriptor = open_regular_file(path, O_WRONLY | O_CREAT | O_NOFOLLOW, 0600, status);
    TextFile file = stream_of(descriptor, "w");
    // A run that is still going on keeps its file.
    const bool own = file != nullptr && status.st_nlink == 1 && status.st_uid == geteuid() &&
                     (flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) &&
                     fchmod(descriptor, 0600) == 0 && ftruncate(descriptor, 0) == 0;
    return own ? std::move(file) : nullptr;
}
