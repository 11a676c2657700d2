#include "run/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

TextFile open_text_file(const char* path) {
    // Without O_NONBLOCK, opening a FIFO would wait for its writer.
    const int descriptor = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        return nullptr;
    }
    struct stat status {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        if (std::FILE* file = fdopen(descriptor, "r")) {
            return TextFile(file);
        }
    }
    close(descriptor);
    return nullptr;
}
