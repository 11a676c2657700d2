#include "run/base/shell_command.h"

#include "run/base/settings.h"
#include "run/base/terminal_line.h"

#include <csignal>
#include <cstdio>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::string_view plain_characters = "abcdefghijklmnopqrstuvwxyz"
                                              "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "0123456789%+,-./:=@_";

// Signals that a command ignores under a hold, although it runs in a session of its own, out of
// reach of the terminal: some CLIs react to them in the middle of a download, and a limit of
// processor time would end one.
constexpr int ignored_under_hold[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP, SIGXCPU};

// In the child: becomes the shell.
[[noreturn]] void become_shell(const char* text, const SignalHold* hold) {
    if (hold == nullptr) {
        // The tool ignores these two, and ignored signals survive exec.
        for (const int signal : {SIGPIPE, SIGXFSZ}) {
            std::signal(signal, SIG_DFL);
        }
    } else {
        setsid();
        for (const int signal : ignored_under_hold) {
            std::signal(signal, SIG_IGN);
        }
        sigprocmask(SIG_SETMASK, &hold->mask_before(), nullptr);
    }
    execl("/bin/sh", "sh", "-c", text, static_cast<char*>(nullptr));
    _exit(127);
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

// The library's system() would make the tool deaf to Ctrl-C while a report is made, and let the
// terminal reach a download.
std::int32_t run_command(const ShellCommand& command, const SignalHold* hold) {
    if (active_option_simulate != 0) {
        return 0;
    }
    // The report of a command that is too long is emptied, too: nobody reads an earlier run's.
    if (!prepare_output(command.output_path, command.output) ||
        command.text.size() > command_length_max) {
        return -1;
    }
    // Someone who watches the run sees the messages before the command starts.
    std::fflush(nullptr);
    const TerminalLine line(command.shown_at_terminal);
    const pid_t child = fork();
    if (child == 0) {
        become_shell(command.text.c_str(), hold);
    }
    int status = 0;
    return child < 0 || waitpid(child, &status, 0) < 0 ? -1 : status;
}
