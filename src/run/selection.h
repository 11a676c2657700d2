// The controller selection: which controllers a run is about.
#pragma once

#include <cstdint>
#include <string_view>

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

// What a list option fills.
enum SelectionKind : std::uint32_t {
    kind_vendor_id,
    kind_subvendor_id,
    kind_vendor_name,
    kind_device_id,
    kind_subdevice_id,
    kind_model,
};
constexpr std::size_t selection_kinds = 6;

// Makes a zero-filled record; null when memory is exhausted.
option_input* get_new_option_input_buffer();

// Reads a list of groups "vendor:device[:subvendor:subdevice]", separated by
// commas, into the list of PCI identities and returns its head. An incomplete
// group ends the process with RET_BAD_CALL, an identifier that is not
// hexadecimal or a fifth field with RET_FATAL_ERROR.
option_input* save_list_of_pci_ids(std::string_view value);

// Reads a comma-separated list of the given kind, the k-th item into the k-th
// entry of the list that all kinds share, and returns its head; null when no
// call made an entry yet. An identifier that is not hexadecimal, or an unknown
// kind, ends the process with RET_FATAL_ERROR.
option_input* save_list_of_ctrl_options(std::string_view value, std::uint32_t kind);
