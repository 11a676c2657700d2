#include "run/base/signal_hold.h"

#include <cstdio>

SignalHold::SignalHold() {
    // A reader who is slow to take the messages must not make a signal wait.
    static_cast<void>(std::fflush(nullptr));
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : signals) {
        sigaddset(&held, signal);
    }
    sigprocmask(SIG_BLOCK, &held, &before_);
}

SignalHold::~SignalHold() {
    static_cast<void>(std::fflush(nullptr));
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}
