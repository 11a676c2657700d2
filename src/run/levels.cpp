#include "run/levels.h"

#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

constexpr std::int32_t level_max = 6;

bool contains(std::string_view word, std::string_view text) {
    return word.find(text) != std::string_view::npos;
}

// The level that follows a level word as its `value` (null: no word follows). A bad one ends
// the run with the refusal.
std::int32_t read_level(std::string_view word, char* value, const char* refusal) {
    if (word.size() == 2 && value != nullptr && *value != '\0' && *value != '-') {
        const std::int32_t level = string2int(value, 10);
        if (level >= 0 && level <= level_max) {
            return level;
        }
    }
    message(1, "%s", refusal);
    end_run(RET_BAD_CALL);
}

} // namespace

bool is_silent_word(std::string_view word) {
    return contains(word, "--silent");
}

bool is_verbose_word(std::string_view word) {
    return word.starts_with("-v") && !contains(word, "-vid") && !contains(word, "-vn") &&
           !contains(word, "--version");
}

bool is_debug_word(std::string_view word) {
    return (word.starts_with("-d") || word.starts_with("--debug")) && !contains(word, "-dev");
}

void silence() {
    DebugLevel = 0;
    VerboseLevel = 0;
    PrintDebugOnScreen = 0;
}

void normalize_words(Words words) {
    for (char* word : words) {
        if (*word == '/') {
            *word = '-';
        }
    }
}

void read_levels(Words words) {
    if (std::ranges::any_of(words, is_silent_word)) {
        silence();
    }
    bool verbose_given = false;
    bool debug_given = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        char* const next = i + 1 < words.size() ? words[i + 1] : nullptr;
        if (is_silent_word(words[i])) {
            silence();
        } else if (is_debug_word(words[i])) {
            DebugLevel =
                read_level(words[i], next,
                           "Please enter a valid debug-level (-d <debug-level>; min 0 - max 6)!\n");
            debug_given = true;
            ++i;
        } else if (is_verbose_word(words[i])) {
            VerboseLevel = read_level(
                words[i], next,
                "Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!\n");
            PrintDebugOnScreen = VerboseLevel > 0 ? 1 : 0;
            verbose_given = true;
            ++i;
        }
    }
    if (verbose_given && debug_given) {
        DebugLevel = 0;
        VerboseLevel = 1;
        PrintDebugOnScreen = 1;
        message(1, "\nUsing options --debug and -v simultaneously is not supported!\n");
        end_run(RET_BAD_CALL);
    }
    if (debug_given) {
        VerboseLevel = 0;
        PrintDebugOnScreen = 0;
    }
    if (verbose_given) {
        PrintDebugOnScreen = 1;
    }
}
