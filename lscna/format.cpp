#include "lscna/format.h"

#include <cstdarg>
#include <cstdio>

std::string format(const char* format, ...) {
    va_list values;
    va_start(values, format);
    va_list again;
    va_copy(again, values);
    std::string text(static_cast<std::size_t>(std::vsnprintf(nullptr, 0, format, values)), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    va_end(values);
    return text;
}

std::string join(const std::vector<std::string>& items) {
    std::string list;
    for (std::size_t i = 0; i < items.size(); ++i) {
        list += (i == 0 ? "" : i + 1 < items.size() ? ", " : " and ") + items[i];
    }
    return list;
}
