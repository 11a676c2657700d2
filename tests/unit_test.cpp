// What no run of the program reaches, or shows the reason of.

#include "classify/classify.h"
#include "classify/pairing.h"
#include "inventory/hba_info.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/shell_command.h"
#include "run/driver.h"
#include "run/help.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <iomanip>
#include <new>
#include <sstream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

static int records_left = INT_MAX; // made before there is no memory for one

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return records_left-- == 0 ? nullptr : ::operator new(size);
}

namespace {

using Rows = std::initializer_list<std::pair<const char*, const char*>>;

TEST(Text, NumbersFollowTheLibraryButEndWithTheText) {
    const auto read = [](std::string text, int base) { return string2int(text.data(), base); };
    for (const auto& [decimal, number] :
         {std::pair{"3x", -1}, {" \n", -1}, {"-5x", 1}, {" -5", -5}, {"--5", 5}}) {
        EXPECT_EQ(read(decimal, 10), number) << decimal;
    }
    EXPECT_EQ(read("-80000000", 16), INT32_MIN);
    // Only the lower 32 bits count.
    EXPECT_EQ(read("1FFFFFFFF0001", 16), -0xffff);
}

// For the record of a selection, of a condition, a subsystem, a port, its attributes and its
// target mapping. The example has eleven ports; a broken program could overwrite its reports.
TEST(Run, ExhaustedMemoryEndsItWithAMessage) {
    const auto blade = testing::TempDir() + "cnatool_unit_tests_" + std::to_string(getpid());
    std::filesystem::copy("examples/blade", blade, std::filesystem::copy_options::recursive);
    for (const auto& [records, message] :
         {std::pair{0, ""},
          {1, "Could not allocate memory for new fc_config_file entry.\n"},
          {2, "Could not allocate memory for new fc_periphery_info.\n"},
          {10, ""},
          {10 + 11, ""},
          {10 + 11 + 11, ""}}) {
        const auto run = [&blade, count = records] {
            std::string words[] = {"./cnatool", "--simulate", "--conpath", ".", "-pci-id", "1:2"};
            char* argv[std::size(words)];
            std::transform(std::begin(words), std::end(words), argv,
                           [](auto& word) { return word.data(); });
            std::filesystem::current_path(blade);
            dup2(STDERR_FILENO, STDOUT_FILENO);
            records_left = count;
            std::exit(run_tool(std::size(words), argv));
        };
        EXPECT_EXIT(run(), testing::ExitedWithCode(54),
                    std::string("^") + message + "Error: cnatool, Memory allocation failed!\n$")
            << records;
    }
    std::filesystem::remove_all(blade);
}

TEST(Run, PrintedStatusesAreThoseOfTheEnumeration) {
    std::ostringstream wanted;
    wanted << "\nList of possible return codes\n\n   Valid return codes\n\n";
#define STATUS(code) std::make_pair(#code, code)
    for (const auto& [name, number] :
         {STATUS(RET_OK), STATUS(RET_NOT_CTRL_WIDE_IDENTICAL),
          STATUS(RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL), STATUS(RET_BAD_CALL),
          STATUS(RET_INVALID_CTRL_SUBSYSTEM_COMBINATION), STATUS(RET_FLASH_ERROR),
          STATUS(RET_NO_FC_HBA_CONDITIONS_ENTRY), STATUS(RET_NO_MATCHING_CTRL_FOUND),
          STATUS(RET_NO_FC_CTRL_INSTALLED), STATUS(RET_FC_HBA_CONDITIONS_MISSING),
          STATUS(RET_INFOFILE_MISSING), STATUS(RET_FW_NOT_AVAILABLE),
          STATUS(RET_SCLI_NOT_INSTALLED), STATUS(RET_KERNEL_MODULE_MISSING),
          STATUS(RET_MEMALLOC_FAIL), STATUS(RET_FATAL_ERROR)}) {
        wanted << "   " << std::left << std::setw(39) << name << std::right << std::setw(3)
               << number << "\n";
    }
#undef STATUS
    VerboseLevel = 1;
    testing::internal::CaptureStdout();
    print_return_codes("");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), wanted.str() + "\n");
}

