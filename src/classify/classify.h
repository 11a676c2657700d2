// Classification: which ports stay, and in which order.
#pragma once

#include <cstdint>

// Removes the plain Fibre Channel ports from p_hba_info_list, releasing their records, and orders
// the others in place: adapters with FCoE ports first, then those with iSCSI ports, then the rest;
// each adapter's ports together, by ascending PCI function. The list must exist. Always returns 0.
std::int32_t Classify_Ctrl_List();
