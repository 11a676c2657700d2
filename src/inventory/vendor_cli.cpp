#include "inventory/vendor_cli.h"

#include "run/settings.h"
#include "run/signal_hold.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <spawn.h>
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

// Starts the shell for a command that nothing may break off. Some shells clear
// the mask that they inherit, so it gets a session of its own, out of reach of the
// terminal and of the tool's process group, and ignores what comes all the same, a
// closed pipe included.
pid_t start_unbroken(const char* text) {
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        for (const int signal : SignalHold::signals) {
            static_cast<void>(std::signal(signal, SIG_IGN));
        }
        execl("/bin/sh", "sh", "-c", text, static_cast<char*>(nullptr));
        _exit(127);
    }
    return child;
}

// Starts the shell for any other command; spawning costs less than a fork. The
// child reacts to a closed pipe in the default way, which the tool does not.
pid_t start(const std::string& text) {
    char shell[] = "sh";
    char option[] = "-c";
    std::string command = text;
    char* words[] = {shell, option, command.data(), nullptr};
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGPIPE);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    pid_t child = 0;
    const int error = posix_spawn(&child, "/bin/sh", nullptr, &attributes, words, environ);
    posix_spawnattr_destroy(&attributes);
    return error == 0 ? child : -1;
}

// The library's system() would do, but that it makes the tool deaf to Ctrl-C
// while a report is taken.
std::int32_t run_shell(const std::string& text) {
    const pid_t child = signals_held() ? start_unbroken(text.c_str()) : start(text);
    if (child < 0) {
        return -1;
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
    return run_shell(command.text);
}
