#include "run/base/signal_hold.h"

#include <cstdio>

namespace {

bool signal_waits() {
    sigset_t waiting{};
    sigpending(&waiting);
    for (int signal = 1; signal < NSIG; ++signal) {
        if (sigismember(&waiting, signal) == 1) {
            return true;
        }
    }
    return false;
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
    // A signal that waits may end us: flush first.
    if (signal_waits()) {
        std::fflush(nullptr);
    }
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}
