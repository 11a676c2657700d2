// The diagnostic writer. All messages of the tool go through it, but for the refusals of the
// conditions file's identifiers and of a too large number, which go straight to standard error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

inline std::int32_t VerboseLevel = 1;       // 0 to 6: how much standard output shows
inline std::int32_t DebugLevel = 0;         // 0 to 6: how much a debug run records
inline std::int32_t PrintDebugOnScreen = 1; // 0 or 1: whether the screen may be used at all

// The longest message that is written, without its terminating NUL.
constexpr std::size_t message_length_max = 4095;

// Separators of the messages.
constexpr const char* divider =
    "---------+---------+---------+---------+---------+---------+---------+---------+";
constexpr const char* star_divider =
    "*********+*********+*********+*********+*********+*********+*********+*********+";

// Writes `text` unchanged where the levels and the screen switch send it: standard output, standard
// error or `stream` (may be null). Returns 1 when it was written, 0 when it was hidden.
int PrintDebug(std::int32_t level, const char* text, std::FILE* stream);

// Opens the log of a debug run, emptied, and sends the messages there from now on. A log that
// can't be opened is no error: the run goes on without one.
void open_debug_log(const char* path);

// True when the verbose or the debug level is above `level`: the stricter gate
// that some messages have beside their own level.
inline bool any_level_above(std::int32_t level) {
    return VerboseLevel > level || DebugLevel > level;
}

// Formats a message, cut to message_length_max characters, and hands it to
// PrintDebug. Nothing is formatted when the levels hide it.
[[gnu::format(printf, 2, 3)]] void message(std::int32_t level, const char* format, ...);
