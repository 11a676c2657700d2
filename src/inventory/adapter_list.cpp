#include "inventory/adapter_list.h"

#include "inventory/report.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <string>
#include <string_view>

namespace {

// A row of the report's table: where the value of such a line goes. Some are
// traced by a name, and some begin the next port.
struct Label {
    std::string_view text;
    TextField<hba_info> field;
    const char* name = nullptr;
    bool begins_port = false;
};

// A line belongs to the first row that it begins with, hence "Model" before "Mode".
constexpr Label labels[] = {
    {"Port WWN", text_field<&hba_info::port_wwn>, "PortWWN", true},
    {"Node WWN", text_field<&hba_info::node_wwn>, "NodeWWN"},
    {"Fabric Name", text_field<&hba_info::fabric_name>, "Fabric_Name"},
    {"Permanent MAC", text_field<&hba_info::permanent_mac>, "PermanentMAC", true},
    {"Current MAC", text_field<&hba_info::current_mac>, "CurrentMAC"},
    {"Flags", text_field<&hba_info::flags>},
    {"Host Name", text_field<&hba_info::host_name>},
    {"Mfg", text_field<&hba_info::mfg>},
    {"Serial No", text_field<&hba_info::serial_no>},
    {"Port Number", text_field<&hba_info::port_number>},
    {"Model", text_field<&hba_info::model>},
    {"Mode", text_field<&hba_info::mode>},
    {"PCI Bus Number", text_field<&hba_info::pci_bus_number>},
    {"PCI Function", text_field<&hba_info::pci_function>},
    {"Port Type", text_field<&hba_info::port_type>},
};

// The port that the report's lines are about, and how many there were.
struct ListedPorts {
    hba_info* current = nullptr;
    std::int32_t count = 0;
};

void trace(const Label& label, const char* value, std::int32_t count) {
    if (label.begins_port) {
        message(6, "\n%d)\t%s: %s\n", count, label.name, value);
    } else if (label.name != nullptr) {
        message(6, "\t%s: %s\n", label.name, value);
    } else {
        message(6, "\t%s\n", value);
    }
}

void read_list_line(char* line, ListedPorts& ports) {
    const Label* const label = find_label(labels, line);
    if (label == nullptr) {
        return;
    }
    if (label->begins_port) {
        ports.current = &made(get_new_hba_info_entry());
        ++ports.count;
    }
    const char* const value = ports.current == nullptr ? nullptr : line_value(line);
    if (value != nullptr) {
        copy_text(label->field.of(*ports.current), value);
        trace(*label, value, ports.count);
    }
}

} // namespace

std::int32_t read_adapter_list() {
    const std::string path = report_path("local_hba_list.out");
    const std::int32_t status = make_report("", {"listhbas"}, path, " \n", "adapter list");
    if (status != 0) {
        message(4, "\nFail, \"hbacmd listhbas\" command returned code %d.\n", status);
        return RET_FATAL_ERROR;
    }
    message(6, "\nSuccess, \"hbacmd listhbas\" command returned code %d.\n", status);

    ListedPorts ports;
    return read_report(path, status, [&](char* line) { read_list_line(line, ports); });
}
