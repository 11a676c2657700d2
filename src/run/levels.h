// The words of the command line that set the diagnostic levels. They are read before all
// others, so that the levels apply to every message about the others.
#pragma once

#include <span>
#include <string_view>

// The words after the program name.
using Words = std::span<char*>;

bool is_silent_word(std::string_view word);
bool is_verbose_word(std::string_view word);
bool is_debug_word(std::string_view word);

// Hides every message.
void silence();

// Turns a leading "/" of every word into "-".
void normalize_words(Words words);

// Sets the levels from the verbose, debug and silent words. A bad level ends the run with
// RET_BAD_CALL; whether that is shown the levels decide that were set before it, which any word
// with --silent has set to 0 at first. Both levels together are refused and always shown.
void read_levels(Words words);
