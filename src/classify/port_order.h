// The order of the ports. The adapter test is one-sided (SerialNumbers), so
// these are no sorts: which port is asked about which decides the result, and
// every step is stated in positions of the array.
#pragma once

#include "classify/serial_numbers.h"
#include "inventory/hba_info.h"

#include <cstddef>
#include <vector>

// Reorders a null-terminated array of ports in place, by exchanging slots.
//
// A list may be long and in any order, so nothing is looked for that is known to be
// absent. The exchanges stay the same:
// - Regrouping from a position leaves each later port with one that matches it as the
//   next, or with none after it. It moves nothing when done again from there or
//   further on, as long as the serial numbers have kept their places.
// - The later ports that match one are counted by their serial numbers, and taken
//   from that number's ports in the order of their places.
// - No port is lower than the lowest of its run, so that ends the exchange with the
//   ports after it.
class PortOrder {
public:
    explicit PortOrder(hba_info** ports);

    // Gathers, from position `start` on, the ports of each adapter after the
    // first one met.
    void regroup(std::size_t start);

    // Brings the adapters with FCoE ports to the front, then those with iSCSI
    // ports; the switches say which of the two the array holds.
    void by_type(bool fcoe, bool iscsi);

    // Orders each run of matching ports by ascending PCI function.
    void by_function();

private:
    enum class Type : std::uint8_t { fcoe, iscsi, other };

    // What the order depends on, beside the records, which are far apart.
    struct Key {
        SerialNumbers::Number serial;
        std::uint32_t port; // its first position
        std::int16_t function;
        Type type;
    };

    [[nodiscard]] Key key_of(std::size_t position) const;

    [[nodiscard]] bool follows(std::size_t b, std::size_t a) const {
        return keys_[b].serial.leads(keys_[a].serial);
    }
    void swap(std::size_t a, std::size_t b);
    void count_behind(std::size_t position);
    const std::vector<std::size_t>& followers_behind(std::size_t position);
    void gather_behind(std::size_t position);
    void regroup_adapter_of(std::size_t base);
    bool place_adapter(std::size_t& cursor, Type type);
    void pull_lowest(std::size_t position, std::int16_t lowest);

    hba_info** ports_;
    SerialNumbers serials_;
    std::vector<Key> keys_;              // of the ports, exchanged with them
    std::vector<std::size_t> positions_; // where each port stands
    std::vector<std::size_t> followers_;

    // How many ports have each serial number, behind the position `counted_at_`.
    std::vector<std::size_t> behind_;
    std::size_t counted_at_ = 0;

    static constexpr std::size_t nowhere = ~std::size_t{0};
    std::size_t regrouped_from_ = nowhere;
};
