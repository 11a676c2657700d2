#include "run/diagnostics.h"

#include <array>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The log of a debug run; null without one.
std::FILE* debug_stream = nullptr;

bool hidden(std::int32_t level, const std::FILE* stream) {
    return (stream == nullptr && PrintDebugOnScreen == 0) ||
           (level > VerboseLevel && level > DebugLevel);
}

} // namespace

int PrintDebug(std::int32_t level, const char* text, std::FILE* stream) {
    if (hidden(level, stream)) {
        return 0;
    }
    std::FILE* target = stream;
    if (PrintDebugOnScreen != 0 && VerboseLevel != 0) {
        target = stdout;
    } else if (PrintDebugOnScreen != 0 && DebugLevel != 0) {
        target = stderr;
    }
    if (target == nullptr) {
        return 0;
    }
    // A full disk or a closed pipe must not change what the run does.
    static_cast<void>(std::fprintf(target, "%.*s", static_cast<int>(message_length_max), text));
    return 1;
}

void open_debug_log(const char* path) {
    // The directory may be writable by others: nothing of theirs is written to.
    const int descriptor =
        open(path, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        return;
    }
    struct stat status {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink == 1 &&
        status.st_uid == geteuid() && fchmod(descriptor, 0600) == 0 &&
        ftruncate(descriptor, 0) == 0) {
        debug_stream = fdopen(descriptor, "w");
    }
    if (debug_stream == nullptr) {
        close(descriptor);
    }
}

bool message_shown(std::int32_t level) {
    return !hidden(level, debug_stream);
}

void message(std::int32_t level, const char* format, ...) {
    if (!message_shown(level)) {
        return;
    }
    std::array<char, message_length_max + 1> text;
    va_list values;
    va_start(values, format);
    static_cast<void>(std::vsnprintf(text.data(), text.size(), format, values));
    va_end(values);
    static_cast<void>(PrintDebug(level, text.data(), debug_stream));
}
