#include "inventory/report.h"

#include "inventory/vendor_cli.h"
#include "run/base/diagnostics.h"
#include "run/base/settings.h"
#include "run/base/shell_command.h"
#include "run/base/text.h"

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
    // A port without a serial number is named "n/a", and its report is never read.
    const std::size_t named = serial_missing(port) ? 3 : 0;
    const bool inside = serial.find('/', named) == std::string_view::npos &&
                        function.find('/') == std::string_view::npos;
    return {std::move(path), inside};
}

std::int32_t make_report(const char* lead, std::initializer_list<std::string_view> words,
                         ReportFile& file, const char* tail, std::string awaited) {
    ShellCommand command = hbacmd_command(lead, words, Output::rewritten, file.path, tail);
    file.usable =
        file.usable && (active_option_simulate != 0 || command.text.size() <= command_length_max);
    command.runnable = file.usable;
    command.awaited = std::move(awaited);
    message(6, "%s", command.text.c_str());
    return run_command(command, Interruption::allowed);
}

TextFile open_report(const ReportFile& file) {
    if (!file.usable || file.path.size() >= path_capacity) {
        return nullptr;
    }
    return active_option_simulate != 0 ? open_text_file(file.path.c_str())
                                       : open_text_file_without_links(file.path.c_str());
}

std::int32_t refuse_report(const ReportFile& file) {
    message(1, "Error: Could not open file %s\n", file.path.c_str());
    return report_not_opened;
}

char* line_value(char* line) {
    char* const colon = std::strchr(line, ':');
    if (colon == nullptr) {
        return nullptr;
    }
    return cleanString(colon + (colon[1] == '\0' ? 1 : 2));
}
