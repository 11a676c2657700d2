// The serial numbers of a list of ports as small integers.
#pragma once

#include "inventory/hba_info.h"

#include <cstdint>
#include <span>
#include <vector>

// The adapter test is one-sided: a port belongs to another's adapter when its serial
// number leads the other's, that is, equals it or a leading part of it. An empty one
// leads them all. Numbered in ascending order, the serial numbers that begin with one
// stand right after it, so that comparing integers tells which one leads which.
class SerialNumbers {
public:
    // Which of them a port has, and the last one that it leads.
    struct Number {
        std::uint32_t own;
        std::uint32_t last_led;

        [[nodiscard]] bool leads(const Number& other) const {
            return own <= other.own && other.own <= last_led;
        }
    };

    static constexpr std::uint32_t none = ~std::uint32_t{0};

    explicit SerialNumbers(hba_info* const* ports);

    // How many different ones there are.
    [[nodiscard]] std::size_t count() const { return leaders_.size(); }

    // The numbers of the ports, in the order of the list.
    [[nodiscard]] const std::vector<Number>& of_ports() const { return of_ports_; }

    // The positions of the ports that have it.
    [[nodiscard]] std::span<const std::uint32_t> ports_with(std::uint32_t number) const {
        return std::span(sorted_).subspan(firsts_[number], firsts_[number + 1] - firsts_[number]);
    }

    // The longest other serial number that leads this one; usually none.
    [[nodiscard]] std::uint32_t leader(std::uint32_t number) const { return leaders_[number]; }

private:
    std::vector<Number> of_ports_;
    std::vector<std::uint32_t> leaders_;
    std::vector<std::uint32_t> sorted_; // positions by serial number
    std::vector<std::uint32_t> firsts_; // where those of each one begin, and the end
};
