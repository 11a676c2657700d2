#include "run/base/output_file.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

bool prepare_output(const std::string& path, Output output) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        return errno == ENOENT;
    }
    const bool plain_file = S_ISREG(status.st_mode) && status.st_nlink == 1;
    if (output == Output::appended) {
        return plain_file;
    }
    return (plain_file ? truncate(path.c_str(), 0) : unlink(path.c_str())) == 0;
}
