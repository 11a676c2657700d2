// Texts that are put together.
#pragma once

#include <string>
#include <vector>

// As printf, into a text.
[[gnu::format(printf, 1, 2)]] std::string format(const char* format, ...);

// "a, b and c"
std::string join(const std::vector<std::string>& items);
