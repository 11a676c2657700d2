#include "lscna/conditions_notes.h"

#include "conditions/columns.h"
#include "run/base/text_file.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

// What is known of the file while its lines are looked through.
struct Examination {
    const char* path;
    bool plain = true; // no NUL bytes: other mistakes are worth a note
    bool carriage_return_noted = false;
    int line = 0;
    ConditionsNotes notes{};

    void note(const std::string& text) {
        if (plain) {
            notes.texts.push_back(std::string(path) + ":" + std::to_string(line) + ": " + text);
        }
    }
};

// Notes a value that its field cuts. An identifier and a model list are read whole.
template <class Column, class Record>
void examine_length(const Column& column, Record& record, const std::string& value,
                    Examination& examination) {
    const std::size_t length_max = column.field(record).size() - 1;
    if (value.size() > length_max) {
        examination.note(std::string(column.name) + " '" + value + "' is cut to " +
                         std::to_string(length_max) + " characters");
    }
}

void examine_value(std::size_t index, const std::string& value, Examination& examination) {
    if (index >= columns.size()) {
        periphery_info_entry subsystem{};
        const SubsystemColumn& column =
            subsystem_columns[(index - columns.size()) % subsystem_columns.size()];
        if (column.whole_field == nullptr) {
            examine_length(column, subsystem, value, examination);
        }
        return;
    }
    fc_config_file_entry record{};
    const Column& column = columns[index];
    if (column.number == nullptr) {
        examine_length(column, record, value, examination);
    } else if (!is_accepted_number(value, 16)) {
        examination.notes.usable = false;
        examination.note(std::string(column.name) + " '" + value +
                         "' is not hexadecimal: correct it; cnatool refuses the file, so no "
                         "record is used here");
    }
}

void examine_record(const char* line, Examination& examination) {
    constexpr std::size_t ids_end = 6;
    const std::vector<std::string> values = column_values(line);
    const bool blank = std::strspn(line, " \t\"\r\n") == std::strlen(line);
    if (!blank && std::strchr(line, '|') == nullptr) {
        examination.note("no bar: a record has its columns between vertical bars, and a comment "
                         "begins with a number sign");
    } else if (!blank && values.size() < ids_end) {
        examination.note("a record without all four ids: give vendor, device, subvendor and "
                         "subdevice id in the columns 2 to 5");
    }
    for (std::size_t index = 0; index < values.size(); ++index) {
        examine_value(index, values[index], examination);
    }
}

// Looks at a line as the reader takes it, up to a NUL byte.
void examine_line(const char* line, Examination& examination) {
    const char* const sign = std::strchr(line, '#');
    if (!is_comment(line)) {
        examine_record(line, examination);
    } else if (sign != nullptr && std::string_view(line, sign).find('|') != std::string::npos &&
               line[std::strspn(line, " \t")] != '#') {
        examination.note("the number sign hides this record: remove it");
    }
}

void examine_bytes(std::string_view line, Examination& examination) {
    if (examination.line == 1 && line.starts_with(byte_order_mark)) {
        examination.note("a byte order mark, which becomes part of the first value: save the file "
                         "without it");
    }
    if (line.find('\0') != std::string_view::npos) {
        examination.note("NUL bytes, as in UTF-16: save the file as plain text");
        examination.plain = false;
    }
    if (!examination.carriage_return_noted && line.ends_with("\r\n")) {
        examination.carriage_return_noted = true;
        examination.note("a carriage return, which becomes part of the last value: save the file "
                         "with LF line ends");
    }
    if (line.size() >= sizeof(LineBuffer)) {
        examination.note("a line of more than " + std::to_string(sizeof(LineBuffer) - 1) +
                         " characters is read in pieces, each as a line of its own: shorten it");
    }
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
    const TextFile file = open_text_file(path);
    if (file == nullptr) {
        return {{std::string(path) + ": can't be opened: a check or flash ends with 15; write it "
                                     "as FC_HBA_Conditions.txt(5) describes"},
                false};
    }
    Examination examination{.path = path};
    const std::string text = read_whole(file);
    for (std::size_t start = 0, end = 0; start < text.size(); start = end) {
        end = std::min(text.find('\n', start), text.size() - 1) + 1;
        const std::string line = text.substr(start, end - start);
        ++examination.line;
        examine_bytes(line, examination);
        for (std::size_t piece = 0; piece < line.size(); piece += sizeof(LineBuffer) - 1) {
            examine_line(line.substr(piece, sizeof(LineBuffer) - 1).c_str(), examination);
        }
    }
    if (read_failed(file)) {
        examination.plain = true;
        examination.note("can't be read any further; cnatool refuses the file");
        examination.notes.usable = false;
    }
    return examination.notes;
}
