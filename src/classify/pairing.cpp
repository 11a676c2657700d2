#include "classify/pairing.h"

#include "classify/serial_numbers.h"
#include "inventory/hba_info.h"

#include <vector>

namespace {

using Position = std::uint32_t;

constexpr Position nowhere = ~Position{0};

// The ports that adapters may be flashed through: function and port number both
// begin with a digit.
class Candidates {
public:
    Candidates(const SerialNumbers& serials, char digit)
        : serials_(serials), by_serial_(serials.count()) {
        Position position = 0;
        for (const hba_info& port : all_ports()) {
            if (port.pci_function[0] == digit && port.port_number[0] == digit &&
                !serial_missing(port)) {
                all_.push_back(position);
                by_serial_[serials_.of_ports()[position].own].push_back(position);
            }
            ++position;
        }
    }

    // Those that match the port at `port`, in list order. Only when several serial
    // numbers lead the port's are all of them looked through.
    const std::vector<Position>& matching(Position port) {
        const SerialNumbers::Number serial = serials_.of_ports()[port];
        const std::vector<Position>* matching = &none_;
        for (std::uint32_t number = serial.own; number != SerialNumbers::none;
             number = serials_.leader(number)) {
            if (by_serial_[number].empty()) {
                continue;
            }
            if (!matching->empty()) {
                return look_through(serial);
            }
            matching = &by_serial_[number];
        }
        return *matching;
    }

private:
    const std::vector<Position>& look_through(const SerialNumbers::Number& serial) {
        found_.clear();
        for (const Position candidate : all_) {
            if (serials_.of_ports()[candidate].leads(serial)) {
                found_.push_back(candidate);
            }
        }
        return found_;
    }

    const SerialNumbers& serials_;
    std::vector<Position> all_;
    std::vector<std::vector<Position>> by_serial_;
    std::vector<Position> found_;
    const std::vector<Position> none_;
};

// Hangs the port at position `port` into the chain of each candidate: at once, or
// in second place for good, where a later port replaces it. `next` holds the chains
// as positions, since the records are far apart and a list may have a candidate for
// every port.
void chain(Position port, const std::vector<Position>& candidates, std::vector<Position>& next) {
    for (const Position candidate : candidates) {
        Position& link = next[candidate];
        (link == nowhere ? link : next[link]) = port;
    }
}

} // namespace

std::int32_t Determine_Flash_Ports() {
    const SerialNumbers serials(p_hba_info_list);
    Candidates first(serials, '0');
    Candidates second(serials, '1');
    std::vector<Position> next(serials.of_ports().size(), nowhere);
    for (Position position = 0; position < next.size(); ++position) {
        hba_info& port = *p_hba_info_list[position];
        if (serial_missing(port)) {
            continue;
        }
        const std::vector<Position>* candidates = &first.matching(position);
        if (candidates->empty()) {
            candidates = &second.matching(position);
        }
        if (candidates->empty()) {
            continue;
        }
        // The last one becomes the flash port, but each of them gets the port.
        port.flash_port = p_hba_info_list[candidates->back()];
        if (type_begins_with(port, "FCoE")) {
            chain(position, *candidates, next);
        }
    }
    for (Position position = 0; position < next.size(); ++position) {
        if (next[position] != nowhere) {
            p_hba_info_list[position]->next_port = p_hba_info_list[next[position]];
        }
    }
    return 0;
}
