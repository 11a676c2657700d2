#include "inventory/vendor_cli.h"

#include "run/base/settings.h"
#include "run/base/terminal_line.h"

#include <cerrno>
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

namespace {

void wait_for_lock(int descriptor) {
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return;
    }
    static_cast<void>(std::fflush(nullptr));
    const TerminalLine line("another run of cnatool");
    while (flock(descriptor, LOCK_EX) != 0 && errno == EINTR) {
    }
}

// Whether the CLI has another file by now, as after an upgrade during the wait.
bool replaced(int descriptor) {
    struct stat opened {};
    struct stat installed {};
    return fstat(descriptor, &opened) == 0 && stat(hbacmd_path, &installed) == 0 &&
           (opened.st_dev != installed.st_dev || opened.st_ino != installed.st_ino);
}

} // namespace

bool hbacmd_available() {
    struct stat status {};
    return active_option_simulate != 0 || stat(hbacmd_path, &status) == 0;
}

void take_turn() {
    if (active_option_simulate != 0) {
        return;
    }
    // The CLI's own file is the lock: one for the machine, and nothing to create. It
    // stays open to the end of the process, and out of its children: a daemon that
    // the CLI leaves behind must not keep every later run waiting.
    static int descriptor = -1;
    do {
        if (descriptor >= 0) {
            close(descriptor);
        }
        descriptor = open(hbacmd_path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        if (descriptor < 0) {
            return;
        }
        wait_for_lock(descriptor);
    } while (replaced(descriptor));
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
