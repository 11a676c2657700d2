// Texts as JSON.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A string; null for an empty text. Bytes that are no UTF-8 are replaced, so that any reader takes
// it.
std::string json_text(std::string_view text);

// A list of strings on one line.
std::string json_list(const std::vector<std::string>& texts);

// An object on one line, of keys with JSON values.
using JsonMember = std::pair<std::string, std::string>;
std::string json_object(const std::vector<JsonMember>& members);
