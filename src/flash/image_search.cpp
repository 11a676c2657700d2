#include "flash/image_search.h"

#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <span>
#include <string_view>

namespace {

struct DirectoryCloser {
    void operator()(DIR* directory) const { closedir(directory); }
};
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

bool matches(std::string_view name, std::string_view pattern) {
    if (name.starts_with('.')) {
        return false;
    }
    if (!pattern.starts_with("*.")) {
        return name.starts_with(pattern);
    }
    const std::size_t dot = name.rfind('.');
    return dot != std::string_view::npos && name.substr(dot).starts_with(pattern.substr(1));
}

} // namespace

std::int32_t FindFlashImage(const char* directory, char (&result)[path_capacity],
                            const char* pattern) {
    if (*pattern == '\0') {
        return RET_FW_NOT_AVAILABLE;
    }
    const Directory entries(opendir(directory));
    if (entries == nullptr) {
        return RET_FW_NOT_AVAILABLE;
    }
    const std::size_t length = std::strlen(directory);
    while (const dirent* const entry = readdir(entries.get())) {
        const std::string_view name = entry->d_name;
        if (length + name.size() < path_capacity && matches(name, pattern)) {
            copy_text(result, directory);
            copy_text(std::span(result).subspan(length), name);
            return RET_OK;
        }
    }
    return RET_FW_NOT_AVAILABLE;
}
