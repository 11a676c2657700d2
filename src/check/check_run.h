// The check run over the selection.
#pragma once

#include "run/base/result_flags.h"
#include "run/base/selection.h"

// Checks the adapter of every port that the selection (null: none) names against every
// conditions record of its PCI identity. Returns 1 when the first active check
// passed, or none is active, and 0 when it failed; sets
// MatchingCtrlModelInstalled when a port was named.
int OverallSubSystemCheck(const option_input* selection, global_ctrl_flags& flags);
