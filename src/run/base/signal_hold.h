// Deferring signals while something must not be broken off.
#pragma once

#include <csignal>

// While it lives, every signal that can be held is deferred. At its end a deferred signal takes
// effect, after the messages written so far have been flushed.
class SignalHold {
public:
    SignalHold();
    SignalHold(const SignalHold&) = delete;
    SignalHold& operator=(const SignalHold&) = delete;
    ~SignalHold();

    // The signal mask of before, which a command that is run meanwhile starts with.
    [[nodiscard]] const sigset_t& mask_before() const { return before_; }

private:
    sigset_t before_{};
};
