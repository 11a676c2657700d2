// The conditions: which controllers are supported, the images that belong to
// them and the storage subsystems that may be attached to them.
#pragma once

#include "run/base/record_list.h"

#include <cstdint>
#include <span>

// A storage subsystem that a controller may see.
struct periphery_info_entry {
    char vendor[10]; // as the vendor CLI reports it
    char models[20]; // the model list as the listing shows it, cut
    char extra[10];
    periphery_info_entry* next;
    // Comma-separated model prefixes, as long as a line can be: a cut one would allow more models.
    // Empty: every model of the vendor.
    char whole_models[1024];
};

// One supported controller: a data line of the conditions file.
struct fc_config_file_entry {
    char vendor[20]; // prefix of the port's manufacturer
    char model[20];  // prefix of the port's model
    char vendor_id_str[6];
    char device_id_str[6];
    char subvendor_id_str[6];
    char subdevice_id_str[6];
    std::int32_t vendor_id;
    std::int32_t device_id;
    std::int32_t subvendor_id;
    std::int32_t subdevice_id;
    char column6[20];
    char column7[20];
    char column11[20];
    char firmware_image[80]; // a name prefix, or "*." and an extension
    char bios_image[80];     // the same; empty: no BIOS to flash
    char column10[80];
    periphery_info_entry* periphery;

    std::int32_t number; // among all records, from 1
    std::int32_t line;   // in the file
};

// Every record in file order, null-terminated; null as long as there is none.
extern fc_config_file_entry** fc_config_entry_list;

inline std::span<fc_config_file_entry*> all_conditions() {
    return records(fc_config_entry_list);
}

// Makes a record at the end of fc_config_entry_list, zero-filled but for its number; null when
// memory is exhausted.
fc_config_file_entry* get_new_config_file_entry();

// Makes a zero-filled record, which the caller links; null when memory is exhausted.
periphery_info_entry* get_new_periphery_info_entry();

// Releases every record with its subsystems, and the list.
void release_config_entry_list();
