#include "run/directories.h"

#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/text.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace {

std::string current_directory() {
    std::error_code error;
    const std::filesystem::path directory = std::filesystem::current_path(error);
    if (error) {
        message(1, "\n\nCannot determine the current directory: %s\n\n", error.message().c_str());
        end_run(RET_BAD_CALL);
    }
    return directory;
}

void append(std::span<char> path, std::string_view text) {
    const std::size_t used = std::strlen(path.data());
    copy_text(path.subspan(used), text);
}

} // namespace

void set_directories(const char* directory) {
    if (std::strlen(directory) > directory_length_max) {
        message(1, "\n\nPath '%s' is too long (at most %zu characters)!\n\n", directory,
                directory_length_max);
        end_run(RET_BAD_CALL);
    }
    copy_text(pHBAConditionsPath, directory);
    copy_text(pHBAFirmwarePath, directory);
    copy_text(pHBAWorkingPath, directory);
}

void resolve_directories(const char* typed_program) {
    if (pHBAConditionsPath[0] == '\0') {
        const std::string typed = typed_program;
        const std::size_t slash = typed.rfind('/');
        set_directories(slash == std::string::npos ? current_directory().c_str()
                                                   : typed.substr(0, slash).c_str());
    }
    append(pHBAWorkingPath, "/");
    append(pHBAFirmwarePath, "/");
    append(pHBAConditionsPath, "/");
    append(pHBAConditionsPath, conditions_file_name);
}

void resolve_temporary_directory() {
    const char* const directory = std::getenv("TMPDIR");
    const bool given = directory != nullptr && *directory != '\0';
    copy_text(TEMPDIR_BUFFER, given ? directory : "/tmp");
    if (directory == nullptr) {
        message(3, "env: Environment variable TMPDIR is not set.\n");
    } else if (!given) {
        message(3, "env: Environment variable TMPDIR is empty.\n");
    } else {
        message(3, "env: Temporary directory is: %s.\n", TEMPDIR_BUFFER);
    }
}
