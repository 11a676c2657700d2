#include "inventory/inventory.h"

#include "inventory/adapter_list.h"
#include "inventory/attributes.h"
#include "inventory/hba_info.h"
#include "inventory/target_mapping.h"
#include "inventory/vendor_cli.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"

namespace {

using Stage = std::int32_t (*)(hba_info&);

std::int32_t for_each_port(Stage stage) {
    for (hba_info& port : all_ports()) {
        if (const std::int32_t result = stage(port); result != RET_OK) {
            return result;
        }
    }
    return RET_OK;
}

} // namespace

std::int32_t Get_All_Hba_Info() {
    if (!hbacmd_available()) {
        message(1, "\t\tCommand %s is not available!\n\n", hbacmd_path);
        return RET_SCLI_NOT_INSTALLED;
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
