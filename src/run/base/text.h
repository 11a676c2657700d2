// Text helpers of every parser.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

// Stores `text` in a fixed-capacity field, cut to what fits beside the
// terminating NUL. The only way text gets into a record.
inline void copy_text(std::span<char> field, std::string_view text) {
    const std::size_t length = std::min(text.size(), field.size() - 1);
    std::memcpy(field.data(), text.data(), length);
    field[length] = '\0';
}

// A text field of a kind of record, for tables that say where a value goes.
template <class Record>
struct TextField {
    std::span<char> (*of)(Record& record);
    std::size_t length_max; // of a text in it
};

template <auto Member, class Record, std::size_t Size>
constexpr TextField<Record> make_text_field(char (Record::* /*member*/)[Size]) {
    return {[](Record& record) { return std::span<char>(record.*Member); }, Size - 1};
}

// The text field that `Member`, a pointer to member, names.
template <auto Member>
constexpr auto text_field = make_text_field<Member>(Member);

inline bool begins_with(const char* text, std::string_view prefix) {
    return std::strncmp(text, prefix.data(), prefix.size()) == 0;
}

// Whether a text is empty or consists of blanks only.
inline bool is_blank(const char* text) {
    return text[std::strspn(text, " ")] == '\0';
}

// The items of `list` between its separators, empty ones included: one more than
// there are separators.
std::vector<std::string_view> split(std::string_view list, char separator);

// Reads `text` as a number in `base` (10 or 16), after cutting trailing blanks and newlines off it
// in place. Returns its lower 32 bits, negated after a minus sign; -1 for an empty text; for one
// that is no number -1, or 1 after a minus sign. Callers refuse every negative result. A number of
// more than 64 bits ends the run with 1 and the library's message on standard error.
std::int32_t string2int(char* text, int base);

// Whether string2int gives 0 or more.
bool is_accepted_number(std::string_view text, int base);

// Turns quotes, tabs and newlines of `text` into blanks and cuts trailing
// blanks, in place. Returns the first character that is not a blank.
char* cleanString(char* text);
