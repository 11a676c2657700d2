#include "run/base/diagnostics.h"

#include "run/base/text_file.h"

#include <array>
#include <cstdarg>

namespace {

// The log of a debug run; null without one.
TextFile debug_log;

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
    std::fprintf(target, "%.*s", static_cast<int>(message_length_max), text);
    return 1;
}

void open_debug_log(const char* path) {
    debug_log = create_private_file(path);
}

void message(std::int32_t level, const char* format, ...) {
    if (hidden(level, debug_log.get())) {
        return;
    }
    std::array<char, message_length_max + 1> text;
    va_list values;
    va_start(values, format);
    std::vsnprintf(text.data(), text.size(), format, values);
    va_end(values);
    PrintDebug(level, text.data(), debug_log.get());
}
