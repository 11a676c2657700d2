// The adapter vendor's command-line interface, and the one place that starts
// it. The values of a command line come from outside the tool, most of them from
// reports that another program wrote, so each goes through shell_word first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The fixed path of the CLI; it is never looked for elsewhere.
extern const char* const hbacmd_path;

// Whether the CLI can be run: it is installed (errno tells why not) or simulated.
bool hbacmd_available();

// `value` as the shell reads it as one plain word: as it stands when it is
// harmless or empty, else in single quotes.
std::string shell_word(std::string_view value);

// A command line as it is traced and run.
struct ShellCommand {
    std::string text;
    bool runnable = true; // false: it must not be run, whatever it says
};

// Runs a command through the shell and waits for it. Returns the raw wait
// status; -1 when the command is longer than a command line may be, is not
// runnable or can't be started. In simulate mode nothing is started and the
// status is 0: no other function starts a process.
std::int32_t run_command(const ShellCommand& command);
