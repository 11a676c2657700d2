#include "inventory/adapter_list.h"

#include "inventory/report.h"

namespace {

// A starting label's trace also takes the number of the port.
constexpr Label<hba_info> labels[] = {
    {.text = "Port WWN",
     .field = text_field<&hba_info::port_wwn>,
     .trace = "\n%d)\tPortWWN: %s\n",
     .starts = true},
    {.text = "Node WWN", .field = text_field<&hba_info::node_wwn>, .trace = "\tNodeWWN: %s\n"},
    {.text = "Fabric Name",
     .field = text_field<&hba_info::fabric_name>,
     .trace = "\tFabric_Name: %s\n"},
    {.text = "Permanent MAC",
     .field = text_field<&hba_info::permanent_mac>,
     .trace = "\n%d)\tPermanentMAC: %s\n",
     .starts = true},
    {.text = "Current MAC",
     .field = text_field<&hba_info::current_mac>,
     .trace = "\tCurrentMAC: %s\n"},
    {.text = "Flags", .field = text_field<&hba_info::flags>, .trace = "\t%s\n"},
    {.text = "Host Name", .field = text_field<&hba_info::host_name>, .trace = "\t%s\n"},
    {.text = "Mfg", .field = text_field<&hba_info::mfg>, .trace = "\t%s\n"},
    {.text = "Serial No", .field = text_field<&hba_info::serial_no>, .trace = "\t%s\n"},
    {.text = "Port Number", .field = text_field<&hba_info::port_number>, .trace = "\t%s\n"},
    {.text = "Mode", .unless = "Model", .field = text_field<&hba_info::mode>, .trace = "\t%s\n"},
    {.text = "PCI Bus Number", .field = text_field<&hba_info::pci_bus_number>, .trace = "\t%s\n"},
    {.text = "PCI Function", .field = text_field<&hba_info::pci_function>, .trace = "\t%s\n"},
    {.text = "Port Type", .field = text_field<&hba_info::port_type>, .trace = "\t%s\n"},
    {.text = "Model", .field = text_field<&hba_info::model>, .trace = "\t%s\n"},
};

// The port that the report's lines are about, and how many there were.
struct Cursor {
    hba_info* port = nullptr;
    std::int32_t count = 0;
};

// Returns false when memory is exhausted.
bool read_list_line(char* line, Cursor& cursor) {
    const Label<hba_info>* label = find_label<hba_info>(labels, line);
    if (label == nullptr) {
        return true;
    }
    if (label->starts) {
        cursor.port = get_new_hba_info_entry();
        if (cursor.port == nullptr) {
            return false;
        }
        ++cursor.count;
    }
    const char* value = cursor.port == nullptr ? nullptr : line_value(line);
    if (value == nullptr) {
        return true;
    }
    copy_text(label->field(*cursor.port), value);
    if (label->starts) {
        message(6, label->trace, cursor.count, value);
    } else {
        message(6, label->trace, value);
    }
    return true;
}

} // namespace

std::int32_t read_adapter_list() {
    const ReportFile file = report_file("local_hba_list.out");
    const std::int32_t status = take_report("", {"listhbas"}, file, " \n");
    if (status != 0) {
        message(4, "\nFail, \"hbacmd listhbas\" command returned code %d.\n", status);
        return RET_FATAL_ERROR;
    }
    message(6, "\nSuccess, \"hbacmd listhbas\" command returned code %d.\n", status);

    Cursor cursor;
    return read_report(file, [&](char* line) { return read_list_line(line, cursor); });
}
