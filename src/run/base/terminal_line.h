// What the program is waiting for, shown to someone who watches it at a terminal.
#pragma once

#include <string_view>

// Whether lines are shown at all. A program sets it once it has read its command line.
inline bool terminal_lines_enabled = false;

// Shows a line on standard error while it lives, and erases it at its end. Nothing is shown
// if standard error is no terminal (a file and a pipe never get it) or if another job has the
// terminal.
class TerminalLine {
public:
    explicit TerminalLine(std::string_view text);
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;
    ~TerminalLine();

private:
    int length_ = 0; // 0: nothing is shown
};
