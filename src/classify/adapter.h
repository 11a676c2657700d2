// Which ports belong to one adapter.
#pragma once

#include "inventory/hba_info.h"

// Whether port B matches port A: B's serial number is A's, or the beginning of it. The test is
// one-sided, so every caller says which port is asked about which; an empty serial number
// matches every port.
inline bool matches(const hba_info& b, const hba_info& a) {
    return begins_with(a.serial_no, b.serial_no);
}
