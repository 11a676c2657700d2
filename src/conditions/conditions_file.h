// Reading the conditions file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Whether a line is a comment or a separator.
bool is_comment(const char* line);

// The cleaned values of a line, adjacent bars counting as one. A last line of bars without a
// newline has none.
std::vector<std::string> column_values(const char* line);

// Reads the file at `path` into fc_config_entry_list. Returns RET_OK, RET_FC_HBA_CONDITIONS_MISSING
// when it can't be opened, RET_MEMALLOC_FAIL, or RET_FATAL_ERROR when it can't be read to its end
// or a value that selects is too long. An identifier that is not hexadecimal ends the run with
// RET_FATAL_ERROR.
std::int32_t Read_FC_Config_File(const char* path);
