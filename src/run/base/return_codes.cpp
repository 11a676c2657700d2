#include "run/base/return_codes.h"

#include <array>
#include <cstdio>

namespace {

constexpr ReturnCodeName codes[] = {
#define CNATOOL_ROW(name, value) {#name, value},
    CNATOOL_RETURN_CODES(CNATOOL_ROW)
#undef CNATOOL_ROW
};

} // namespace

std::span<const ReturnCodeName> return_codes() {
    return codes;
}

std::string returnMessage() {
    std::string text = "\n   Valid return codes\n\n";
    for (const auto& code : codes) {
        std::array<char, 64> line{};
        std::snprintf(line.data(), line.size(), "   %-40s%2d\n", code.name, code.value);
        text += line.data();
    }
    return text + "\n";
}
