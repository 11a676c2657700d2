#include "run/base/terminal_line.h"

#include <cstdio>
#include <string>
#include <unistd.h>

namespace {

// A longer line could wrap, and only the last line of the screen can be erased.
constexpr std::size_t length_max = 79;

bool watched() {
    return terminal_lines_enabled && isatty(STDERR_FILENO) == 1 &&
           tcgetpgrp(STDERR_FILENO) == getpgrp();
}

void write_line(const std::string& text) {
    std::fprintf(stderr, "\r%s\r", text.c_str());
    std::fflush(stderr);
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
