// The settings of a run and the record of its results. The driver writes the
// settings while it reads the command line; the phases only read them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

struct hba_info;

// What the check and flash runs report; the driver owns the one instance.
struct global_ctrl_flags {
    std::int32_t NoFcCtrlInstalled;                    // the inventory found no port
    std::int32_t InvalidCtrlSubsystemCombinationFound; // a port sees storage it must not see
    std::int32_t MatchingCtrlModelInstalled;           // a port matched the selection
    std::int32_t CtrlSpecificSubsystemEquality;        // the ports of each controller agree
    std::int32_t CtrlVendorSpecificSubsystemEquality;  // the vendor's controllers agree
    hba_info* VendorReferenceSubsystem;                // the port whose storage is the reference
};

// The switches that the phases read instead of the command line, each 0 or 1.
inline std::int32_t active_option_simulate = 0;
inline std::int32_t active_option_valid_subsystem = 0;
inline std::int32_t active_option_ctrl_wide_identical = 0;
inline std::int32_t active_option_ctrl_vendor_wide_identical = 0;

constexpr const char* conditions_file_name = "FC_HBA_Conditions.txt";

// Paths, command lines and values of the command line hold one character less.
constexpr std::size_t path_capacity = 1024;

// The longest directory that leaves room for "/" and the conditions file's name.
constexpr std::size_t directory_length_max = 1001;
static_assert(directory_length_max + 1 + std::string_view(conditions_file_name).size() <
              path_capacity);

inline char pHBAConditionsPath[path_capacity]; // the conditions file
inline char pHBAFirmwarePath[path_capacity];   // the images' directory, with a trailing "/"
inline char pHBAWorkingPath[path_capacity];    // the reports' directory, with a trailing "/"
inline char TEMPDIR_BUFFER[4096];              // the temporary directory; reported only
