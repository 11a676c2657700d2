// Whether the storage that one port sees is allowed for its controller.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/result_flags.h"

#include <string_view>

// Judges the storage of a port, which must have a target mapping, by the storage subsystems of a
// conditions record. Returns whether it is allowed; sets InvalidCtrlSubsystemCombinationFound
// when it is not.
bool DoIndividualSubSystemCheck(const hba_info& port, const fc_config_file_entry& record,
                                global_ctrl_flags& flags);

// Whether every text of the comma-separated `references` is an item of `group`.
bool CheckModelGroupConsistency(std::string_view group, std::string_view references);
