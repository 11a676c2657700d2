// The selection lists of the command line.
#pragma once

#include "run/base/selection.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

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

// The longest value of a selection option.
constexpr std::size_t selection_length_max = 1023;

// Makes a zero-filled record; null when memory is exhausted.
option_input* get_new_option_input_buffer();

// Reads a list of groups "vendor:device[:subvendor:subdevice]", separated by commas, into the list
// of PCI identities and returns its head. An incomplete group ends the run with RET_BAD_CALL, an
// identifier that is not hexadecimal or a fifth field with RET_FATAL_ERROR.
const option_input* save_list_of_pci_ids(std::string_view value);

// Reads a comma-separated list of the given kind, the k-th item into the k-th entry of the list
// that all kinds share, and returns its head; null while no call has made an entry. An identifier
// that is not hexadecimal, or an unknown kind, ends the run with RET_FATAL_ERROR.
const option_input* save_list_of_ctrl_options(std::string_view value, std::uint32_t kind);
