#include "classify/pairing.h"

#include "inventory/hba_info.h"

#include <vector>

namespace {

// The ports that adapters may be flashed through: function and port number both
// begin with `digit`. Found once, not once for every port to be linked.
std::vector<hba_info*> flash_candidates(char digit) {
    std::vector<hba_info*> candidates;
    for (hba_info& port : all_ports()) {
        if (port.pci_function[0] == digit && port.port_number[0] == digit &&
            !serial_missing(port)) {
            candidates.push_back(&port);
        }
    }
    return candidates;
}

// Makes the last candidate of the port's adapter its flash port; each of them gets
// an FCoE port into its chain.
void link_to(hba_info& port, const std::vector<hba_info*>& candidates) {
    for (hba_info* const candidate : candidates) {
        if (!serial_leads(*candidate, port)) {
            continue;
        }
        port.flash_port = candidate;
        if (type_begins_with(port, "FCoE")) {
            hba_info*& second = candidate->next_port;
            (second == nullptr ? second : second->next_port) = &port;
        }
    }
}

} // namespace

std::int32_t Determine_Flash_Ports() {
    const std::vector<hba_info*> first = flash_candidates('0');
    const std::vector<hba_info*> second = flash_candidates('1');
    for (hba_info& port : all_ports()) {
        if (serial_missing(port)) {
            continue;
        }
        link_to(port, first);
        if (port.flash_port == nullptr) {
            link_to(port, second);
        }
    }
    return 0;
}
