// The words of the command line that set the diagnostic levels. They are read
// before all others, so that the levels hold for every message about those.
#pragma once

#include <span>
#include <string_view>

constexpr int level_min = 0;
constexpr int level_max = 6;

// The words after the program name.
using Words = std::span<char*>;

bool is_silent_word(std::string_view word);
bool is_verbose_word(std::string_view word);
bool is_debug_word(std::string_view word);

// Hides every message.
void silence();

// Turns a leading "/" of every word into "-", and hides every message when one
// of them asks for silence.
void normalize_words(Words words);

// Sets the levels from the verbose and debug words. A bad level, or both kinds
// together, end the process with RET_BAD_CALL.
void read_levels(Words words);
