#include "inventory/inventory.h"

#include "inventory/adapter_list.h"
#include "inventory/attributes.h"
#include "inventory/hba_info.h"
#include "inventory/report.h"
#include "inventory/target_mapping.h"
#include "inventory/vendor_cli.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"

#include <cstddef>
#include <span>
#include <string>

namespace {

// What is read of each port; `progress` is its place in the list.
using Stage = std::int32_t (*)(hba_info& port, const std::string& progress);

std::int32_t for_each_port(Stage stage) {
    const std::span<hba_info*> ports = all_ports();
    for (std::size_t i = 0; i < ports.size(); ++i) {
        const std::string progress =
            "port " + std::to_string(i + 1) + " of " + std::to_string(ports.size());
        if (const std::int32_t result = stage(*ports[i], progress); result != RET_OK) {
            return result;
        }
    }
    return RET_OK;
}

} // namespace

std::int32_t Get_All_Hba_Info() {
    unread_report.clear();
    if (!hbacmd_available()) {
        message(1, "\t\tCommand %s is not available!\n\n", hbacmd_path);
        return RET_SCLI_NOT_INSTALLED;
    }
    if (!take_turn()) {
        return cli_in_use;
    }
    if (const std::int32_t result = read_adapter_list(); result != RET_OK) {
        return result;
    }
    if (p_hba_info_list == nullptr) {
        return RET_NO_FC_CTRL_INSTALLED;
    }
    if (const std::int32_t result = for_each_port(read_attributes); result != RET_OK) {
        return result;
    }
    return for_each_port(read_target_mapping);
}
