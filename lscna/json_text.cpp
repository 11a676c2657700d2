#include "lscna/json_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>

namespace {

// The length of the UTF-8 character that a text begins with; 0 when it begins with none.
std::size_t character_length(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) {
        return 1;
    }
    // The leading ones of the first byte count the bytes of the character.
    const auto length = static_cast<std::size_t>(std::countl_one(lead));
    if (length < 2 || length > 4 || length > text.size()) {
        return 0;
    }
    unsigned code = lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1)) {
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80) {
            return 0;
        }
        code = code << 6U | (static_cast<unsigned char>(c) & 0x3FU);
    }
    constexpr std::array<unsigned, 5> least = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= least[length] && code <= 0x10FFFF && !surrogate ? length : 0;
}

} // namespace

std::string json_text(std::string_view text) {
    if (text.empty()) {
        return "null";
    }
    std::string json = "\"";
    while (!text.empty()) {
        const std::size_t length = character_length(text);
        const auto first = static_cast<unsigned char>(text.front());
        if (length == 0) {
            json += "\\ufffd";
        } else if (first < 0x20 || first == 0x7F) {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", first);
            json += escape.data();
        } else {
            json += first == '"' || first == '\\' ? "\\" : "";
            json += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return json + "\"";
}

std::string json_list(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ", ") + json_text(text);
    }
    return "[" + list + "]";
}

std::string json_object(const std::vector<JsonMember>& members) {
    std::string object;
    for (const auto& [key, value] : members) {
        object += (object.empty() ? "" : ", ") + json_text(key) + ": " + value;
    }
    return "{ " + object + " }";
}
