// The columns of the conditions file: where each value of a line goes.
#pragma once

#include "conditions/conditions.h"
#include "run/base/text.h"

#include <array>
#include <cstdint>

// A column that describes the controller: what it is called, its field and its width in the
// listing. An identifier also has a number.
struct ConditionsColumn {
    const char* name;
    TextField<fc_config_file_entry> field;
    int width;
    // What a refusal calls the column: of an identifier that is no number, or of another text that
    // is too long. Null: a long text is cut.
    const char* refused_name = nullptr;
    std::int32_t fc_config_file_entry::*number = nullptr;
};

constexpr auto conditions_columns = std::to_array<ConditionsColumn>({
    {"vendor", text_field<&fc_config_file_entry::vendor>, 18, "Vendor"},
    {"model", text_field<&fc_config_file_entry::model>, 16, "Model"},
    {"vendor id", text_field<&fc_config_file_entry::vendor_id_str>, 6, "Vendor-Id",
     &fc_config_file_entry::vendor_id},
    {"device id", text_field<&fc_config_file_entry::device_id_str>, 6, "Device-Id",
     &fc_config_file_entry::device_id},
    {"subvendor id", text_field<&fc_config_file_entry::subvendor_id_str>, 6, "Sub-Vendor-Id",
     &fc_config_file_entry::subvendor_id},
    {"subdevice id", text_field<&fc_config_file_entry::subdevice_id_str>, 6, "Sub-System-Id",
     &fc_config_file_entry::subdevice_id},
    {"column 6", text_field<&fc_config_file_entry::column6>, 12},
    {"column 7", text_field<&fc_config_file_entry::column7>, 12},
    {"firmware image", text_field<&fc_config_file_entry::firmware_image>, 12, "Firmware-Image"},
    {"BIOS image", text_field<&fc_config_file_entry::bios_image>, 12, "BIOS-Image"},
    {"column 10", text_field<&fc_config_file_entry::column10>, 12},
    {"column 11", text_field<&fc_config_file_entry::column11>, 12},
});

// The columns that follow, three for each allowed storage subsystem, and what the listing draws
// after each. The models are kept whole beside their field.
struct SubsystemColumn {
    const char* name;
    TextField<periphery_info_entry> field;
    int width;
    const char* border;
    const char* refused_name = nullptr;
    bool is_model_list = false;
};

constexpr auto subsystem_columns = std::to_array<SubsystemColumn>({
    {"storage vendor", text_field<&periphery_info_entry::vendor>, 12, " |", "Storage-Vendor"},
    {"models", text_field<&periphery_info_entry::models>, 18, " |", nullptr, true},
    {"extra value", text_field<&periphery_info_entry::extra>, 12, ""},
});
