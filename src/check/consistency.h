// Whether the ports of an adapter, and the adapters of a vendor, see the same
// storage.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/result_flags.h"

// Validates the storage of every port of the chain after the port's flash port
// (which must be set) that the conditions record is for, and compares it with
// the references of the controller and of the vendor. The result is in `flags`
// and in the ports' check_done marks; no port is examined twice in a run. Returns
// whether the walk has met every port of the chain, which an invalid one prevents.
bool DoSubSystemCheck(const hba_info& port, fc_config_file_entry* const& entry,
                      global_ctrl_flags& flags);

// True when both ports see storage and its vendors differ.
bool NewCompareWithReferenceSystem(const hba_info& a, const hba_info& b);