TEST(Shell, GetsEveryCharacterAsItIs) {
    EXPECT_EQ(shell_word("aZ09%+,-./:=@_"), "aZ09%+,-./:=@_");
    std::string command = "printf '%s\\n'";
    std::string values;
    for (int byte = 1; byte <= 255; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        // "/tm" and a wildcard would become "/tmp".
        for (const std::string& value : {text, "/tm" + text, text + "0"}) {
            command += " " + shell_word(value);
            values += value + "\n";
        }
    }
    // NOLINTNEXTLINE(cert-env33-c): the shell is what this is about.
    std::FILE* const shell = popen(command.c_str(), "r");
    std::string came(values.size() + 1, '\0');
    came.resize(std::fread(came.data(), 1, came.size(), shell));
    pclose(shell);
    EXPECT_EQ(came, values);
}

// Makes the list of ports, each written as its serial number ("?" is missing), the
// first letter of its type, its function and, after a slash, its number.
void lay_ports(const char* list) {
    release_hba_info_list();
    VerboseLevel = 0;
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
             // Adapters with FCoE ports come first, those with iSCSI ports next.
             {"Yi0 XF0", "XF0 Yi0"},
             {"XF1 Yi0 XF0 ZF0 Yi1 WC0 ZF1", "XF0 XF1 ZF0 ZF1 Yi0 Yi1"},
             // A port goes with those whose serial number its own begins, not the reverse.
             {"An1 Bn1 En2 An1 ABDF2 ABDn0 ABDF1", "An1 ABDn0 An1 ABDF1 ABDF2 Bn1 En2"},
             {"t1 ABt1 BDt0 Ei0 Ei1 BDn0", "Ei0 t1 Ei1 BDn0 BDt0 ABt1"},
             {"EF0 Ai0 ABDi10 ABDn9 ABn0 ABDi0 BF0", "EF0 BF0 ABn0 Ai0 ABDi0 ABDn9 ABDi10"},
         }) {
        lay_ports(before);
        Classify_Ctrl_List();
        std::string order;
        for (const hba_info* port : all_ports()) {
            order += (order.empty() ? "" : " ") + std::string(port->model);
        }
        EXPECT_EQ(order, after) << before;
    }
}

// For each port its flash port and the next port of the chain.
TEST(Ports, AreChainedFromTheFlashPort) {
    const auto name = [](const hba_info* port) {
        return port == nullptr ? "-" : std::string(port->model);
    };
    for (const auto& [ports, expected] : Rows{
             // A fourth port replaces the third one.
             {"AF0/0 AF1/1 AF2/2 At3/3", "AF0/0>AF1/1 AF0/0>At3/3 AF0/0>- AF0/0>- "},
             {"AF01/07 Ai0/1 Bi0/0 Bi1/1 ?F0/0", "AF01/07>AF01/07 AF01/07>- Bi0/0>- Bi0/0>- ->- "},
             {"AF1/1 AF2/2 BF0/1 BF1/0", "AF1/1>AF2/2 AF1/1>- ->- ->- "},
             // A leading part of the others' serial numbers serves them all, before any
             // port with function 1 is looked at; the last candidate serves.
             {"AXi1/1 AXF2/2 An0/0 AYn5/0", "An0/0>- An0/0>- An0/0>AXF2/2 An0/0>- "},
             {"ABF0/0 AF0/0 BF1/1", "AF0/0>AF0/0 AF0/0>ABF0/0 BF1/1>BF1/1 "},
         }) {
        lay_ports(ports);
        Determine_Flash_Ports();
        std::string links;
        for (const hba_info* port : all_ports()) {
            links += name(port->flash_port) + ">" + name(port->next_port) + " ";
        }
        EXPECT_EQ(links, expected) << ports;
    }
    release_hba_info_list();
}

} // namespace
