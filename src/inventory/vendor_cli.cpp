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

// Whether the signals that would end the run are held back.
bool signals_held() {
    sigset_t held;
    sigprocmask(SIG_BLOCK, nullptr, &held);
    return sigismember(&held, SIGINT) == 1;
}

// Becomes the shell. When signals are held back, nothing may break the command
// off: some shells clear the mask that they inherit, so it gets a session of its
// own, out of reach of the terminal and of the tool's process group, and ignores
// what comes all the same, a closed pipe included.
[[noreturn]] void become_shell(const char* text) {
    if (signals_held()) {
        setsid();
        for (const int signal : SignalHold::signals) {
            static_cast<void>(std::signal(signal, SIG_IGN));
        }
    } else {
        // The tool itself ignores a closed pipe.
        static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
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
