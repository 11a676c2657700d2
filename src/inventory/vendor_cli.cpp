#include "inventory/vendor_cli.h"

#include "run/base/settings.h"

#include <sys/stat.h>

// The tests are linked with another path. Neither an option nor the environment
// may redirect a tool that runs as root.
#ifndef CNATOOL_HBACMD
#define CNATOOL_HBACMD "/usr/sbin/ocmanager/hbacmd"
#endif
const char* const hbacmd_path = CNATOOL_HBACMD;

bool hbacmd_available() {
    struct stat status {};
    return active_option_simulate != 0 || stat(hbacmd_path, &status) == 0;
}

ShellCommand hbacmd_command(std::string_view lead, std::initializer_list<std::string_view> words,
                            Output output, std::string_view file, std::string_view tail) {
    ShellCommand command{std::string(lead)};
    command.text += hbacmd_path;
    for (const std::string_view word : words) {
        command.text.append(" ").append(shell_word(word));
    }
    command.text.append(output == Output::rewritten ? " > " : " >> ");
    command.text.append(shell_word(file)).append(tail);
    return command;
}
