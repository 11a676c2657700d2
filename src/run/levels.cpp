#include "run/levels.h"

#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <cstddef>
#include <cstdint>

namespace {

bool contains(std::string_view word, std::string_view text) {
    return word.find(text) != std::string_view::npos;
}

// The level that follows a level word as its `value` (null: no word follows).
// `name` and `letter` are what the refusal, which ends the run, calls it.
std::int32_t read_level(std::string_view word, char* value, const char* name, char letter) {
    if (word.size() == 2 && value != nullptr && *value != '\0' && *value != '-') {
        const std::int32_t level = string2int(value, 10);
        if (level >= level_min && level <= level_max) {
            return level;
        }
    }
    message(1, "Please enter a valid %s-level (-%c <%s-level>; min %d - max %d)!\n", name, letter,
            name, level_min, level_max);
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
    set_levels(0, 0, 0);
}

void normalize_words(Words words) {
    for (char* word : words) {
        if (*word == '/') {
            *word = '-';
        }
        if (is_silent_word(word)) {
            silence();
        }
    }
}

void read_levels(Words words) {
    bool verbose_given = false;
    bool debug_given = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        char* const next = i + 1 < words.size() ? words[i + 1] : nullptr;
        if (is_silent_word(words[i])) {
            silence();
        } else if (is_debug_word(words[i])) {
            DebugLevel = read_level(words[i], next, "debug", 'd');
            debug_given = true;
            ++i;
        } else if (is_verbose_word(words[i])) {
            VerboseLevel = read_level(words[i], next, "verbose", 'v');
            PrintDebugOnScreen = VerboseLevel > 0 ? 1 : 0;
            verbose_given = true;
            ++i;
        }
    }
    if (verbose_given && debug_given) {
        set_levels(0, 1, 1);
        message(1, "\nUsing options %s and %s simultaneously is not supported!\n", "--debug", "-v");
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
