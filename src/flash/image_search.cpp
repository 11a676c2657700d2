#include "flash/image_search.h"

#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <cerrno>
#include <cstddef>
#include <dirent.h>
#include <memory>
#include <new>
#include <sys/stat.h>

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

bool path_exists(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0;
}

std::string image_directory(const hba_info& port) {
    const std::string_view model = port.model;
    // Text from a report must not lead out of the firmware directory.
    const bool inside = !model.empty() && model.find('/') == std::string_view::npos &&
                        model != "." && model != "..";
    const std::string own = std::string(pHBAFirmwarePath) + port.model;
    return inside && path_exists(own) ? own + "/" : pHBAFirmwarePath;
}

std::vector<std::string> matching_images(const std::string& directory, std::string_view pattern) {
    std::vector<std::string> images;
    errno = 0;
    const Directory entries(pattern.empty() ? nullptr : opendir(directory.c_str()));
    if (entries == nullptr) {
        if (errno == ENOMEM) {
            throw std::bad_alloc();
        }
        return images;
    }
    while (const dirent* const entry = readdir(entries.get())) {
        const std::string_view name = entry->d_name;
        if (directory.size() + name.size() < path_capacity && matches(name, pattern)) {
            images.push_back(directory + entry->d_name);
        }
    }
    return images;
}

std::int32_t FindFlashImage(const char* directory, char (&result)[path_capacity],
                            const char* pattern) {
    const std::vector<std::string> images = matching_images(directory, pattern);
    if (images.empty()) {
        return RET_FW_NOT_AVAILABLE;
    }
    copy_text(result, images.front());
    return RET_OK;
}
