#include "inventory/vendor_cli.h"

#include "run/settings.h"
#include "run/signal_hold.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// The tests are linked with another path. Neither an option nor the environment
// may redirect a tool that runs as root.
#ifndef CNATOOL_HBACMD
#define CNATOOL_HBACMD "/usr/sbin/ocmanager/hbacmd"
#endif
const char* const hbacmd_path = CNATOOL_HBACMD;

namespace {

constexpr std::string_view plain_characters = "abcdefghijklmnopqrstuvwxyz"
                                              "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "0123456789%+,-./:=@_";

// Becomes the shell. It reacts to a closed pipe in the default way, which the
// tool itself does not; signals that are held back are ignored as well, since a
// shell may clear the mask that it inherits.
[[noreturn]] void become_shell(const char* text) {
    static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
    sigset_t held;
    sigprocmask(SIG_BLOCK, nullptr, &held);
    for (const int signal : SignalHold::signals) {
        if (sigismember(&held, signal) == 1) {
            static_cast<void>(std::signal(signal, SIG_IGN));
        }
    }
    execl("/bin/sh", "sh", "-c", text, static_cast<char*>(nullptr));
    _exit(127);
}

// The library's system() would do, but that it makes the tool deaf to Ctrl-C
// while a report is taken.
std::int32_t run_shell(const char* text) {
    const pid_t child = fork();
    if (child < 0) {
        return -1;
    }
    if (child == 0) {
        become_shell(text);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return -1;
        }
    }
    return status;
}

} // namespace

bool hbacmd_available() {
    struct stat status {};
    return active_option_simulate != 0 || stat(hbacmd_path, &status) == 0;
}

std::string shell_word(std::string_view value) {
    if (value.find_first_not_of(plain_characters) == std::string_view::npos) {
        return std::string(value);
    }
    std::string word = "'";
    for (const char c : value) {
        if (c == '\'') {
            word += R"('\'')";
        } else {
            word += c;
        }
    }
    return word + "'";
}

std::int32_t run_command(const ShellCommand& command) {
    if (active_option_simulate != 0) {
        return 0;
    }
    if (!command.runnable || command.text.size() >= path_capacity) {
        return -1;
    }
    // Whoever watches the run sees what has been said before the command starts.
    static_cast<void>(std::fflush(nullptr));
    return run_shell(command.text.c_str());
}
