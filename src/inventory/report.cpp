#include "inventory/report.h"

#include "inventory/vendor_cli.h"
#include "run/base/diagnostics.h"
#include "run/base/output_file.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/shell_command.h"
#include "run/base/text_file.h"

#include <cstring>
#include <utility>

namespace {

// Whether a report would be outside of the working directory: its name holds text from another
// report. The slash of "n/a" is let through: the command is run for a port without a serial number,
// too, and its report is never read.
bool leads_outside(std::string_view path) {
    std::string_view name = path.substr(std::strlen(pHBAWorkingPath) + 1);
    if (name.starts_with("n/a")) {
        name.remove_prefix(3);
    }
    return name.find('/') != std::string_view::npos;
}

// Whether the report is an earlier run's: its command was not run, and it can't be emptied.
bool is_stale(const std::string& path, std::int32_t status) {
    return status == -1 && !prepare_output(path, Output::rewritten);
}

} // namespace

std::string report_path(const char* name) {
    return std::string(pHBAWorkingPath) + "/" + name;
}

std::string report_path(const hba_info& port, const char* name) {
    return std::string(pHBAWorkingPath) + "/" + port.serial_no + "_" + port.pci_function + "_" +
           name;
}

std::int32_t make_report(const char* lead, std::initializer_list<std::string_view> words,
                         const std::string& path, const char* tail, std::string progress) {
    ShellCommand command = hbacmd_command(lead, words, Output::rewritten, path, tail);
    command.shown_at_terminal = std::move(progress);
    message(6, "%s", command.text.c_str());
    return active_option_simulate == 0 && leads_outside(path) ? -1 : run_command(command);
}

std::int32_t read_report(const std::string& path, std::int32_t status,
                         const std::function<void(char* line)>& take_line) {
    const bool readable = !leads_outside(path) && !is_stale(path, status);
    const TextFile report = readable ? open_text_file(path.c_str()) : TextFile();
    LineBuffer line;
    while (report != nullptr && read_line(report, line)) {
        take_line(line);
    }
    if (report == nullptr || read_failed(report)) {
        unread_report = path;
        message(1, "Error: Could not open file %s\n", path.c_str());
        return report_not_opened;
    }
    return RET_OK;
}

char* line_value(char* line) {
    char* const colon = std::strchr(line, ':');
    if (colon == nullptr) {
        return nullptr;
    }
    return cleanString(colon + (colon[1] == '\0' ? 1 : 2));
}
