// The settings of a run: written while the command line is read, then only read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// What the options switch on, each 0 or 1.
inline std::int32_t active_option_simulate = 0; // the vendor CLI is not run
inline std::int32_t active_option_no_wait = 0;  // another run that uses it is not waited for
inline std::int32_t active_option_valid_subsystem = 0;
inline std::int32_t active_option_ctrl_wide_identical = 0;
inline std::int32_t active_option_ctrl_vendor_wide_identical = 0;
inline std::int32_t active_option_flash = 0;
inline std::int32_t active_option_qmr_mode = 0; // nothing found is no failure

constexpr std::string_view conditions_file_name = "FC_HBA_Conditions.txt";

// The room for a path with its terminating NUL.
constexpr std::size_t path_capacity = 1024;

// The longest directory that leaves room for "/", the conditions file's name and the NUL.
constexpr std::size_t directory_length_max = path_capacity - conditions_file_name.size() - 2;

inline char pHBAConditionsPath[path_capacity]; // the conditions file
inline char pHBAFirmwarePath[path_capacity];   // the images' directory, with a trailing "/"
inline char pHBAWorkingPath[path_capacity];    // the reports' directory, with a trailing "/"
inline char TEMPDIR_BUFFER[4096];              // the temporary directory; shown only
