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
#include <string>

namespace {

// What is read of each port; `which` is the port's place in the list, shown at a terminal.
using Stage = std::int32_t (*)(hba_info& port, const std::string& which);

std::int32_t for_each_port(Stage stage) {
    std::size_t count = 0;
    for ([[maybe_unused]] const hba_info& port : all_ports()) {
        ++count;
    }
    std::size_t number = 0;
    for (hba_info& port : all_ports()) {
        const std::string which =
            "port " + std::to_string(++number) + " of " + std::to_string(count);
        if (const std::int32_t result = stage(port, which); result != RET_OK) {
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
    take_turn();
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
