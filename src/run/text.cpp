#include "run/text.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace {

// Cuts the characters of `cut` off the end of `text`, in place.
void cut_trailing(char* text, std::string_view cut) {
    std::size_t length = std::strlen(text);
    while (length > 0 && cut.find(text[length - 1]) != std::string_view::npos) {
        text[--length] = '\0';
    }
}

} // namespace

std::int32_t string2int(char* text, int base) {
    cut_trailing(text, "\n ");
    if (*text == '\0') {
        return -1;
    }
    const char* digits = text + std::strspn(text, " ");
    const bool negative = *digits == '-';
    if (negative) {
        ++digits;
    }
    char* end = nullptr;
    errno = 0;
    unsigned long value = std::strtoul(digits, &end, base);
    if (errno == ERANGE) {
        std::perror("strtoul");
        std::exit(1);
    }
    if (*end != '\0') {
        value = ~0UL;
    }
    const auto low = static_cast<std::uint32_t>(value);
    return static_cast<std::int32_t>(negative ? 0U - low : low);
}

char* cleanString(char* text) {
    for (char* c = text; *c != '\0'; ++c) {
        if (*c == '"' || *c == '\t' || *c == '\n') {
            *c = ' ';
        }
    }
    cut_trailing(text, " ");
    return text + std::strspn(text, " ");
}
