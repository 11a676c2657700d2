#include "run/base/terminal_line.h"

#include <cstdio>
#include <unistd.h>

namespace {

// Whether standard error is a terminal and no other job has it.
bool watched() {
    return terminal_lines_enabled && tcgetpgrp(STDERR_FILENO) == getpgrp();
}

} // namespace

TerminalLine::TerminalLine(std::string_view text) {
    if (!text.empty() && watched()) {
        length_ = static_cast<int>(text.size());
        std::fprintf(stderr, "\r%.*s\r", length_, text.data());
    }
}

TerminalLine::~TerminalLine() {
    if (length_ > 0) {
        std::fprintf(stderr, "\r%*s\r", length_, "");
    }
}
