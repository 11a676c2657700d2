// What rows over the program can't reach, or can't show why.

#include "check/consistency.h"
#include "check/subsystem.h"
#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "inventory/attributes.h"
#include "run/base/diagnostics.h"
#include "run/base/settings.h"
#include "run/base/shell_command.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <utility>

namespace {

TEST(Text, NumbersFollowTheLibraryButEndWithTheText) {
    const auto number = [](std::string text, int base) { return string2int(text.data(), base); };
    const std::pair<const char*, std::int32_t> decimals[] = {
        {"6", 6},   {"3x", -1}, {"", -1},  {" \n", -1}, {"-5", -5}, {"-", 0},
        {"-5x", 1}, {"--5", 5}, {"+3", 3}, {" -5", -5}, {"\t", -1}};
    for (const auto& [text, value] : decimals) {
        EXPECT_EQ(number(text, 10), value) << "'" << text << "'";
    }
    const std::pair<const char*, std::int32_t> hexadecimals[] = {
        {"0x19A2", 0x19a2},       {" 19a2\n", 0x19a2},     {"FFFFFFFF", -1},
        {"7FFFFFFF", 0x7fffffff}, {"80000000", INT32_MIN}, {"-80000000", INT32_MIN},
        {"1FFFFFFFF0001", -65535}};
    for (const auto& [text, value] : hexadecimals) {
        EXPECT_EQ(number(text, 16), value) << "'" << text << "'";
    }
    std::string trailing = " 19A2 \n";
    string2int(trailing.data(), 16);
    EXPECT_STREQ(trailing.c_str(), " 19A2");
}

TEST(Text, CleaningKeepsCarriageReturns) {
    std::string quoted = "  \"Emulex\"\t\n";
    EXPECT_STREQ(cleanString(quoted.data()), "Emulex");
    EXPECT_STREQ(quoted.c_str(), "   Emulex");
    std::string carriage = " a b\r\n";
    EXPECT_STREQ(cleanString(carriage.data()), "a b\r");
    std::string blank = "\"\t\n";
    EXPECT_STREQ(cleanString(blank.data()), "");
}

TEST(ShellWord, LeavesPlainCharacters) {
    EXPECT_EQ(shell_word("/opt/a-b_c.d,e=f+g%h@i:jZ9"), "/opt/a-b_c.d,e=f+g%h@i:jZ9");
    for (const char* other : {"~a", "\xc3\xa4", "a\r", "a\\", "a&", "a#"}) {
        EXPECT_EQ(shell_word(other), "'" + std::string(other) + "'");
    }
}

// No command line shows the screen to a debug run.
std::string written(int verbose, int debug, int screen, const std::function<void()>& write) {
    set_levels(debug, verbose, screen);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    write();
    static_cast<void>(std::fflush(stdout));
    const std::string out = testing::internal::GetCapturedStdout();
    return out + "|" + testing::internal::GetCapturedStderr();
}

TEST(Diagnostics, LevelsAndScreenDecideWhereAMessageGoes) {
    const auto print = [](int level, int result) {
        return [=] { EXPECT_EQ(PrintDebug(level, "m", nullptr), result); };
    };
    EXPECT_EQ(written(1, 0, 1, print(1, 1)), "m|");
    EXPECT_EQ(written(3, 0, 1, print(4, 0)), "|");
    EXPECT_EQ(written(0, 0, 1, print(1, 0)), "|");
    EXPECT_EQ(written(0, 2, 1, print(2, 1)), "|m");
    EXPECT_EQ(written(6, 6, 0, print(1, 0)), "|");
}

// Every line of the file counts for its number, the text is the stored one.
TEST(Conditions, RefusalNamesLineColumnAndStoredText) {
    const std::string path = testing::TempDir() + "cnatool_test_conditions";
    set_levels(1, 0, 1);
    for (const auto& [columns, refusal] :
         {std::pair{"E|M|19A2|0714|1C3E|nothex7", "Sub-System-Id nothe"},
          {"E|M|1|2|x", "Sub-Vendor-Id x"},
          {"E|M|1|", "Device-Id "},
          {"E|M|-1", "Vendor-Id -1"}}) {
        std::ofstream(path) << "# comment\n--+--\n" << columns << "\n";
        EXPECT_EXIT(Read_FC_Config_File(path.c_str()), testing::ExitedWithCode(55),
                    std::string("^\nError line 3: ") + refusal + " is not a valid hex value!\n$");
    }
    std::remove(path.c_str());
}

// The fields stand in the order of the labels; whatever is stored in them is text.
TEST(Attributes, EveryLabelFillsItsField) {
    std::istringstream labels(
        "Host Name,Manufacturer,Serial Number,Model,Model Desc,Node WWN,Node Symname,HW Version,FW "
        "Version,Vendor Spec ID,Number of Ports,Driver Name,Device ID,HBA Type,Operational FW,IEEE "
        "Address,PXE Boot,Driver Version,Board Temperature,Function Type,Sub Device ID,Port Number,"
        "PCI Bus Number,PCI Func Number,Sub Vendor ID,Firmware Status,Service Processor FW Name,ULP"
        " FW Name,IPL Filename,NCSI Version,Start-up Boot Code Version,FCoE Universal Version,FCoE "
        "x86 BIOS Version,FCoE EFI Version,FCoE FCODE Version,UEFI BIOS Version,UEFI NIC Version,"
        "UEFI FCODE Version,UEFI iSCSI Version,PCI Express Link Speed,PCI Express Bus Width");
    const std::string path = testing::TempDir();
    std::string report = "HBA Attributes for x\n", expected, found;
    int number = 0x100;
    for (std::string label; std::getline(labels, label, ',');) {
        std::ostringstream value;
        value << std::hex << ++number;
        report += label + " : " + value.str() + "\n";
        expected += value.str() + " ";
    }
    std::ofstream(path + "__hba_attributes.out") << report;
    copy_text(pHBAWorkingPath, path);
    active_option_simulate = 1;
    set_levels(0, 0, 0);
    hba_info& port = *get_new_hba_info_entry();
    ASSERT_EQ(read_attributes(port, ""), 0);
    const auto* const bytes = reinterpret_cast<const char*>(port.attributes);
    const std::string_view fields(bytes, offsetof(hba_attributes_entry, vendor_spec_id_val));
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const bool text = fields[i] != '\0';
        found += text ? std::string(1, fields[i]) : i > 0 && fields[i - 1] != '\0' ? " " : "";
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(port.attributes->vendor_spec_id_val, 0x10aU);
    EXPECT_EQ(port.attributes->subvendor_id_val, 0x119U);
    release_hba_info_list();
    std::remove((path + "__hba_attributes.out").c_str());
}

TEST(Check, GroupsAndReferences) {
    const auto all_in = [](const char* group, const char* references) {
        return written(1, 0, 1,
                       [=] { std::printf("%d", CheckModelGroupConsistency(group, references)); });
    };
    EXPECT_EQ(all_in("A,B", "B,A"),
              "\tAlready identified reference subsystems: B,A  Subsystem group: A,B\n"
              "\tReference subsystem A found in Group: A,B\n"
              "\tReference subsystem B found in Group: A,B\n1|");
    EXPECT_EQ(all_in("AA,B", "B,A"),
              "\tAlready identified reference subsystems: B,A  Subsystem group: AA,B\n"
              "\tReference subsystem 'A' not in Group: >AA,B< => Skip this group.\n0|");
    target_mapping_entry one{}, same{}, other{};
    copy_text(other.vendor_id, "DGC");
    hba_info a{}, b{};
    EXPECT_FALSE(NewCompareWithReferenceSystem(a, b));
    a.target_mapping = &one;
    EXPECT_FALSE(NewCompareWithReferenceSystem(a, b));
    EXPECT_FALSE(NewCompareWithReferenceSystem(b, a));
    b.target_mapping = &same;
    EXPECT_FALSE(NewCompareWithReferenceSystem(a, b));
    b.target_mapping = &other;
    EXPECT_TRUE(NewCompareWithReferenceSystem(a, b));
}

// A port of these lists is its serial number, the first letter of its type and its
// function; behind a slash its number.
void lay_ports(const char* list) {
    release_hba_info_list();
    std::istringstream ports(list);
    for (std::string text; ports >> text;) {
        hba_info& port = *get_new_hba_info_entry();
        const std::size_t type = text.find_first_of("FCint");
        const std::size_t slash = text.find('/');
        copy_text(port.serial_no, text.substr(0, type));
        copy_text(port.pci_function, text.substr(type + 1, slash - type - 1));
        copy_text(port.port_number, slash == std::string::npos ? "" : text.substr(slash + 1));
        const char letter = text[type];
        copy_text(port.port_type, letter == 'F'   ? "FCoE"
                                  : letter == 'C' ? "FC"
                                  : letter == 'i' ? "iSCSI"
                                  : letter == 't' ? "FCoE2"
                                                  : "NIC");
        copy_text(port.model, text);
    }
}

TEST(Ports, ComeInOrder) {
    set_levels(0, 0, 0);
    const std::pair<const char*, const char*> rows[] = {
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
        {"An2 An1 An0", "An0 An1 An2"},
    };
    for (const auto& [before, after] : rows) {
        lay_ports(before);
        Classify_Ctrl_List();
        std::string order;
        for (const hba_info& port : all_ports()) {
            order += (order.empty() ? "" : " ") + std::string(port.model);
        }
        EXPECT_EQ(order, after) << before;
    }
}

TEST(Ports, AreChainedFromTheFlashPort) {
    // For each port the flash port and the next port of the chain, by position.
    const std::pair<const char*, const char*> rows[] = {
        // A fourth port replaces the third one.
        {"AF0/0 AF1/1 AF2/2 AF3/3", "01 03 0- 0-"},
        {"AF0/0 AF1/1 At2/2", "01 02 0-"},
        {"AF01/07 Ai0/1 Bi0/0 Bi1/1 ?F0/0", "00 0- 2- 2- --"},
        {"AF1/1 AF2/2 BF0/1 BF1/0", "01 0- -- --"},
        // A leading part of the others' serial numbers serves them all, before any
        // port with function 1 is looked at; the last candidate serves.
        {"AXi1/1 AXF2/2 An0/0 AYn5/0", "2- 2- 21 2-"},
        {"AF0/0 AF0/0 Ai1/1", "11 10 1-"},
        {"ABF0/0 AF0/0 BF1/1", "11 10 22"},
    };
    for (const auto& [ports, expected] : rows) {
        lay_ports(ports);
        const auto position = [](const hba_info* wanted) {
            std::size_t i = 0;
            for (const hba_info& port : all_ports()) {
                if (&port == wanted) {
                    return std::to_string(i);
                }
                ++i;
            }
            return std::string("-");
        };
        for (hba_info& port : all_ports()) {
            if (port.serial_no[0] == '?') {
                copy_text(port.serial_no, "n/a");
            }
        }
        Determine_Flash_Ports();
        std::string links;
        for (const hba_info& port : all_ports()) {
            links +=
                (links.empty() ? "" : " ") + position(port.flash_port) + position(port.next_port);
        }
        EXPECT_EQ(links, expected) << ports;
    }
    release_hba_info_list();
}

} // namespace
