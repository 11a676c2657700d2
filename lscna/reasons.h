// Why a port is not known, or not judged: the reasons that lscna gives.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"

#include <string>

// What ports have in common that are not known, or not judged; empty when there is no such cause.
struct CommonCauses {
    std::string inventory_ended;
    std::string conditions_unusable;
};

// The port's four PCI ids as -pci-id takes them; empty when one of them is not known.
std::string pci_id(const hba_info& port);

// The record with a number that counts from 1 over all records.
const fc_config_file_entry& record_at(int number);

// The number of the first record that `fits`; 0 when none does.
template <class Fits>
int find_record(Fits fits) {
    int number = 0;
    for (const fc_config_file_entry* record : all_conditions()) {
        ++number;
        if (fits(*record)) {
            return number;
        }
    }
    return 0;
}

// The first record with the port's four ids, whose images a flash takes; 0 when there is none.
int record_with_ids(const hba_info& port);

// The record that has the port's ids in another order, as a reason; empty when there is none.
std::string swapped_record(const hba_info& port);

// Why no record is for the port, with the record that comes nearest.
std::string missing_record(const hba_info& port);

// The reason of an adapter that can't be flashed.
extern const char* const no_flash_port;

// Why the port's ids or its storage are not known; empty when they are.
std::string unknown_reason(const hba_info& port, const CommonCauses& causes);

// Why a check does not judge the port, for which `record` (0: none) is; empty when it does.
std::string unjudged_reason(const hba_info& port, int record, const CommonCauses& causes);
