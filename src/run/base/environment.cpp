#include "run/base/environment.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <initializer_list>
#include <sys/stat.h>
#include <unistd.h>

void reset_inherited_state() {
    // open() takes the lowest free one; above 2, all three are open.
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    if (descriptor > STDERR_FILENO) {
        close(descriptor);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGCHLD, SIG_DFL);
    umask(umask(0) | S_IWGRP | S_IWOTH);
    // Some shells take options from these: with noexec every command succeeds without being run.
    for (const char* const variable : {"SHELLOPTS", "BASHOPTS", "OPTIND"}) {
        unsetenv(variable);
    }
}
