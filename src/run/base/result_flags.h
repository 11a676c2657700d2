// The record of a run's results.
#pragma once

#include <cstdint>

struct hba_info;

// What the check and flash runs found out; the driver owns the one instance.
struct global_ctrl_flags {
    std::int32_t NoFcCtrlInstalled;                    // the inventory found no port
    std::int32_t InvalidCtrlSubsystemCombinationFound; // a port sees storage it must not see
    std::int32_t MatchingCtrlModelInstalled;           // a port matched the selection
    std::int32_t CtrlSpecificSubsystemEquality;        // the ports of each controller agree
    std::int32_t CtrlVendorSpecificSubsystemEquality;  // the vendor's controllers agree
    hba_info* VendorReferenceSubsystem;                // the port whose storage is the reference
};
