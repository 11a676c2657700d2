#include "run/base/settings.h"

void reset_settings() {
    for (std::int32_t* const option :
         {&active_option_simulate, &active_option_valid_subsystem,
          &active_option_ctrl_wide_identical, &active_option_ctrl_vendor_wide_identical,
          &active_option_flash, &active_option_qmr_mode}) {
        *option = 0;
    }
    pHBAConditionsPath[0] = '\0';
    pHBAFirmwarePath[0] = '\0';
    pHBAWorkingPath[0] = '\0';
}
