#include "run/base/signal_hold.h"

#include <cstdio>
#include <cstring>
#include <poll.h>
#include <unistd.h>

SignalHold::SignalHold() {
    // A slow reader of the messages must not make a signal wait.
    std::fflush(nullptr);
    sigset_t held;
    sigfillset(&held);
    // The end of the command is not a signal to wait for: nobody acts on it.
    sigdelset(&held, SIGCHLD);
    sigprocmask(SIG_BLOCK, &held, &before_);
}

SignalHold::~SignalHold() {
    sigset_t waiting{};
    const sigset_t none{};
    sigpending(&waiting);
    // Only for a signal that waits, and a reader who still reads: others would make the tool deaf.
    pollfd reader{STDOUT_FILENO, POLLOUT, 0};
    if (std::memcmp(&waiting, &none, sizeof none) != 0 && poll(&reader, 1, 1000) == 1) {
        std::fflush(nullptr);
    }
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}
