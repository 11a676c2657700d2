// Which ports a selection entry names, and which conditions records describe a
// port: the PCI identities compared. Shared by the check and the flash run.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/selection.h"

// Whether the entry names all four identifiers, or vendor and device only.
bool names_subsystem(const option_input& entry);

// Whether the entry names the port; false for a port without attributes.
bool selects(const option_input& entry, const hba_info& port);

// Whether the record is for the port (which has attributes), by vendor and
// device and, if asked for, by subvendor and subdevice as well.
bool describes(const fc_config_file_entry& record, const hba_info& port, bool with_subsystem);

// Reports at level 2 the record that was found, by its position counted from 1.
void report_match(const fc_config_file_entry& record, int position);
