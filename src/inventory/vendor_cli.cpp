#include "inventory/vendor_cli.h"

#include "run/settings.h"

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

// Spawn attributes that give the child the default reaction to a closed pipe,
// which the tool itself ignores.
class ShellAttributes {
public:
    ShellAttributes() {
        posix_spawnattr_init(&attributes_);
        sigset_t defaults;
        sigemptyset(&defaults);
        sigaddset(&defaults, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes_, &defaults);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF);
    }
    ShellAttributes(const ShellAttributes&) = delete;
    ShellAttributes& operator=(const ShellAttributes&) = delete;
    ~ShellAttributes() { posix_spawnattr_destroy(&attributes_); }
    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

private:
    posix_spawnattr_t attributes_{};
};

// The standard library's system() would do, but for two things: it makes the
// tool deaf to Ctrl-C while a report is taken, and lets the child inherit the
// ignored SIGPIPE.
std::int32_t run_shell(std::string text) {
    char shell[] = "sh";
    char option[] = "-c";
    char* arguments[] = {shell, option, text.data(), nullptr};
    const ShellAttributes attributes;
    pid_t child = 0;
    if (posix_spawn(&child, "/bin/sh", nullptr, attributes.get(), arguments, environ) != 0) {
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
