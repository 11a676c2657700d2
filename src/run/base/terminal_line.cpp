#include "run/base/terminal_line.h"

#include <cstdio>
#include <string>
#include <unistd.h>

namespace {

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
        length_ = text.size();
        write_line(std::string(text));
    }
}

TerminalLine::~TerminalLine() {
    if (length_ > 0) {
        write_line(std::string(length_, ' '));
    }
}
