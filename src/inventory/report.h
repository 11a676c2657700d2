// The text reports of the vendor CLI: having one made in the working directory,
// and reading its "Label: value" lines into a record.
#pragma once

#include "inventory/hba_info.h"
#include "run/base/text.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

// The inventory's own result for a report that can't be opened.
constexpr std::int32_t report_not_opened = 51;

// The path of the report at which the inventory ended; empty: it has come to its end.
inline std::string unread_report;

// The path of a report in the working directory, and of one port's, which is named after its
// serial number and function.
std::string report_path(const char* name);
std::string report_path(const hba_info& port, const char* name);

// Shows and runs the CLI's command line of `words`, framed by `lead` and `tail`, which makes the
// report at `path`; `progress` is shown at a terminal meanwhile. Returns the raw status, as
// run_command does; -1 also for a path that leads out of the working directory.
std::int32_t make_report(const char* lead, std::initializer_list<std::string_view> words,
                         const std::string& path, const char* tail, std::string progress);

// Opens the report of a command that returned `status` and hands each line to `take_line`.
// Returns RET_OK, or report_not_opened, with a message, for a report of an earlier run, for one
// outside of the working directory, and for one that can't be opened or can't be read to its end;
// the lines read until then have been handed over.
std::int32_t read_report(const std::string& path, std::int32_t status,
                         const std::function<void(char* line)>& take_line);

// The first of a report's labels, rows with a `text`, that `line` begins with, or null. Comparing
// the first characters before the whole saves a run with many ports a tenth of its time.
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
