// The listings that the driver writes at the higher levels.
#pragma once

#include "run/base/result_flags.h"

// The conditions records with their allowed subsystems.
void list_conditions();

// The FCoE ports with the storage that they see.
void list_controllers();

// The result flags; `lead` is written before the first line.
void list_flags(const char* lead, const global_ctrl_flags& flags);
