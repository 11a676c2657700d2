// Which ports the selection names and which conditions records describe them: the PCI
// identities compared. Shared by the check and the flash run.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/selection.h"

#include <cstdint>

// Which identifiers count when a record is compared with a port: vendor and device, or the
// subvendor and the subdevice too.
enum class Ids : std::uint8_t { two, four };

// The identifiers that a selection entry names.
Ids named_ids(const option_input& entry);

// Whether the entry names the port. No entry names a port without attributes.
bool selects(const option_input& entry, const hba_info& port);

// Whether the record has the identifiers of the port, which must have attributes.
bool describes(const fc_config_file_entry& record, const hba_info& port, Ids ids);

// Whether the record is for the port's manufacturer and model, which begin with the record's.
bool is_for_model(const fc_config_file_entry& record, const hba_info& port);

// Shows a matching record at level 2.
void print_record(const fc_config_file_entry& record);
