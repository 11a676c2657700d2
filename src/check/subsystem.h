// Whether the storage that one port sees is allowed for its controller.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/result_flags.h"

#include <string_view>

// Judges the storage of a port, which must have a target mapping, against the
// subsystems of a conditions record. Returns 1 when it is allowed; 0, with
// InvalidCtrlSubsystemCombinationFound set, when it is not.
int DoIndividualSubSystemCheck(const hba_info& port, fc_config_file_entry* const& entry,
                               global_ctrl_flags& flags);

// Whether every text of the comma-separated `references` is an item of `group`.
bool CheckModelGroupConsistency(std::string_view group, std::string_view references);
