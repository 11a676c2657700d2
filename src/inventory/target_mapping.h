// The third report: the storage that one port sees.
#pragma once

#include "inventory/hba_info.h"

#include <cstdint>
#include <string>
#include <vector>

// Has the CLI report a Fibre Channel or FCoE port and reads that into `target_mapping`, which stays
// null when the port sees no storage or has no serial number; other ports are passed over.
// `progress`, the port's place in the list, is shown at a terminal. Returns RET_OK or
// report_not_opened.
std::int32_t read_target_mapping(hba_info& port, const std::string& progress);

// Every LUN of the port's report, in the order of the report, which is read again. The last one
// to name a value is the one that `target_mapping` has it from.
std::vector<target_mapping_entry> reported_luns(const hba_info& port);
