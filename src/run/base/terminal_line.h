// What the tool waits for, told to whoever watches it at a terminal.
#pragma once

#include <cstddef>
#include <string_view>

// Shows a line on standard error while it lives, and wipes it at its end. Nothing
// is shown when standard error is no terminal (a file and a pipe never see it), when
// another job has the terminal, or when the messages are hidden, as in a debug run.
class TerminalLine {
public:
    explicit TerminalLine(std::string_view text);
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;
    ~TerminalLine();

private:
    std::size_t length_ = 0; // 0: nothing is shown
};
