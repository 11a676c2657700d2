#include "classify/pairing.h"
#include "classify/port_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>
#include <string>
#include <vector>

namespace {

// Ports with the null-terminated list that the phases work on.
class Ports {
public:
    hba_info& add(const char* serial, const char* type, const char* function, const char* number) {
        hba_info& port = records_.emplace_back();
        copy_text(port.serial_no, serial);
        copy_text(port.port_type, type);
        copy_text(port.pci_function, function);
        copy_text(port.port_number, number);
        list_.insert(list_.end() - 1, &port);
        p_hba_info_list = list_.data();
        return port;
    }
    std::vector<hba_info*>& list() { return list_; }

private:
    std::deque<hba_info> records_;
    std::vector<hba_info*> list_{nullptr};
};

bool matches(const hba_info* b, const hba_info* a) {
    return std::string_view(a->serial_no).starts_with(b->serial_no);
}

// The order by type as its procedure is told, without remembering anything.
class PlainOrder {
public:
    explicit PlainOrder(std::vector<hba_info*> list) : l_(std::move(list)) {}

    std::vector<hba_info*> run(bool fcoe, bool iscsi) {
        regroup(0, nullptr);
        for (std::size_t r = 0; l_[r] != nullptr && (fcoe || iscsi); ++r) {
            bool placed = false;
            for (const auto& [type, present] : {std::pair{"FCoE", fcoe}, {"iSCSI", iscsi}}) {
                if (placed || !present) {
                    continue;
                }
                if (has_type(*l_[r], type)) {
                    regroup(r, nullptr);
                    placed = true;
                } else if (l_[r + 1] == nullptr) {
                    return l_;
                } else if (const auto s = find(r + 1, type); l_[s] != nullptr) {
                    std::swap(l_[r], l_[s]);
                    regroup(r, l_[r]);
                    placed = true;
                }
            }
            while (placed && l_[r + 1] != nullptr && matches(l_[r + 1], l_[r])) {
                ++r;
            }
            if (!placed) {
                break;
            }
        }
        return l_;
    }

private:
    std::size_t find(std::size_t s, const char* type) {
        while (l_[s] != nullptr && !has_type(*l_[s], type)) {
            ++s;
        }
        return s;
    }
    void regroup(std::size_t p, const hba_info* base) {
        for (; l_[p] != nullptr && (base == nullptr || matches(base, l_[p])); ++p) {
            if (l_[p + 1] == nullptr) {
                return;
            }
            if (matches(l_[p + 1], l_[p])) {
                continue;
            }
            std::size_t slot = p + 1;
            for (std::size_t q = p + 2; l_[q] != nullptr; ++q) {
                if (matches(l_[q], l_[p])) {
                    std::swap(l_[slot++], l_[q]);
                }
            }
        }
    }

    std::vector<hba_info*> l_;
};

TEST(PortOrder, IsThatOfThePlainProcedure) {
    std::mt19937 random(20121105); // NOLINT(cert-msc*): the same lists every time
    const auto one_of = [&](const std::vector<const char*>& texts) {
        return texts[random() % texts.size()];
    };
    const std::vector<const char*> serials = {"A", "B", "C", "AB", "ABC", "D", "CB", ""};
    const std::vector<const char*> types = {"FCoE", "iSCSI", "NIC", "FCoE2"};
    for (int round = 0; round < 20000; ++round) {
        Ports ports;
        // Few serials, or few types, now and then.
        const std::vector<const char*> some(serials.begin(), serials.begin() + 1 + round % 8);
        const std::vector<const char*> kinds(types.begin(), types.begin() + 1 + round / 8 % 4);
        for (std::size_t n = 1 + random() % 12; n > 0; --n) {
            ports.add(one_of(some), one_of(kinds), one_of({"0", "1", "2", "10"}), "0");
        }
        const auto any = [&](const char* type) {
            return std::any_of(ports.list().begin(), ports.list().end() - 1,
                               [&](const hba_info* port) { return has_type(*port, type); });
        };
        const auto expected = PlainOrder(ports.list()).run(any("FCoE"), any("iSCSI"));
        PortOrder order(ports.list().data());
        order.regroup(0);
        order.by_type(any("FCoE"), any("iSCSI"));
        ASSERT_EQ(ports.list(), expected) << "list " << round;
    }
}

TEST(Pairing, ChainsStartAtTheFlashPort) {
    Ports ports;
    hba_info& f = ports.add("S1", "FCoE", "0", "0");
    hba_info& s = ports.add("S1", "FCoE", "1", "1");
    hba_info& t = ports.add("S1", "FCoE", "2", "2");
    hba_info& u = ports.add("S1", "FCoE", "3", "3");
    hba_info& alone = ports.add("S2", "FCoE", "01", "07");
    hba_info& iscsi = ports.add("S3", "iSCSI", "0", "0");
    hba_info& sibling = ports.add("S3", "iSCSI", "1", "1");
    hba_info& missing = ports.add("n/a", "FCoE", "0", "0");
    Determine_Flash_Ports();
    for (const hba_info* port : {&f, &s, &t, &u}) {
        EXPECT_EQ(port->flash_port, &f);
    }
    // A fourth port replaces the third one.
    EXPECT_EQ(f.next_port, &s);
    EXPECT_EQ(s.next_port, &u);
    EXPECT_EQ(t.next_port, nullptr);
    EXPECT_EQ(u.next_port, nullptr);
    EXPECT_EQ(alone.flash_port, &alone);
    EXPECT_EQ(alone.next_port, &alone);
    EXPECT_EQ(sibling.flash_port, &iscsi);
    EXPECT_EQ(iscsi.next_port, nullptr);
    EXPECT_EQ(missing.flash_port, nullptr);
}

TEST(Pairing, FallsBackToFunctionAndPortOne) {
    Ports ports;
    hba_info& first = ports.add("S1", "iSCSI", "1", "1");
    hba_info& second = ports.add("S1", "iSCSI", "2", "2");
    hba_info& crossed = ports.add("S2", "FCoE", "0", "1");
    ports.add("S2", "FCoE", "1", "0");
    hba_info& prefix = ports.add("S", "NIC", "0", "0");
    hba_info& longer = ports.add("S4", "NIC", "5", "0");
    Determine_Flash_Ports();
    // A serial number that is a leading part of the others' serves them all,
    // before any port with function 1 is looked at.
    for (const hba_info* port : {&first, &second, &crossed, &longer, &prefix}) {
        EXPECT_EQ(port->flash_port, &prefix);
    }
    copy_text(prefix.serial_no, "T");
    for (hba_info* port : {&first, &second, &crossed}) {
        port->flash_port = nullptr;
    }
    Determine_Flash_Ports();
    EXPECT_EQ(first.flash_port, &first);
    EXPECT_EQ(second.flash_port, &first);
    EXPECT_EQ(crossed.flash_port, nullptr);
}

} // namespace
