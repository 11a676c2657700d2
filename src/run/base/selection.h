// The record of the controller selection: which controllers a run is about.
#pragma once

#include <cstdint>

// One selected controller. An identifier that no option gave is 0; names are
// kept and echoed, but no phase compares them.
struct option_input {
    char vendor_name[20];
    char model[20];
    std::int32_t vendor_id;
    char vendor_id_str[8];
    std::int32_t subvendor_id;
    char subvendor_id_str[8];
    std::int32_t device_id;
    char device_id_str[8];
    std::int32_t subdevice_id;
    char subdevice_id_str[8];
    option_input* next;
};
