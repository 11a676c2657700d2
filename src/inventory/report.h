// The text reports of the vendor CLI: taking one into a file of the working
// directory, and reading its "Label: value" lines into a record.
#pragma once

#include "inventory/hba_info.h"
#include "run/diagnostics.h"
#include "run/return_codes.h"
#include "run/text_file.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

// The inventory's own result for a report that can't be opened.
constexpr std::int32_t report_not_opened = 51;

// A report file of the working directory.
struct ReportFile {
    std::string path;
    bool inside = true; // false: the name could lead out of the working directory
};

ReportFile report_file(const char* name);

// The file of one port's report, named after its serial number and function.
ReportFile report_file(const hba_info& port, const char* name);

// Traces and runs the CLI with `words`, redirected into `file`; `lead` and
// `tail` frame the command line. Returns the raw status (see run_command).
std::int32_t take_report(const char* lead, std::initializer_list<std::string_view> words,
                         const ReportFile& file, const char* tail);

// Opens a report; when it can't be opened, says so and returns null.
TextFile open_report(const ReportFile& file);

// Opens a report and hands each line to `read_one`, which returns false when
// memory is exhausted. Returns RET_OK, report_not_opened or RET_MEMALLOC_FAIL.
template <class ReadOne>
std::int32_t read_report(const ReportFile& file, ReadOne read_one) {
    const TextFile report = open_report(file);
    if (report == nullptr) {
        return report_not_opened;
    }
    LineBuffer line;
    while (read_line(report, line)) {
        if (!read_one(line)) {
            return RET_MEMALLOC_FAIL;
        }
    }
    return RET_OK;
}

// One row of a report's table: lines that begin with `text`, and not with
// `unless`, belong to it.
template <class Record>
struct Label {
    std::string_view text;
    std::string_view unless{};
    std::span<char> (*field)(Record&) = nullptr; // null: a header
    const char* trace = nullptr;                 // null: not traced
    std::uint32_t Record::*number = nullptr;     // where the hexadecimal value goes
    bool starts = false;                         // begins a new record
};

// The first row that `line` belongs to, or null.
template <class Record>
const Label<Record>* find_label(std::span<const Label<Record>> labels, const char* line) {
    for (const auto& label : labels) {
        if (*line == label.text.front() && begins_with(line, label.text) &&
            (label.unless.empty() || !begins_with(line, label.unless))) {
            return &label;
        }
    }
    return nullptr;
}

// The cleaned text from two characters after the line's first colon; empty when
// the line ends before, null when it has no colon. Changes the line.
char* line_value(char* line);

// Stores a line's value in its label's field and number; a line without a colon
// stores nothing. The number is read from the whole value, so that a cut text
// never stands for another adapter. Then traces the field's content.
template <class Record>
void store_and_trace(const Label<Record>& label, char* line, Record& record) {
    const std::span<char> field = label.field(record);
    if (char* value = line_value(line)) {
        copy_text(field, value);
        if (label.number != nullptr) {
            record.*label.number = static_cast<std::uint32_t>(string2int(value, 16));
        }
    }
    if (label.trace != nullptr) {
        message(6, label.trace, field.data());
    }
}
