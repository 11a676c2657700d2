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
struct ConditionsColumn {
    const char* name;
    std::span<char> (*field)(fc_config_file_entry&);
    int width;
    std::int32_t fc_config_file_entry::*number = nullptr;
    const char* refused_name = nullptr;
};

constexpr auto conditions_columns = std::to_array<ConditionsColumn>({
    {"vendor", text_field<&fc_config_file_entry::vendor>, 18},
    {"model", text_field<&fc_config_file_entry::model>, 16},
    {"vendor id", text_field<&fc_config_file_entry::vendor_id_str>, 6,
     &fc_config_file_entry::vendor_id, "Vendor-Id"},
    {"device id", text_field<&fc_config_file_entry::device_id_str>, 6,
     &fc_config_file_entry::device_id, "Device-Id"},
    {"subvendor id", text_field<&fc_config_file_entry::subvendor_id_str>, 6,
     &fc_config_file_entry::subvendor_id, "Sub-Vendor-Id"},
    {"subdevice id", text_field<&fc_config_file_entry::subdevice_id_str>, 6,
     &fc_config_file_entry::subdevice_id, "Sub-System-Id"},
    {"column 6", text_field<&fc_config_file_entry::column6>, 12},
    {"column 7", text_field<&fc_config_file_entry::column7>, 12},
    {"firmware image", text_field<&fc_config_file_entry::firmware_image>, 12},
    {"BIOS image", text_field<&fc_config_file_entry::bios_image>, 12},
    {"column 10", text_field<&fc_config_file_entry::column10>, 12},
    {"column 11", text_field<&fc_config_file_entry::column11>, 12},
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
