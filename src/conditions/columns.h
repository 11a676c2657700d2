// How a line of the conditions file is cut into values, and where each value goes.
#pragma once

#include "conditions/conditions.h"
#include "run/base/text.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

// A column that describes the controller: what it is called, its field and its width in the
// listing. An identifier also has a number, and the name that its refusal gives it.
struct Column {
    const char* name;
    std::span<char> (*field)(fc_config_file_entry&);
    int width;
    std::int32_t fc_config_file_entry::*number = nullptr;
    const char* refused_name = nullptr;
};

// Names the type once for the rows below.
using Entry = fc_config_file_entry;

constexpr auto columns = std::to_array<Column>({
    {"vendor", text_field<&Entry::vendor>, 18},
    {"model", text_field<&Entry::model>, 16},
    {"vendor id", text_field<&Entry::vendor_id_str>, 6, &Entry::vendor_id, "Vendor-Id"},
    {"device id", text_field<&Entry::device_id_str>, 6, &Entry::device_id, "Device-Id"},
    {"subvendor id", text_field<&Entry::subvendor_id_str>, 6, &Entry::subvendor_id,
     "Sub-Vendor-Id"},
    {"subdevice id", text_field<&Entry::subdevice_id_str>, 6, &Entry::subdevice_id,
     "Sub-System-Id"},
    {"column 6", text_field<&Entry::column6>, 12},
    {"column 7", text_field<&Entry::column7>, 12},
    {"firmware image", text_field<&Entry::firmware_image>, 12},
    {"BIOS image", text_field<&Entry::bios_image>, 12},
    {"column 10", text_field<&Entry::column10>, 12},
    {"column 11", text_field<&Entry::column11>, 12},
});

// The columns that follow, three for each allowed storage subsystem, and what the listing draws
// after each. A value that must not be cut has a second field.
struct SubsystemColumn {
    const char* name;
    std::span<char> (*field)(periphery_info_entry&);
    int width;
    const char* border;
    std::span<char> (*whole_field)(periphery_info_entry&) = nullptr;
};

constexpr auto subsystem_columns = std::to_array<SubsystemColumn>({
    {"storage vendor", text_field<&periphery_info_entry::vendor>, 12, " |"},
    {"models", text_field<&periphery_info_entry::models>, 18, " |",
     text_field<&periphery_info_entry::whole_models>},
    {"extra value", text_field<&periphery_info_entry::extra>, 12, ""},
});

// Whether a line is a comment or a separator.
bool is_comment(const char* line);

// The cleaned values of a line, adjacent bars counting as one. There is none in a last line of
// bars only, without a line end, which makes no record.
std::vector<std::string> column_values(const char* line);
