#include "run/base/environment.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

void prepare_process() {
    // The lowest free descriptor is taken, so the loop ends after the third.
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    if (descriptor > STDERR_FILENO) {
        close(descriptor);
    }
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGCHLD, SIG_DFL));
}
