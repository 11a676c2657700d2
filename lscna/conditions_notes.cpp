#include "lscna/conditions_notes.h"

#include "conditions/columns.h"
#include "conditions/conditions_file.h"
#include "lscna/format.h"
#include "run/base/text.h"
#include "run/base/text_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

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

// Why cnatool refuses the value of a column; empty when it does not.
template <class Column>
std::string too_long(const Column& column, const std::string& value) {
    const bool cut = value.size() > column.field.length_max;
    return cut && column.refused_name != nullptr
               ? format("%s '%s' is longer than %zu characters", column.name, value.c_str(),
                        column.field.length_max)
               : "";
}

std::string refusal(std::size_t index, const std::string& value) {
    if (index >= conditions_columns.size()) {
        const std::size_t position = (index - conditions_columns.size()) % subsystem_columns.size();
        return too_long(subsystem_columns[position], value);
    }
    const ConditionsColumn& column = conditions_columns[index];
    if (column.number == nullptr) {
        return too_long(column, value);
    }
    return is_accepted_number(value, 16)
               ? ""
               : format("%s '%s' is not hexadecimal", column.name, value.c_str());
}

// The mistakes of one record. `usable` becomes false at one for which cnatool refuses the file.
std::vector<std::string> examine_record(const char* line, bool& usable) {
    const std::vector<std::string> values = column_values(line);
    std::vector<std::string> mistakes;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (const std::string mistake = refusal(i, values[i]); !mistake.empty()) {
            mistakes.push_back(mistake);
            usable = false;
        }
    }
    constexpr std::size_t ids_end = 6;
    constexpr std::size_t first_models = conditions_columns.size() + 1;
    for (std::size_t i = first_models; i < values.size(); i += subsystem_columns.size()) {
        if (values[i].find(", ") != std::string::npos ||
            values[i].find(" ,") != std::string::npos) {
            mistakes.push_back(format("a blank beside a comma becomes part of a model in '%s': "
                                      "remove it",
                                      values[i].c_str()));
        }
    }
    const bool blank = line[std::strspn(line, " \t\"\r\n")] == '\0';
    if (!blank && std::strchr(line, '|') == nullptr) {
        mistakes = {"no bar: columns are separated by bars, tabs do not count; a comment begins "
                    "with #"};
    } else if (!blank && values.size() < ids_end) {
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
        return {"a number sign makes the whole line a comment, so it is no record: put the note on "
                "a line of its own"};
    }
    return {};
}

// The lines of the file with their line ends.
std::vector<std::string> read_lines(const TextFile& file) {
    std::vector<std::string> lines;
    bool line_begins = true;
    for (int c = 0; (c = std::getc(file.get())) != EOF; line_begins = c == '\n') {
        if (line_begins) {
            lines.emplace_back();
        }
        lines.back() += static_cast<char>(c);
    }
    return lines;
}

} // namespace

bool examine_conditions(const char* path, Notes& notes) {
    const TextFile file = open_text_file(path);
    if (file == nullptr) {
        add_note(notes,
                 format("%s: can't be opened: write it, see FC_HBA_Conditions.txt(5)", path));
        return true;
    }
    const std::vector<std::string> lines = read_lines(file);
    const auto note = [&](std::size_t index, const std::string& mistake) {
        add_note(notes, format("%s:%zu: %s", path, index + 1, mistake.c_str()));
    };
    for (const FileMistake& mistake : file_mistakes) {
        const auto first = std::ranges::find_if(lines, mistake.is_in);
        if (first != lines.end()) {
            note(static_cast<std::size_t>(first - lines.begin()), mistake.text);
        }
    }
    bool usable = true;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t piece = 0; piece < lines[i].size(); piece += piece_length) {
            const std::string text = lines[i].substr(piece, piece_length);
            for (const std::string& mistake : examine_line(text.c_str(), usable)) {
                note(i, mistake);
            }
        }
    }
    return usable;
}
