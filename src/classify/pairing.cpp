#include "classify/pairing.h"

#include "inventory/hba_info.h"

#include <vector>

namespace {

// The ports that adapters may be flashed through: function and port number both
// begin with `digit`. Found once, not once for every port to be linked.
std::vector<hba_info*> flash_candidates(char digit) {
    std::vector<hba_info*> candidates;
    for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
        if ((*port)->pci_function[0] == digit && (*port)->port_number[0] == digit &&
            !serial_missing(**port)) {
            candidates.push_back(*port);
        }
    }
    return candidates;
}

// The last matching candidate becomes the flash port, but each of them gets the
// port into its chain.
void link_to(hba_info& port, const std::vector<hba_info*>& candidates) {
    const bool chained = begins_with(port.port_type, "FCoE");
    for (hba_info* const candidate : candidates) {
        if (!matches_adapter(*candidate, port)) {
            continue;
        }
        port.flash_port = candidate;
        if (chained && candidate->next_port == nullptr) {
            candidate->next_port = &port;
        } else if (chained) {
            candidate->next_port->next_port = &port;
        }
    }
}

} // namespace

int Determine_Flash_Ports() {
    const std::vector<hba_info*> first = flash_candidates('0');
    const std::vector<hba_info*> second = flash_candidates('1');
    for (hba_info** port = p_hba_info_list; *port != nullptr; ++port) {
        if (serial_missing(**port)) {
            continue;
        }
        link_to(**port, first);
        if ((*port)->flash_port == nullptr) {
            link_to(**port, second);
        }
    }
    return 0;
}
