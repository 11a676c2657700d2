#include "inventory/target_mapping.h"

#include "inventory/report.h"

namespace {

constexpr const char* header = "Target Mapping for";
constexpr const char* trace = "\t\t\t%s\n";

constexpr Label<target_mapping_entry> labels[] = {
    {.text = "FCP LUN", .field = text_field<&target_mapping_entry::fcp_lun>, .trace = trace},
    {.text = "SCSI OS Lun",
     .field = text_field<&target_mapping_entry::scsi_os_lun>,
     .trace = trace},
    {.text = "Lun Device Name",
     .field = text_field<&target_mapping_entry::lun_device_name>,
     .trace = trace},
    {.text = "Vendor ID", .field = text_field<&target_mapping_entry::vendor_id>, .trace = trace},
    {.text = "Product ID", .field = text_field<&target_mapping_entry::product_id>, .trace = trace},
    {.text = "Product Version",
     .field = text_field<&target_mapping_entry::product_version>,
     .trace = trace},
    {.text = "Type", .field = text_field<&target_mapping_entry::type>, .trace = trace},
    {.text = "SCSI Capacity",
     .field = text_field<&target_mapping_entry::scsi_capacity>,
     .trace = trace},
    {.text = "Block Size", .field = text_field<&target_mapping_entry::block_size>, .trace = trace},
};

// The report's own heading: a colon in it says nothing about storage.
constexpr std::int32_t heading_lines = 4;

// Returns false when memory is exhausted.
bool read_mapping_line(char* line, std::int32_t number, hba_info& port) {
    if (number > heading_lines && port.target_mapping == nullptr &&
        std::strchr(line, ':') != nullptr) {
        port.target_mapping = get_new_target_mapping_entry();
        if (port.target_mapping == nullptr) {
            return false;
        }
    }
    if (begins_with(line, header)) {
        message(6, "\n\t\t\t%s %s\n", header, port.port_wwn);
        return true;
    }
    const Label<target_mapping_entry>* label = find_label<target_mapping_entry>(labels, line);
    if (label != nullptr && port.target_mapping != nullptr) {
        store_and_trace(*label, line, *port.target_mapping);
    }
    return true;
}

} // namespace

std::int32_t read_target_mapping(hba_info& port) {
    if (!sees_storage(port)) {
        return RET_OK;
    }
    const ReportFile file = report_file(port, "target_mapping.out");
    const std::int32_t status =
        take_report("\n\t\t\t", {"targetmapping", port.port_wwn}, file, "\n");
    message(6, "\n%s, \"hbacmd targetmapping %s\" command returned code %d.\n",
            status == 0 ? "\t\t\tSuccess" : "\n\t\t\tFail", port.port_wwn, status);
    if (serial_missing(port)) {
        message(1, "\t\t\tNo serial number => SKIP!\n");
        return RET_OK;
    }

    std::int32_t number = 0;
    return read_report(file, [&](char* line) { return read_mapping_line(line, ++number, port); });
}
