// Flashing one adapter.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/result_flags.h"

#include <cstdint>

// Flashes the adapter of `port`, whose flash port must be set, with the images that the
// conditions record names, unless the flash port itself was flashed before. Returns RET_OK
// (flashed or skipped), RET_FLASH_ERROR, RET_FW_NOT_AVAILABLE or RET_SCLI_NOT_INSTALLED; both
// images are looked for before the first is written.
std::int32_t FlashBladeEngine(hba_info& port, const fc_config_file_entry& record,
                              global_ctrl_flags& flags);

// The port as the flash messages show it.
void print_controller_port(const hba_info& port);
