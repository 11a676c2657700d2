// Port pairing: the port through which each adapter is flashed.
#pragma once

#include <cstdint>

// Sets, for every port of p_hba_info_list with a serial number, `flash_port` (the adapter's port
// with function and number 0, or else with 1 and 1; null when it has neither) and links FCoE ports
// into the chain that starts at the flash port. The list must exist. Always returns 0.
std::int32_t Determine_Flash_Ports();
