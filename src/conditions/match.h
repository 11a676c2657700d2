// Which ports a selection entry names, and which conditions records describe a
// port: the PCI identities compared. Shared by the check and the flash run.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/selection.h"

#include <cstdint>

// Whether the entry names all four identifiers, or vendor and device only.
bool names_subsystem(const option_input& entry);

// Whether the entry names the port; false for a port without attributes.
bool selects(const option_input& entry, const hba_info& port);

// Whether the record is for the port (which has attributes), by vendor and
// device and, if asked for, by subvendor and subdevice as well.
bool describes(const fc_config_file_entry& record, const hba_info& port, bool with_subsystem);

// Hands every record for the port to `use`, by its slot and its position counted
// from 1. Ends at the first result other than 0 and returns it, else 0.
template <class Use>
std::int32_t for_each_record(const hba_info& port, bool with_subsystem, Use use) {
    int position = 0;
    for (auto** record = fc_config_entry_list; record != nullptr && *record != nullptr; ++record) {
        ++position;
        if (!describes(**record, port, with_subsystem)) {
            continue;
        }
        if (const std::int32_t result = use(*record, position); result != 0) {
            return result;
        }
    }
    return 0;
}

// Reports at level 2 the record that was found, by its position counted from 1.
void report_match(const fc_config_file_entry& record, int position);
