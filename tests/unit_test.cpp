// What rows over the program can't reach, or can't show why.

#include "check/consistency.h"
#include "check/subsystem.h"
#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "inventory/attributes.h"
#include "run/base/diagnostics.h"
#include "run/base/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>

namespace {

using Rows = std::initializer_list<std::pair<const char*, const char*>>;

TEST(Text, NumbersFollowTheLibraryButEndWithTheText) {
    const auto read = [](std::string text, int base) { return string2int(text.data(), base); };
    std::string numbers;
    for (const char* decimal : {"3x", "", " \n", "-5", "-", "-5x", "--5", "+3", " -5", "\t"}) {
        numbers += std::to_string(read(decimal, 10)) + " ";
    }
    EXPECT_EQ(numbers, "-1 -1 -1 -5 0 1 5 3 -5 -1 ");
    EXPECT_EQ(read("0x19A2", 16), 0x19a2);
    EXPECT_EQ(read("7FFFFFFF", 16), INT32_MAX);
    EXPECT_EQ(read("-80000000", 16), INT32_MIN);
    EXPECT_EQ(read("1FFFFFFFF0001", 16), -65535);
}

// Both streams.
template <class Write>
std::string written(int verbose, int debug, int screen, Write write) {
    set_levels(debug, verbose, screen);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int result = write();
    static_cast<void>(std::fflush(stdout));
    const std::string out = testing::internal::GetCapturedStdout();
    return out + "|" + testing::internal::GetCapturedStderr() + "|" + std::to_string(result);
}

// No command line shows the screen to a debug run.
TEST(Diagnostics, LevelsAndScreenDecideWhereAMessageGoes) {
    const auto write = [] { return PrintDebug(2, "m", nullptr); };
    EXPECT_EQ(written(2, 0, 1, write), "m||1");
    EXPECT_EQ(written(1, 0, 1, write), "||0");
    EXPECT_EQ(written(0, 2, 1, write), "|m|1");
    EXPECT_EQ(written(6, 6, 0, write), "||0");
}

// Every line of the file counts for its number, the text is the stored one.
TEST(Conditions, RefusalNamesLineColumnAndStoredText) {
    const std::string path = testing::TempDir() + "cnatool_test_conditions";
    set_levels(1, 0, 1);
    for (const auto& [columns, refusal] :
         Rows{{"E|M|19A2|0714|1C3E|nothex7", "Sub-System-Id nothe"},
              {"E|M|1|2|x", "Sub-Vendor-Id x"},
              {"E|M|1|", "Device-Id "},
              {"E|M|-1", "Vendor-Id -1"}}) {
        std::ofstream(path) << "# comment\n--+--\n" << columns << "\n";
        EXPECT_EXIT(Read_FC_Config_File(path.c_str()), testing::ExitedWithCode(55),
                    std::string("^\nError line 3: ") + refusal + " is not a valid hex value!\n$");
    }
    static_cast<void>(std::remove(path.c_str()));
}

// Nothing shows most of the fields; each character of them counts.
TEST(Attributes, EveryLabelFillsItsField) {
    copy_text(pHBAWorkingPath, CNATOOL_EXAMPLE);
    active_option_simulate = 1;
    set_levels(0, 0, 0);
    hba_info& port = *get_new_hba_info_entry();
    copy_text(port.serial_no, "VM10250117");
    copy_text(port.pci_function, "2");
    ASSERT_EQ(read_attributes(port, ""), 0);
    const std::string fields(reinterpret_cast<const char*>(port.attributes),
                             offsetof(hba_attributes_entry, vendor_spec_id_val));
    EXPECT_EQ(std::count(fields.begin(), fields.end(), '\0'), 910);
    release_hba_info_list();
}

TEST(Check, GroupsAndReferences) {
    const auto b_and_a_in = [](const char* group) {
        return written(1, 0, 1, [&] { return CheckModelGroupConsistency(group, "B,A"); });
    };
    EXPECT_TRUE(b_and_a_in("A,B").ends_with(" A found in Group: A,B\n"
                                            "\tReference subsystem B found in Group: A,B\n||1"));
    EXPECT_EQ(b_and_a_in("AA,B"),
              "\tAlready identified reference subsystems: B,A  Subsystem group: AA,B\n"
              "\tReference subsystem 'A' not in Group: >AA,B< => Skip this group.\n||0");
    target_mapping_entry storage[3]{};
    copy_text(storage[2].vendor_id, "DGC");
    hba_info none{};
    hba_info a{};
    hba_info b{};
    hba_info c{};
    a.target_mapping = &storage[0];
    b.target_mapping = &storage[1];
    c.target_mapping = &storage[2];
    EXPECT_FALSE(NewCompareWithReferenceSystem(a, b));
    EXPECT_FALSE(NewCompareWithReferenceSystem(a, none));
    EXPECT_FALSE(NewCompareWithReferenceSystem(none, a));
    EXPECT_TRUE(NewCompareWithReferenceSystem(a, c));
}

// Makes the list of ports, each written as its serial number ("?" is missing), the
// first letter of its type, its function and, after a slash, its number.
void lay_ports(const char* list) {
    release_hba_info_list();
    set_levels(0, 0, 0);
    std::istringstream ports(list);
    for (std::string text; ports >> text;) {
        hba_info& port = *get_new_hba_info_entry();
        const std::size_t type = text.find_first_of("FCint");
        const std::size_t slash = text.find('/');
        copy_text(port.serial_no, text[0] == '?' ? "n/a" : text.substr(0, type));
        for (const char* name : {"FCoE", "CFC", "iSCSI", "nFC2", "tFCoE2"}) {
            if (*name == text[type]) {
                copy_text(port.port_type, name + (*name == 'F' || *name == 'i' ? 0 : 1));
            }
        }
        copy_text(port.pci_function, text.substr(type + 1, slash - type - 1));
        copy_text(port.port_number, slash < text.size() ? text.substr(slash + 1) : "");
        copy_text(port.model, text);
    }
}

TEST(Ports, ComeInOrder) {
    for (const auto& [before, after] : Rows{
             {"XF1 Yi0 XF0 ZF0 Yi1 WC0 ZF1", "XF0 XF1 ZF0 ZF1 Yi0 Yi1"},
             {"Yi0 Nn0 XF0 Yi1 XF1", "XF0 XF1 Yi0 Yi1 Nn0"},
             {"An10 An9 At8", "At8 An9 An10"},
             {"At10 ABn0 ABDt0 Ai9 ABDF10", "Ai9 ABDt0 ABn0 ABDF10 At10"},
             {"An0 ABDF10 ABn10 ABn10 ABi0 ABDt9 Ai9", "Ai9 ABi0 An0 ABn10 ABn10 ABDt9 ABDF10"},
             {"ABi9 n10 ABt0 Bn10 ABi0 BDF9 ABF0", "ABF0 n10 BDF9 Bn10 ABt0 ABi0 ABi9"},
             {"An1 Bn1 En2 An1 ABDF2 ABDn0 ABDF1", "An1 ABDn0 An1 ABDF1 ABDF2 Bn1 En2"},
             {"t1 ABt1 BDt0 Ei0 Ei1 BDn0", "Ei0 t1 Ei1 BDn0 BDt0 ABt1"},
             {"Ei0 ABDt1 BDi0 t1 ABF1 At0 ABt1", "ABF1 t1 BDi0 Ei0 At0 ABt1 ABDt1"},
             {"EF0 Ai0 ABDi10 ABDn9 ABn0 ABDi0 BF0", "EF0 BF0 ABn0 Ai0 ABDi0 ABDn9 ABDi10"},
         }) {
        lay_ports(before);
        Classify_Ctrl_List();
        std::string order;
        for (const hba_info& port : all_ports()) {
            order += (order.empty() ? "" : " ") + std::string(port.model);
        }
        EXPECT_EQ(order, after) << before;
    }
}

// For each port its flash port and the next port of the chain.
TEST(Ports, AreChainedFromTheFlashPort) {
    for (const auto& [ports, expected] : Rows{
             // A fourth port replaces the third one.
             {"AF0/0 AF1/1 AF2/2 AF3/3", "01 03 0- 0- "},
             {"AF0/0 AF1/1 At2/2", "01 02 0- "},
             {"AF01/07 Ai0/1 Bi0/0 Bi1/1 ?F0/0", "00 0- 2- 2- -- "},
             {"AF1/1 AF2/2 BF0/1 BF1/0", "01 0- -- -- "},
             // A leading part of the others' serial numbers serves them all, before any
             // port with function 1 is looked at; the last candidate serves.
             {"AXi1/1 AXF2/2 An0/0 AYn5/0", "2- 2- 21 2- "},
             {"ABF0/0 AF0/0 BF1/1", "11 10 22 "},
         }) {
        lay_ports(ports);
        Determine_Flash_Ports();
        std::string links;
        for (const hba_info& port : all_ports()) {
            for (const hba_info* linked : {port.flash_port, port.next_port}) {
                hba_info** slot = p_hba_info_list;
                while (*slot != nullptr && *slot != linked) {
                    ++slot;
                }
                links += *slot == nullptr ? "-" : std::to_string(slot - p_hba_info_list);
            }
            links += " ";
        }
        EXPECT_EQ(links, expected) << ports;
    }
    release_hba_info_list();
}

} // namespace
