// Reading the conditions file.
#pragma once

#include <cstdint>

// Reads the file at `path` into fc_config_entry_list. Returns RET_OK, RET_FC_HBA_CONDITIONS_MISSING
// when it can't be opened, RET_MEMALLOC_FAIL, or RET_FATAL_ERROR when it can't be read to its end.
// An identifier that is not hexadecimal ends the run with RET_FATAL_ERROR.
std::int32_t Read_FC_Config_File(const char* path);
