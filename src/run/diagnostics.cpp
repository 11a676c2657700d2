#include "run/diagnostics.h"

#include <array>
#include <cstdarg>

namespace {

// Where debug output goes besides the screen: nowhere yet.
std::FILE* const debug_stream = nullptr;

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
