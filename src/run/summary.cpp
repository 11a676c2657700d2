#include "run/summary.h"

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/diagnostics.h"
#include "run/base/text.h"

#include <string>

namespace {

void list_entry(const fc_config_file_entry& entry) {
    message(4, "%-10s %-16s\n", entry.vendor, entry.model);
    int count = 0;
    for (const auto* subsystem = entry.periphery; subsystem != nullptr;
         subsystem = subsystem->next) {
        if (!is_blank(subsystem->vendor)) {
            message(4, "\t\t%d) %-10s %-16s\n", ++count, subsystem->vendor, subsystem->models);
        }
    }
    message(4, "\n");
}

void list_controller(const hba_info& port) {
    message(3, "  %s\t%s\t%s\t%s  port %d  function %s\n", port.mfg, port.model, port.port_type,
            port.serial_no, port.port_index, port.pci_function);
    const target_mapping_entry* const storage = port.target_mapping;
    if (storage != nullptr && storage->vendor_id[0] != '\0') {
        message(3, "\n\t%s\n\t%s\n\t%s\n", storage->vendor_id, storage->product_id,
                storage->product_version);
    }
    message(3, "\n");
}

} // namespace

void list_conditions() {
    message(4, "\n%s\n", star_divider);
    message(4, "\nList of allowed Fibre-Channel-Controller and Online-Storage-System "
               "combinations:\n\n");
    for (const fc_config_file_entry* entry : all_conditions()) {
        list_entry(*entry);
    }
    message(4, "\n%s\n", star_divider);
}

void list_controllers() {
    const std::string stars(80, '*');
    message(3, "\n%s \n", stars.c_str());
    message(3, "\nList of Fibre-Channel-Controller and attached Online-Storage-Systems:\n\n");
    for (const hba_info* port : all_ports()) {
        if (has_type(*port, "FCoE")) {
            list_controller(*port);
        }
    }
    message(3, "\n%s\n", stars.c_str());
}

void list_flags(const char* lead, const global_ctrl_flags& flags) {
    message(3, "%sInvalidCtrlSubsystemCombinationFound: %d \n", lead,
            flags.InvalidCtrlSubsystemCombinationFound != 0);
    message(3, "MatchingCtrlModelInstalled: %d \n", flags.MatchingCtrlModelInstalled != 0);
    message(3, "CtrlVendorSpecificSubsystemEquality: %d \n",
            flags.CtrlVendorSpecificSubsystemEquality != 0);
    message(3, "CtrlSpecificSubsystemEquality: %d \n", flags.CtrlSpecificSubsystemEquality != 0);
}
