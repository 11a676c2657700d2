#include "run/base/shell_command.h"

#include "run/base/settings.h"
#include "run/base/signal_hold.h"
#include "run/base/terminal_line.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::string_view plain_characters = "abcdefghijklmnopqrstuvwxyz"
                                              "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "0123456789%+,-./:=@_";

// Starts the shell for a command that nothing may break off. Some shells clear
// the mask that they inherit, so it gets a session of its own, out of reach of the
// terminal and of the tool's process group, and ignores what comes all the same, a
// closed pipe and a limit of file size or time included. Returns -1 when there is
// no process to be had.
pid_t start_deferred(const char* text) {
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        for (const int signal : SignalHold::signals) {
            static_cast<void>(std::signal(signal, SIG_IGN));
        }
        static_cast<void>(std::signal(SIGXCPU, SIG_IGN));
        execl("/bin/sh", "sh", "-c", text, static_cast<char*>(nullptr));
        _exit(127);
    }
    return child;
}

// Starts the shell for any other command; spawning costs less than a fork. The
// child reacts in the default way to what the tool (prepare_process) and downloads
// ignore. Returns -1 when it can't be started.
pid_t start_interruptible(const std::string& text) {
    char shell[] = "sh";
    char option[] = "-c";
    std::string command = text;
    char* words[] = {shell, option, command.data(), nullptr};
    sigset_t defaults;
    sigemptyset(&defaults);
    for (const int signal : {SIGPIPE, SIGXFSZ, SIGXCPU}) {
        sigaddset(&defaults, signal);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    pid_t child = 0;
    const int error = posix_spawn(&child, "/bin/sh", nullptr, &attributes, words, environ);
    posix_spawnattr_destroy(&attributes);
    return error == 0 ? child : -1;
}

// Returns the raw status, -1 when it can't be had.
std::int32_t wait_for(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return -1;
        }
    }
    return status;
}

} // namespace

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

// Not by the library's system(): that makes the tool deaf to Ctrl-C while a report
// is made, and lets the terminal reach a download.
std::int32_t run_command(const ShellCommand& command, Interruption interruption) {
    if (active_option_simulate != 0) {
        return 0;
    }
    if (!command.runnable || command.text.size() > command_length_max ||
        !prepare_output(command.output_path, command.output)) {
        return -1;
    }
    // Whoever watches the run sees what has been said before the command starts.
    static_cast<void>(std::fflush(nullptr));
    const TerminalLine line(command.awaited);
    const pid_t child = interruption == Interruption::deferred
                            ? start_deferred(command.text.c_str())
                            : start_interruptible(command.text);
    return child < 0 ? -1 : wait_for(child);
}
