// The check run over the selection.
#pragma once

#include "run/base/result_flags.h"
#include "run/base/selection.h"

// Checks the adapter of every port that the selection (null: none) names, by every conditions
// record that has the identifiers which the selection names. Returns whether the first active
// check passed; true when none is active. Sets MatchingCtrlModelInstalled when a port is named.
bool OverallSubSystemCheck(const option_input* selection, global_ctrl_flags& flags);
