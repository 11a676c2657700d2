// The adapter vendor's command-line interface: where it is, and its command lines.
#pragma once

#include "run/base/shell_command.h"

#include <initializer_list>
#include <string>
#include <string_view>

// The fixed path of the CLI; it is never looked for elsewhere.
extern const char* const hbacmd_path;

// Whether the CLI can be run: it is installed (errno tells why not) or simulated.
bool hbacmd_available();

// What becomes of the file that the CLI's output goes into.
enum class Output { rewritten, appended };

// The command line that runs the CLI with `words`, each quoted where it needs to
// be, its output in `file`; `lead` and `tail` frame it.
ShellCommand hbacmd_command(std::string_view lead, std::initializer_list<std::string_view> words,
                            Output output, std::string_view file, std::string_view tail);
