// Running commands through the shell: the one place that starts a process. Most values of a command
// line come from reports that another program wrote, so each goes through shell_word first.
#pragma once

#include "run/base/output_file.h"
#include "run/base/signal_hold.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// `value` as the shell reads it as one plain word: unchanged when it is harmless or empty, else
// in single quotes.
std::string shell_word(std::string_view value);

// A command line as it is traced and run.
struct ShellCommand {
    std::string text;
    std::string output_path; // the file that the text redirects its output into
    Output output = Output::rewritten;
    std::string shown_at_terminal; // while the command runs
};

// A longer command is not run.
constexpr std::size_t command_length_max = 1023;

// Makes the output file ready (prepare_output), runs the command through the shell and waits for
// it. Ctrl-C reaches the command too; under a `hold` it is out of reach of the terminal and of the
// tool's process group. Returns the raw wait status; -1 when the command was not run: its output
// must not be written, it is too long, or no process could be made. In simulate mode nothing is
// touched or started and the status is 0.
std::int32_t run_command(const ShellCommand& command, const SignalHold* hold = nullptr);
