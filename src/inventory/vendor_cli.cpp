#include "inventory/vendor_cli.h"

#include "run/base/settings.h"
#include "run/base/terminal_line.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// The tests are linked with another path. Neither an option nor the environment
// may redirect a tool that runs as root.
#ifndef CNATOOL_HBACMD
#define CNATOOL_HBACMD "/usr/sbin/ocmanager/hbacmd"
#endif
const char* const hbacmd_path = CNATOOL_HBACMD;

bool hbacmd_available() {
    struct stat status {};
    return active_option_simulate != 0 || stat(hbacmd_path, &status) == 0;
}

bool take_turn() {
    if (active_option_simulate != 0) {
        return true;
    }
    // The CLI's own file is the lock: there is one on the machine, and nothing to create. It
    // stays open to the end of the process, but not in its children: a daemon that the CLI
    // leaves running must not keep every later run waiting.
    const int descriptor = open(hbacmd_path, O_RDONLY | O_CLOEXEC);
    if (descriptor < 0 || flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return true;
    }
    if (active_option_no_wait != 0) {
        return false;
    }
    std::fflush(nullptr);
    const TerminalLine line("waiting for another run");
    flock(descriptor, LOCK_EX);
    return true;
}

ShellCommand hbacmd_command(std::string_view lead, std::initializer_list<std::string_view> words,
                            Output output, std::string_view file, std::string_view tail) {
    ShellCommand command;
    command.output_path = file;
    command.output = output;
    command.text.append(lead).append(hbacmd_path);
    for (const std::string_view word : words) {
        command.text.append(" ").append(shell_word(word));
    }
    command.text.append(output == Output::rewritten ? " > " : " >> ");
    command.text.append(shell_word(file)).append(tail);
    return command;
}
