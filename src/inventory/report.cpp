#include "inventory/report.h"

#include "inventory/vendor_cli.h"
#include "run/base/diagnostics.h"
#include "run/base/settings.h"
#include "run/base/shell_command.h"
#include "run/base/text.h"
#include "run/base/text_file.h"

#include <cstring>
#include <utility>

ReportFile report_file(const char* name) {
    return {std::string(pHBAWorkingPath) + "/" + name, true};
}

ReportFile report_file(const hba_info& port, const char* name) {
    const std::string_view serial = port.serial_no;
    const std::string_view function = port.pci_function;
    std::string path = pHBAWorkingPath;
    path.append("/").append(serial).append("_").append(function).append("_").append(name);
    // The slash of "n/a" is let through: the command is run for a port without a serial number,
    // too, and its report is never read.
    const std::size_t first = serial_missing(port) ? 3 : 0;
    const bool inside = serial.find('/', first) == std::string_view::npos &&
                        function.find('/') == std::string_view::npos;
    return {std::move(path), inside};
}

std::int32_t make_report(const char* lead, std::initializer_list<std::string_view> words,
                         ReportFile& file, const char* tail, std::string shown) {
    ShellCommand command = hbacmd_command(lead, words, Output::rewritten, file.path, tail);
    command.shown_at_terminal = std::move(shown);
    message(6, "%s", command.text.c_str());
    file.usable = file.usable && make_ready(command);
    return file.usable || active_option_simulate != 0 ? run_command(command) : -1;
}

std::int32_t read_report(const ReportFile& file,
                         const std::function<std::int32_t(char* line)>& read_one) {
    const bool usable = file.usable && file.path.size() < path_capacity;
    const TextFile report = usable ? open_text_file(file.path.c_str()) : TextFile();
    LineBuffer line;
    while (report != nullptr && read_line(report, line)) {
        if (const std::int32_t result = read_one(line); result != RET_OK) {
            return result;
        }
    }
    if (report == nullptr || read_failed(report)) {
        unread_report = file.path;
        message(1, "Error: Could not open file %s\n", file.path.c_str());
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
