#include "inventory/attributes.h"

#include "inventory/report.h"

namespace {

constexpr const char* header = "HBA Attributes for";
constexpr const char* trace = "\t\t%s\n";

constexpr Label<hba_attributes_entry> labels[] = {
    {.text = "Host Name", .field = text_field<&hba_attributes_entry::host_name>},
    {.text = "Manufacturer", .field = text_field<&hba_attributes_entry::manufacturer>},
    {.text = "Serial Number",
     .field = text_field<&hba_attributes_entry::serial_number>,
     .trace = trace},
    {.text = "Model",
     .unless = "Model Desc",
     .field = text_field<&hba_attributes_entry::model>,
     .trace = trace},
    {.text = "Model Desc", .field = text_field<&hba_attributes_entry::model_desc>},
    {.text = "Node WWN", .field = text_field<&hba_attributes_entry::node_wwn>},
    {.text = "Node Symname", .field = text_field<&hba_attributes_entry::node_symname>},
    {.text = "HW Version", .field = text_field<&hba_attributes_entry::hw_version>, .trace = trace},
    {.text = "FW Version", .field = text_field<&hba_attributes_entry::fw_version>, .trace = trace},
    {.text = "Vendor Spec ID",
     .field = text_field<&hba_attributes_entry::vendor_spec_id>,
     .trace = trace,
     .number = &hba_attributes_entry::vendor_spec_id_val},
    {.text = "Number of Ports", .field = text_field<&hba_attributes_entry::number_of_ports>},
    {.text = "Driver Name", .field = text_field<&hba_attributes_entry::driver_name>},
    {.text = "Device ID",
     .field = text_field<&hba_attributes_entry::device_id>,
     .trace = trace,
     .number = &hba_attributes_entry::device_id_val},
    {.text = "HBA Type", .field = text_field<&hba_attributes_entry::hba_type>, .trace = trace},
    {.text = "Operational FW",
     .field = text_field<&hba_attributes_entry::operational_fw>,
     .trace = trace},
    {.text = "IEEE Address", .field = text_field<&hba_attributes_entry::ieee_address>},
    {.text = "PXE Boot", .field = text_field<&hba_attributes_entry::pxe_boot>},
    {.text = "Driver Version",
     .field = text_field<&hba_attributes_entry::driver_version>,
     .trace = trace},
    {.text = "Board Temperature", .field = text_field<&hba_attributes_entry::board_temperature>},
    {.text = "Function Type",
     .field = text_field<&hba_attributes_entry::function_type>,
     .trace = trace},
    {.text = "Sub Device ID",
     .field = text_field<&hba_attributes_entry::subdevice_id>,
     .trace = trace,
     .number = &hba_attributes_entry::subdevice_id_val},
    {.text = "Port Number", .field = text_field<&hba_attributes_entry::port_number>},
    {.text = "PCI Bus Number", .field = text_field<&hba_attributes_entry::pci_bus_number>},
    {.text = "PCI Func Number", .field = text_field<&hba_attributes_entry::pci_func_number>},
    {.text = "Sub Vendor ID",
     .field = text_field<&hba_attributes_entry::subvendor_id>,
     .trace = trace,
     .number = &hba_attributes_entry::subvendor_id_val},
    {.text = "Firmware Status", .field = text_field<&hba_attributes_entry::firmware_status>},
    {.text = "Service Processor FW Name",
     .field = text_field<&hba_attributes_entry::service_processor_fw_name>},
    {.text = "ULP FW Name", .field = text_field<&hba_attributes_entry::ulp_fw_name>},
    {.text = "IPL Filename",
     .field = text_field<&hba_attributes_entry::ipl_filename>,
     .trace = trace},
    {.text = "NCSI Version", .field = text_field<&hba_attributes_entry::ncsi_version>},
    {.text = "Start-up Boot Code Version",
     .field = text_field<&hba_attributes_entry::startup_boot_code_version>},
    {.text = "FCoE Universal Version",
     .field = text_field<&hba_attributes_entry::fcoe_universal_version>},
    {.text = "FCoE x86 BIOS Version",
     .field = text_field<&hba_attributes_entry::fcoe_x86_bios_version>},
    {.text = "FCoE EFI Version", .field = text_field<&hba_attributes_entry::fcoe_efi_version>},
    {.text = "FCoE FCODE Version", .field = text_field<&hba_attributes_entry::fcoe_fcode_version>},
    {.text = "UEFI BIOS Version", .field = text_field<&hba_attributes_entry::uefi_bios_version>},
    {.text = "UEFI NIC Version", .field = text_field<&hba_attributes_entry::uefi_nic_version>},
    {.text = "UEFI FCODE Version", .field = text_field<&hba_attributes_entry::uefi_fcode_version>},
    {.text = "UEFI iSCSI Version", .field = text_field<&hba_attributes_entry::uefi_iscsi_version>},
    {.text = "PCI Express Link Speed",
     .field = text_field<&hba_attributes_entry::pci_express_link_speed>},
    {.text = "PCI Express Bus Width",
     .field = text_field<&hba_attributes_entry::pci_express_bus_width>},
};

// What the CLI calls the port.
const char* port_identifier(const hba_info& port) {
    return sees_storage(port) ? port.port_wwn : port.permanent_mac;
}

// Returns false when memory is exhausted.
bool read_attributes_line(char* line, hba_info& port) {
    if (begins_with(line, header)) {
        // Another heading replaces what the report said before it.
        delete port.attributes;
        port.attributes = get_new_hba_attributes_entry();
        if (port.attributes == nullptr) {
            return false;
        }
        message(6, "\n\t\t%s %s\n\n", header, port_identifier(port));
        return true;
    }
    const Label<hba_attributes_entry>* label = find_label<hba_attributes_entry>(labels, line);
    if (label != nullptr && port.attributes != nullptr) {
        store_and_trace(*label, line, *port.attributes);
    }
    return true;
}

} // namespace

std::int32_t read_attributes(hba_info& port) {
    const ReportFile file = report_file(port, "hba_attributes.out");
    const std::int32_t status =
        take_report("\n\t\t", {"hbaattributes", port_identifier(port)}, file, "\n");
    // Here every type that begins with "FC" is named by its world-wide name.
    message(6, "\n\t\t%s, \"hbacmd hbaattributes %s\" command returned code %d.\n",
            status == 0 ? "Success" : "Fail",
            begins_with(port.port_type, "FC") ? port.port_wwn : port.permanent_mac, status);
    if (serial_missing(port)) {
        message(1, "\t\tNo serial number => SKIP!\n");
        return RET_OK;
    }

    return read_report(file, [&](char* line) { return read_attributes_line(line, port); });
}
