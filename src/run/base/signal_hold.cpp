#include "run/base/signal_hold.h"

#include <cstdio>
#include <cstring>

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
    // Without one, a reader who has stopped reading must not keep later signals waiting.
    if (std::memcmp(&waiting, &none, sizeof none) != 0) {
        std::fflush(nullptr);
    }
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}
