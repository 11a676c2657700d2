// The adapter vendor's command-line interface: where it is, and its command lines.
#pragma once

#include "run/base/shell_command.h"

#include <initializer_list>
#include <string_view>

// The fixed path of the CLI; it is never looked for elsewhere.
extern const char* const hbacmd_path;

// Whether the CLI can be run: it is installed (else errno has the reason) or simulated.
bool hbacmd_available();

// Waits while another run uses the CLI, and keeps the others waiting until the process ends: two
// runs at once would rewrite each other's reports, or flash the same adapter. Signals end the
// wait. A CLI that can't be opened for reading is used without taking turns. In simulate mode
// nothing is waited for. Returns false if another run uses the CLI and is not to be waited for.
bool take_turn();

// The command line that runs the CLI with `words`, each quoted where it needs to
// be, its output in `file`; `lead` and `tail` frame it.
ShellCommand hbacmd_command(std::string_view lead, std::initializer_list<std::string_view> words,
                            Output output, std::string_view file, std::string_view tail);
