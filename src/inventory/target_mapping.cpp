#include "inventory/target_mapping.h"

#include "inventory/report.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <cstring>
#include <span>
#include <string_view>

namespace {

using Entry = target_mapping_entry;

constexpr const char* report_name = "target_mapping.out";
constexpr std::string_view title = "Target Mapping for";

// A row of the report's table: where the value of such a line goes.
struct Label {
    std::string_view text;
    TextField<Entry> field;
};

constexpr Label labels[] = {
    {"FCP LUN", text_field<&Entry::fcp_lun>},
    {"SCSI OS Lun", text_field<&Entry::scsi_os_lun>},
    {"Lun Device Name", text_field<&Entry::lun_device_name>},
    {"Vendor ID", text_field<&Entry::vendor_id>},
    {"Product ID", text_field<&Entry::product_id>},
    {"Product Version", text_field<&Entry::product_version>},
    {"Type", text_field<&Entry::type>},
    {"SCSI Capacity", text_field<&Entry::scsi_capacity>},
    {"Block Size", text_field<&Entry::block_size>},
};

// The report begins with its title: a colon there says nothing about storage.
constexpr int title_lines = 4;

// A line without a colon stores nothing, but shows what the field holds.
void store_value(const Label& label, char* line, Entry& mapping) {
    const std::span<char> field = label.field.of(mapping);
    if (const char* const value = line_value(line)) {
        copy_text(field, value);
    }
    message(6, "\t\t\t%s\n", field.data());
}

// Whether the title is that of the port's report, not of another port's.
bool names(const char* line, const hba_info& port) {
    std::string name = line + title.size();
    return std::strcmp(cleanString(name.data()), port.port_wwn) == 0;
}

void read_mapping_line(char* line, bool below_title, hba_info& port) {
    if (below_title && port.target_mapping == nullptr && std::strchr(line, ':') != nullptr) {
        port.target_mapping = &made(get_new_target_mapping_entry());
    }
    if (begins_with(line, title)) {
        port.mapping_reported = names(line, port) ? 1 : 0;
        message(6, "\n\t\t\t%s %s\n", title.data(), port.port_wwn);
        return;
    }
    const Label* const label = find_label(labels, line);
    if (label != nullptr && port.target_mapping != nullptr) {
        store_value(*label, line, *port.target_mapping);
    }
}

} // namespace

std::int32_t read_target_mapping(hba_info& port, const std::string& progress) {
    if (!is_fcoe_or_fc(port)) {
        return RET_OK;
    }
    const std::string path = report_path(port, report_name);
    const std::int32_t status = make_report("\n\t\t\t", {"targetmapping", port.port_wwn}, path,
                                            "\n", progress + ": target mapping");
    port.mapping_status = status;
    if (status == 0) {
        message(6, "\n\t\t\tSuccess, \"hbacmd targetmapping %s\" command returned code %d.\n",
                port.port_wwn, status);
    } else {
        message(6, "\n\n\t\t\tFail, \"hbacmd targetmapping %s\" command returned code %d.\n",
                port.port_wwn, status);
    }
    if (serial_missing(port)) {
        message(1, "\t\t\tNo serial number => SKIP!\n");
        return RET_OK;
    }

    std::int64_t number = 0;
    return read_report(path, status, [&](char* line) {
        ++number;
        read_mapping_line(line, number > title_lines, port);
    });
}

std::vector<target_mapping_entry> reported_luns(const hba_info& port) {
    std::vector<target_mapping_entry> luns(1);
    read_report(report_path(port, report_name), RET_OK, [&](char* line) {
        const Label* const label = find_label(labels, line);
        const char* const value = label == nullptr ? nullptr : line_value(line);
        if (value != nullptr) {
            // A label that comes again belongs to the next LUN.
            if (label->field.of(luns.back())[0] != '\0') {
                luns.emplace_back();
            }
            copy_text(label->field.of(luns.back()), value);
        }
    });
    return luns;
}
