// The inventory: the adapter ports of this machine with their attributes and
// the storage that they see, as the vendor CLI reports them.
#pragma once

#include <cstdint>

// Another run uses the CLI, and active_option_no_wait is set.
constexpr std::int32_t cli_in_use = 52;

// Has the CLI make its reports, reads them and fills p_hba_info_list; in simulate mode reads
// prepared reports. Returns RET_OK, RET_NO_FC_CTRL_INSTALLED (no port), RET_SCLI_NOT_INSTALLED,
// RET_FATAL_ERROR (the list could not be made), 51 (a report could not be opened) or cli_in_use.
// What was read until then stays in the list. Throws std::bad_alloc when memory is exhausted.
std::int32_t Get_All_Hba_Info();
