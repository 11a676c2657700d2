#include "inventory/attributes.h"

#include "inventory/report.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <span>
#include <string_view>

namespace {

using Entry = hba_attributes_entry;

// The line that begins a record.
constexpr std::string_view title = "HBA Attributes for";

// A row of the report's table: where the value of such a line goes, whether the
// field is traced, and where the value's hexadecimal number goes.
struct Label {
    std::string_view text;
    TextField<Entry> field;
    bool is_traced = false;
    std::uint32_t Entry::*number = nullptr;
};

constexpr bool traced = true;

// A line belongs to the first row that it begins with, hence "Model Desc" before "Model".
constexpr Label labels[] = {
    {"Host Name", text_field<&Entry::host_name>},
    {"Manufacturer", text_field<&Entry::manufacturer>},
    {"Serial Number", text_field<&Entry::serial_number>, traced},
    {"Model Desc", text_field<&Entry::model_desc>},
    {"Model", text_field<&Entry::model>, traced},
    {"Node WWN", text_field<&Entry::node_wwn>},
    {"Node Symname", text_field<&Entry::node_symname>},
    {"HW Version", text_field<&Entry::hw_version>, traced},
    {"FW Version", text_field<&Entry::fw_version>, traced},
    {"Vendor Spec ID", text_field<&Entry::vendor_spec_id>, traced, &Entry::vendor_spec_id_val},
    {"Number of Ports", text_field<&Entry::number_of_ports>},
    {"Driver Name", text_field<&Entry::driver_name>},
    {"Device ID", text_field<&Entry::device_id>, traced, &Entry::device_id_val},
    {"HBA Type", text_field<&Entry::hba_type>, traced},
    {"Operational FW", text_field<&Entry::operational_fw>, traced},
    {"IEEE Address", text_field<&Entry::ieee_address>},
    {"PXE Boot", text_field<&Entry::pxe_boot>},
    {"Driver Version", text_field<&Entry::driver_version>, traced},
    {"Board Temperature", text_field<&Entry::board_temperature>},
    {"Function Type", text_field<&Entry::function_type>, traced},
    {"Sub Device ID", text_field<&Entry::subdevice_id>, traced, &Entry::subdevice_id_val},
    {"Port Number", text_field<&Entry::port_number>},
    {"PCI Bus Number", text_field<&Entry::pci_bus_number>},
    {"PCI Func Number", text_field<&Entry::pci_func_number>},
    {"Sub Vendor ID", text_field<&Entry::subvendor_id>, traced, &Entry::subvendor_id_val},
    {"Firmware Status", text_field<&Entry::firmware_status>},
    {"Service Processor FW Name", text_field<&Entry::service_processor_fw_name>},
    {"ULP FW Name", text_field<&Entry::ulp_fw_name>},
    {"IPL Filename", text_field<&Entry::ipl_filename>, traced},
    {"NCSI Version", text_field<&Entry::ncsi_version>},
    {"Start-up Boot Code Version", text_field<&Entry::startup_boot_code_version>},
    {"FCoE Universal Version", text_field<&Entry::fcoe_universal_version>},
    {"FCoE x86 BIOS Version", text_field<&Entry::fcoe_x86_bios_version>},
    {"FCoE EFI Version", text_field<&Entry::fcoe_efi_version>},
    {"FCoE FCODE Version", text_field<&Entry::fcoe_fcode_version>},
    {"UEFI BIOS Version", text_field<&Entry::uefi_bios_version>},
    {"UEFI NIC Version", text_field<&Entry::uefi_nic_version>},
    {"UEFI FCODE Version", text_field<&Entry::uefi_fcode_version>},
    {"UEFI iSCSI Version", text_field<&Entry::uefi_iscsi_version>},
    {"PCI Express Link Speed", text_field<&Entry::pci_express_link_speed>},
    {"PCI Express Bus Width", text_field<&Entry::pci_express_bus_width>},
};

// What the CLI calls the port.
const char* port_identifier(const hba_info& port) {
    return is_fcoe_or_fc(port) ? port.port_wwn : port.permanent_mac;
}

void begin_record(hba_info& port) {
    // A second title begins the record anew.
    delete port.attributes;
    port.attributes = &made(get_new_hba_attributes_entry());
    message(6, "\n\t\t%s %s\n\n", title.data(), port_identifier(port));
}

// A line without a colon stores nothing. The number is read from the whole value, not a cut text.
void store_value(const Label& label, char* line, Entry& attributes) {
    const std::span<char> field = label.field.of(attributes);
    if (char* const value = line_value(line)) {
        copy_text(field, value);
        if (label.number != nullptr) {
            attributes.*label.number = static_cast<std::uint32_t>(string2int(value, 16));
        }
    }
    if (label.is_traced) {
        message(6, "\t\t%s\n", field.data());
    }
}

void read_attributes_line(char* line, hba_info& port) {
    if (begins_with(line, title)) {
        begin_record(port);
        return;
    }
    const Label* const label = find_label(labels, line);
    if (label != nullptr && port.attributes != nullptr) {
        store_value(*label, line, *port.attributes);
    }
}

} // namespace

std::int32_t read_attributes(hba_info& port, const std::string& progress) {
    const std::string path = report_path(port, "hba_attributes.out");
    const std::int32_t status = make_report("\n\t\t", {"hbaattributes", port_identifier(port)},
                                            path, "\n", progress + ": attributes");
    port.attributes_status = status;
    // Here every type that begins with "FC" is named by its world-wide name.
    const char* const name = begins_with(port.port_type, "FC") ? port.port_wwn : port.permanent_mac;
    if (status == 0) {
        message(6, "\n\t\tSuccess, \"hbacmd hbaattributes %s\" command returned code %d.\n", name,
                status);
    } else {
        message(6, "\n\t\tFail, \"hbacmd hbaattributes %s\" command returned code %d.\n", name,
                status);
    }
    if (serial_missing(port)) {
        message(1, "\t\tNo serial number => SKIP!\n");
        return RET_OK;
    }
    return read_report(path, status, [&](char* line) { read_attributes_line(line, port); });
}
