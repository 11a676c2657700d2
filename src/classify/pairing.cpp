#include "classify/pairing.h"

#include "classify/adapter.h"

namespace {

// Links a port with each port of its adapter whose function and number begin with `digit`. The last
// wins. An FCoE port becomes the head of each one's chain, or replaces what follows the head.
void link_with_candidates(hba_info& port, char digit) {
    for (hba_info* candidate : all_ports()) {
        if (candidate->pci_function[0] != digit || candidate->port_number[0] != digit ||
            serial_missing(*candidate) || !matches(*candidate, port)) {
            continue;
        }
        port.flash_port = candidate;
        if (is_fcoe(port)) {
            hba_info*& head = candidate->next_port;
            (head == nullptr ? head : head->next_port) = &port;
        }
    }
}

} // namespace

std::int32_t Determine_Flash_Ports() {
    for (hba_info* port : all_ports()) {
        if (serial_missing(*port)) {
            continue;
        }
        link_with_candidates(*port, '0');
        if (port->flash_port == nullptr) {
            link_with_candidates(*port, '1');
        }
    }
    return 0;
}
