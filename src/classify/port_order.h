// The order of the ports. The adapter test is one-sided (serial_leads), so
// these are no sorts: which port is asked about which decides the result, and
// every step is stated in positions of the array.
#pragma once

#include "inventory/hba_info.h"

#include <cstddef>

// Reorders a null-terminated array of ports in place, by exchanging slots.
class PortOrder {
public:
    explicit PortOrder(hba_info** ports) : ports_(ports) {}

    // Gathers, from position `start` on, the ports of each adapter behind the
    // first one met.
    void regroup(std::size_t start);

    // Brings the adapters with FCoE ports to the front, then those with iSCSI
    // ports; the switches say which of the two the array holds.
    void by_type(bool fcoe, bool iscsi);

    // Orders each run of matching ports by ascending PCI function.
    void by_function();

private:
    [[nodiscard]] bool follows(std::size_t b, std::size_t a) const {
        return serial_leads(*ports_[b], *ports_[a]);
    }
    void swap(std::size_t a, std::size_t b);
    void gather_behind(std::size_t position);
    void regroup_adapter_of(std::size_t base);
    bool place_adapter(std::size_t& cursor, const char* type);

    hba_info** ports_;

    // Regrouping from a position moves nothing when nothing was exchanged since
    // it was last done from there or from an earlier one. Remembering that keeps
    // ports that are already in order from costing a pass for every adapter.
    static constexpr std::size_t nowhere = ~std::size_t{0};
    std::size_t regrouped_from_ = nowhere;
};
