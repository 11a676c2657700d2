// The flash run over the selection.
#pragma once

#include "run/base/result_flags.h"
#include "run/base/selection.h"

#include <cstdint>

// Flashes the adapter of every port that the selection (null: none) names, with
// the images of the conditions records that carry all four of its identifiers.
// Returns RET_OK, or the first other result of the flash engine, which ends the
// run; sets MatchingCtrlModelInstalled when a port was named.
std::int32_t OverallFlashBladeEngine(const option_input* selection, global_ctrl_flags& flags);
