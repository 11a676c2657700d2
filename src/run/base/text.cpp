#include "run/base/text.h"

#include "run/base/end_run.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace {

// Cuts the characters of `cut` off the end of `text`, in place.
void cut_trailing(char* text, std::string_view cut) {
    std::size_t length = std::strlen(text);
    while (length > 0 && cut.find(text[length - 1]) != std::string_view::npos) {
        text[--length] = '\0';
    }
}

// The number that string2int gives; none for a value above 64 bits.
std::optional<std::int32_t> read_number(char* text, int base) {
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
        return std::nullopt;
    }
    if (*end != '\0') {
        value = ~0UL;
    }
    const auto low = static_cast<std::uint32_t>(value);
    return static_cast<std::int32_t>(negative ? 0U - low : low);
}

} // namespace

std::vector<std::string_view> split(std::string_view list, char separator) {
    std::vector<std::string_view> items;
    std::size_t start = 0;
    for (std::size_t end = list.find(separator); end != std::string_view::npos;
         end = list.find(separator, start)) {
        items.push_back(list.substr(start, end - start));
        start = end + 1;
    }
    items.push_back(list.substr(start));
    return items;
}

std::int32_t string2int(char* text, int base) {
    const std::optional<std::int32_t> number = read_number(text, base);
    if (!number) {
        std::fprintf(stderr, "strtoul: %s\n", std::strerror(ERANGE));
        end_run(1);
    }
    return *number;
}

bool is_accepted_number(std::string_view text, int base) {
    const std::optional<std::int32_t> number = read_number(std::string(text).data(), base);
    return number && *number >= 0;
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
