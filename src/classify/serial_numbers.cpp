#include "classify/serial_numbers.h"

#include <algorithm>
#include <string_view>

SerialNumbers::SerialNumbers(hba_info* const* ports) {
    struct Serial {
        std::string_view text;
        std::uint32_t position;
    };
    std::vector<Serial> sorted;
    for (hba_info* const* port = ports; *port != nullptr; ++port) {
        sorted.push_back({(*port)->serial_no, static_cast<std::uint32_t>(sorted.size())});
    }
    std::ranges::sort(sorted, {}, &Serial::text);

    std::vector<std::string_view> texts;
    std::vector<std::uint32_t> last_led;
    of_ports_.resize(sorted.size());
    for (const Serial& serial : sorted) {
        if (texts.empty() || serial.text != texts.back()) {
            const auto number = static_cast<std::uint32_t>(texts.size());
            std::uint32_t leader = number - 1; // the first one has none before it
            while (leader != none && !serial.text.starts_with(texts[leader])) {
                leader = leaders_[leader];
            }
            texts.push_back(serial.text);
            firsts_.push_back(static_cast<std::uint32_t>(sorted_.size()));
            leaders_.push_back(leader);
            last_led.push_back(number);
            for (; leader != none; leader = leaders_[leader]) {
                last_led[leader] = number;
            }
        }
        of_ports_[serial.position].own = static_cast<std::uint32_t>(texts.size() - 1);
        sorted_.push_back(serial.position);
    }
    firsts_.push_back(static_cast<std::uint32_t>(sorted_.size()));
    for (Number& number : of_ports_) {
        number.last_led = last_led[number.own];
    }
}
