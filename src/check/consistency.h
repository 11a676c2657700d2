// Whether the ports of an adapter, and the adapters of a vendor, see the same storage.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/result_flags.h"

#include <vector>

// The ports that a check of `port`'s adapter examines, in their order: the chain after the port's
// flash port (which must be set), each port once.
std::vector<hba_info*> adapter_chain(const hba_info& port);

// Walks the adapter's chain, validates the storage of every port that is of the record's
// manufacturer and model, and compares it with the references of the controller and of the
// vendor. The results are in `flags` and in the ports' check_done marks; no port is examined
// twice in a run. An invalid port ends the walk.
void DoSubSystemCheck(const hba_info& port, const fc_config_file_entry& record,
                      global_ctrl_flags& flags);

// True when both ports see storage and its vendors differ.
bool NewCompareWithReferenceSystem(const hba_info& a, const hba_info& b);
