#include "run/base/terminal_line.h"

#include "run/base/diagnostics.h"

#include <cstdio>
#include <string>
#include <unistd.h>

namespace {

// A longer line could wrap, and what has wrapped can't be wiped.
constexpr std::size_t length_max = 79;

bool watched() {
    return PrintDebugOnScreen != 0 && VerboseLevel != 0 && isatty(STDERR_FILENO) == 1 &&
           tcgetpgrp(STDERR_FILENO) == getpgrp();
}

void write_line(const std::string& text) {
    static_cast<void>(std::fprintf(stderr, "\r%s\r", text.c_str()));
    static_cast<void>(std::fflush(stderr));
}

} // namespace

TerminalLine::TerminalLine(std::string_view text) {
    if (!text.empty() && watched()) {
        const std::string shown(text.substr(0, length_max));
        length_ = shown.size();
        write_line(shown);
    }
}

TerminalLine::~TerminalLine() {
    if (length_ > 0) {
        write_line(std::string(length_, ' '));
    }
}
