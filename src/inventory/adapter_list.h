// The first report: the ports that the vendor CLI lists.
#pragma once

#include <cstdint>

// Has the CLI list the ports and reads them into p_hba_info_list. Returns RET_OK (also for a report
// without a port), RET_FATAL_ERROR when the command failed, or report_not_opened.
std::int32_t read_adapter_list();
