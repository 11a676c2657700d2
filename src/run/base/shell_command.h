// Running commands through the shell: the one place that starts a process. Most
// values of a command line come from reports that another program wrote, so each
// goes through shell_word first.
#pragma once

#include "run/base/output_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// `value` as the shell reads it as one plain word: as it stands when it is
// harmless or empty, else in single quotes.
std::string shell_word(std::string_view value);

// A command line as it is traced and run.
struct ShellCommand {
    std::string text;
    std::string output_path; // the file that the text redirects its output into
    Output output = Output::rewritten;
    bool runnable = true; // false: it must not be run, whatever it says
    std::string awaited;  // what a terminal shows while the command runs
};

// A command that is longer is not run.
constexpr std::size_t command_length_max = 1023;

// Whether what would end the tool (Ctrl-C, a hang-up, a polite kill) also ends
// the command that runs, or has to wait for the command's end.
enum class Interruption { allowed, deferred };

// Makes a command's output file ready (prepare_output), runs the command through
// the shell and waits for it. Returns the raw wait status; -1 when the command is
// too long, is not runnable, must not write to its file or can't be started.
// In simulate mode nothing is started and the status is 0: no other function
// starts a process. A command whose interruption is deferred is out of reach of
// signals; a SignalHold keeps them from the tool itself.
std::int32_t run_command(const ShellCommand& command, Interruption interruption);
