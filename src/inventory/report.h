// The text reports of the vendor CLI: having one made in the working directory,
// and reading its "Label: value" lines into a record.
#pragma once

#include "inventory/hba_info.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

// The inventory's own result for a report that can't be opened.
constexpr std::int32_t report_not_opened = 51;

// The path of the report at which the inventory ended; empty: it has come to its end.
inline std::string unread_report;

// A report's file in the working directory.
struct ReportFile {
    std::string path;
    bool usable; // false: it is neither written nor read
};

ReportFile report_file(const char* name);

// The file of one port's report, named after its serial number and function; not usable when
// these could lead out of the working directory.
ReportFile report_file(const hba_info& port, const char* name);

// Shows and runs the CLI's command line of `words`, framed by `lead` and `tail`, which makes the
// report; `shown` is shown at a terminal meanwhile. Returns the raw status (see run_command).
// The file of a command that must not be run becomes unusable: its text is an earlier run's.
std::int32_t make_report(const char* lead, std::initializer_list<std::string_view> words,
                         ReportFile& file, const char* tail, std::string shown);

// Opens a report and hands each line to `read_one` up to the first result other than RET_OK, which
// it returns. Returns report_not_opened, with a message, when the file is not usable, can't be
// opened or can't be read to its end; the lines read until then have been handed over.
std::int32_t read_report(const ReportFile& file,
                         const std::function<std::int32_t(char* line)>& read_one);

// The first of a report's labels, rows with a `text`, that `line` begins with, or null. Comparing
// the first characters before the whole saves a run with many ports a tenth of its instructions.
template <class Label, std::size_t Count>
const Label* find_label(const Label (&labels)[Count], const char* line) {
    for (const Label& label : labels) {
        if (*line == label.text.front() && begins_with(line, label.text)) {
            return &label;
        }
    }
    return nullptr;
}

// The cleaned text from two characters after the line's first colon; empty when
// the line ends before, null when it has no colon. Changes the line.
char* line_value(char* line);
