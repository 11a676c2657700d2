#include "lscna/conditions_notes.h"

#include "conditions/columns.h"
#include "conditions/conditions_file.h"
#include "lscna/format.h"
#include "run/base/text_file.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

constexpr std::size_t piece_length = sizeof(LineBuffer) - 1;

// A mistake of the whole file, noted at the first line that shows it.
struct FileMistake {
    bool (*is_in)(std::string_view line);
    const char* text;
};

constexpr FileMistake file_mistakes[] = {
    {[](std::string_view line) { return line.find('\0') != std::string_view::npos; },
     "NUL bytes, as in UTF-16: save the file as plain text"},
    {[](std::string_view line) { return line.starts_with("\xEF\xBB\xBF"); },
     "a byte order mark, which the first value of a record would begin with: save the file without "
     "it"},
    {[](std::string_view line) { return line.ends_with("\r\n"); },
     "a carriage return, which becomes part of the last value: save the file with LF line ends"},
    {[](std::string_view line) { return line.size() > piece_length; },
     "a line of more than 1023 characters is read in pieces, each as a line: shorten it"},
};

// What a column is called, how long its values can be, and whether a longer one is refused.
struct Room {
    const char* column;
    std::size_t length_max;
    bool is_refused;
};

Room room_of(std::size_t column) {
    if (column < conditions_columns.size()) {
        const ConditionsColumn& part = conditions_columns[column];
        const bool is_text = part.number == nullptr;
        return {part.name, is_text ? part.field.length_max : piece_length,
                is_text && part.refused_name != nullptr};
    }
    const SubsystemColumn& part =
        subsystem_columns[(column - conditions_columns.size()) % subsystem_columns.size()];
    return {part.name, part.is_model_list ? piece_length : part.field.length_max,
            part.refused_name != nullptr};
}

// The mistakes of one record.
std::vector<std::string> examine_record(const char* line, bool& usable) {
    constexpr std::size_t ids_end = 6;
    const std::vector<std::string> values = column_values(line);
    std::vector<std::string> mistakes;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const char* const value = values[i].c_str();
        const Room room = room_of(i);
        if (i < conditions_columns.size() && conditions_columns[i].number != nullptr &&
            !is_accepted_number(value, 16)) {
            usable = false;
            mistakes.push_back(
                format("%s '%s' is not hexadecimal: cnatool refuses the file", room.column, value));
        } else if (values[i].size() > room.length_max && room.is_refused) {
            usable = false;
            mistakes.push_back(
                format("%s '%s' is longer than %zu characters: cnatool refuses the file",
                       room.column, value, room.length_max));
        } else if (values[i].size() > room.length_max) {
            mistakes.push_back(
                format("%s '%s' is cut to %zu characters", room.column, value, room.length_max));
        }
    }
    const bool blank = line[std::strspn(line, " \t\"\r\n")] == '\0';
    if (!blank && std::strchr(line, '|') == nullptr) {
        return {
            "no bar: columns are separated by bars, tabs do not count; a comment begins with #"};
    }
    if (!blank && values.size() < ids_end) {
        mistakes.emplace_back("a record without all four ids, in the columns 2 to 5");
    }
    return mistakes;
}

// The mistakes of one line, up to a NUL byte, as it is read.
std::vector<std::string> examine_line(const char* line, bool& usable) {
    if (!is_comment(line)) {
        return examine_record(line, usable);
    }
    const char* const sign = std::strchr(line, '#');
    const char* const bar = std::strchr(line, '|');
    if (sign != nullptr && bar != nullptr && bar < sign && line[std::strspn(line, " \t")] != '#') {
        return {"a number sign makes the whole line a comment: put the note on a line of its own"};
    }
    return {};
}

std::string read_whole(const TextFile& file) {
    std::string text;
    char block[4096];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file.get())) {
        text.append(block, count);
    }
    return text;
}

} // namespace

ConditionsNotes examine_conditions(const char* path) {
    ConditionsNotes notes;
    const TextFile file = open_text_file(path);
    if (file == nullptr) {
        return {{{format("%s: can't be opened: write it, see FC_HBA_Conditions.txt(5)", path)}},
                false};
    }
    const std::string text = read_whole(file);
    std::vector<FileMistake> possible(std::begin(file_mistakes), std::end(file_mistakes));
    int number = 0;
    for (std::size_t start = 0, end = 0; start < text.size(); start = end) {
        end = std::min(text.find('\n', start), text.size() - 1) + 1;
        const std::string line = text.substr(start, end - start);
        ++number;
        std::vector<std::string> mistakes;
        std::erase_if(possible, [&](const FileMistake& mistake) {
            const bool found = mistake.is_in(line);
            if (found) {
                mistakes.emplace_back(mistake.text);
            }
            return found;
        });
        for (std::size_t piece = 0; piece < line.size(); piece += piece_length) {
            const auto found = examine_line(line.substr(piece, piece_length).c_str(), notes.usable);
            mistakes.insert(mistakes.end(), found.begin(), found.end());
        }
        for (const std::string& mistake : mistakes) {
            notes.notes.push_back({format("%s:%d: %s", path, number, mistake.c_str())});
        }
    }
    return notes;
}
