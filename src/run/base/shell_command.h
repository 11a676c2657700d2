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

// The result of a command that was not run.
constexpr std::int32_t not_run = -1;

// Makes a command's output file ready (prepare_output), runs the command through the shell and
// waits for it. A signal that ends the tool ends the command too; under a `hold` no signal
// reaches the command. Returns the raw wait status; not_run when the command is too long, must
// not write to its file or can't be started. In simulate mode nothing is started and the
// status is 0: no other function starts a process.
std::int32_t run_command(const ShellCommand& command, const SignalHold* hold = nullptr);
