// Keeping signals from breaking what must not be broken.
#pragma once

#include <csignal>

// While it lives, Ctrl-C, Ctrl-\, a hang-up of the terminal and a polite kill
// wait, and the command that is run meanwhile (run_command) is kept from them. At
// its end the messages are flushed and a signal that came takes effect.
class SignalHold {
public:
    static constexpr int signals[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};

    SignalHold();
    SignalHold(const SignalHold&) = delete;
    SignalHold& operator=(const SignalHold&) = delete;
    ~SignalHold();

private:
    sigset_t before_{};
};
