#include "run/base/signal_hold.h"

#include <cstdio>

namespace {

bool signal_waits() {
    sigset_t waiting{};
    sigpending(&waiting);
    bool any = false;
    for (int signal = 1; signal < NSIG; ++signal) {
        any = any || sigismember(&waiting, signal) == 1;
    }
    return any;
}

} // namespace

SignalHold::SignalHold() {
    // While signals are blocked, a full pipe would delay Ctrl-C: flush now.
    std::fflush(nullptr);
    sigset_t held;
    sigfillset(&held);
    // SIGCHLD is ignored anyway and would look pending.
    sigdelset(&held, SIGCHLD);
    sigprocmask(SIG_BLOCK, &held, &before_);
}

SignalHold::~SignalHold() {
    // Flush only if a signal is about to end us.
    if (signal_waits()) {
        std::fflush(nullptr);
    }
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}
