// The second report: the attributes of one port, above all its PCI identity.
#pragma once

#include "inventory/hba_info.h"

#include <cstdint>
#include <string>

// Has the CLI report the port and reads that into `attributes`; a port without a serial
// number gets none. `progress`, the port's place in the list, is shown at a terminal. Returns
// RET_OK or report_not_opened.
std::int32_t read_attributes(hba_info& port, const std::string& progress);
