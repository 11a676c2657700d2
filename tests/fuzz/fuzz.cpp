// Broken input: a small blade, changed in one of a few ways, with one of its files replaced, and a
// simulated run of each program over it in this process, which must end with one of its statuses.
// libFuzzer finds the contents, or the sweep at the end of this file makes them.

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "lscna/lscna.h"
#include "run/base/settings.h"
#include "run/base/text.h"
#include "run/driver.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

struct BladeFile {
    std::string name;
    std::string content;
};

std::string port(const std::string& serial, const std::string& number, const std::string& type) {
    return "Port WWN : 1\nNode WWN : 2\nMfg : E\nSerial No. : " + serial +
           "\nPort Number : " + number + "\nMode : I\nPCI Function : " + number +
           "\nPort Type : " + type + "\nModel : CNA-1\n\n";
}

const std::string attributes =
    "HBA Attributes for x\n\nModel : M\nVendor Spec ID : 19A2\nDevice ID : 0714\n"
    "Sub Device ID : 11C1\nSub Vendor ID : 1C3E\n";
const std::string mapping =
    "Target Mapping for x\n\n\n\nVendor ID : D\nProduct ID : CX1\nType : D\n";

// A Fibre Channel port, an adapter with a flash port and two FCoE ports, and one whose only port
// is both; lscna finds nothing to look at.
const BladeFile blade[] = {
    {"FC_HBA_Conditions.txt",
     "# x\n--+--\nE|CNA|19A2|0714|1C3E|11C1|x|x|fw|*.b|x|x|D|A,CX|x|N| |x\n"},
    {"local_hba_list.out", port("S3", "0", "FC") + port("S1", "0", "NIC") +
                               port("S1", "1", "FCoE") + port("S1", "2", "FCoE") +
                               port("S2", "0", "FCoE")},
    {"S1_1_hba_attributes.out", attributes},
    {"S1_1_target_mapping.out", mapping},
    {"S1_2_target_mapping.out", mapping},
    {"S2_0_target_mapping.out", mapping},
    {"S3_0_target_mapping.out", mapping},
    {"S1_0_hba_attributes.out", attributes},
    {"S1_2_hba_attributes.out", attributes},
    {"S2_0_hba_attributes.out", attributes},
    {"S3_0_hba_attributes.out", attributes},
    {"fw1", "x"},
    {"x.b", "x"},
};

// A change of the blade: another text in a file, in the last place that has it.
struct Change {
    const char* file;
    std::string text;
    const char* instead;
};

const Change changes[] = {
    {"fw1", "", ""},
    {"FC_HBA_Conditions.txt", "\n", "\n\nE|CNA|1\n"},
    {"FC_HBA_Conditions.txt", "19A2|0714", "0714|19A2"},
    {"FC_HBA_Conditions.txt", "1C3E|11C1", "1C3E|1x"},
    {"FC_HBA_Conditions.txt", "CNA", "CNB"},
    {"FC_HBA_Conditions.txt", "A,CX", " |x|D|CX"},
    {"FC_HBA_Conditions.txt", "fw", "*."},
    {"FC_HBA_Conditions.txt", "*.b", "*.c"},
    {"local_hba_list.out", "S2", "n/a"},
    {"local_hba_list.out", "FCoE", "iSCSI"},
    {"local_hba_list.out", "Port Number : 0", "Port Number : 2"},
    {"S1_2_target_mapping.out", "ID : D", "ID : N"},
    {"S2_0_target_mapping.out", "ID : D", "ID : N"},
    {"S2_0_target_mapping.out", "Type", "Vendor ID : O\nType"},
};

constexpr const char* selections[] = {"19A2:0714:1C3E:11C1", "19A2:0714"};
constexpr const char* actions[] = {"--check-for-valid-subsystem", "--ctrl-wide-identical",
                                   "--ctrl-vendor-wide-identical", "--flash"};

void write(const BladeFile& file) {
    std::ofstream(file.name, std::ios::binary) << file.content;
}

// The current directory of all runs.
struct Directory {
    std::string name = std::filesystem::temp_directory_path() / "cnatool_XXXXXX";

    Directory() {
        if (mkdtemp(name.data()) == nullptr || chdir(name.c_str()) != 0) {
            std::abort();
        }
        // Only what the programs say: the sanitizers write to the descriptor.
        stdout = stderr = std::fopen("/dev/null", "w");
        std::ranges::for_each(blade, write);
    }
    ~Directory() { std::filesystem::remove_all(name); }
};

// Runs a program, which must return one of its statuses.
void expect_status(int (*program)(int argc, char** argv), std::vector<std::string> words,
                   const std::string& name, const std::string& content) {
    std::vector<char*> argv;
    std::ranges::transform(words, std::back_inserter(argv), [](auto& word) { return word.data(); });
    const int status = program(static_cast<int>(argv.size()), argv.data());
    release_hba_info_list();
    release_config_entry_list();
    constexpr int statuses[] = {0, 1, 2, 3, 4, 12, 13, 15, 20, 22, 55};
    if (std::ranges::find(statuses, status) == std::end(statuses)) {
        dprintf(STDERR_FILENO, "status %d for %s:\n%s\n", status, name.c_str(), content.c_str());
        std::abort();
    }
}

// `number` chooses the change and what the programs are asked for.
void run_with(const BladeFile& file, const std::string& content, std::size_t number) {
    static const Directory directory;
    const auto choose = [&](const auto& choices) {
        const std::size_t choice = number % std::size(choices);
        number /= std::size(choices);
        return choices[choice];
    };
    const auto [name, text, instead] = choose(changes);
    const BladeFile& other = *std::ranges::find(blade, name, &BladeFile::name);
    write({name,
           std::string(other.content).replace(other.content.rfind(text), text.size(), instead)});
    write({file.name, content});
    active_option_valid_subsystem = active_option_ctrl_wide_identical = 0;
    active_option_ctrl_vendor_wide_identical = active_option_flash = 0;
    const std::string selection = choose(selections);
    expect_status(run_tool,
                  {"./cnatool", "--conpath", ".", "--simulate", "-v", "6", "-pci-id", selection,
                   choose(actions), choose(actions)},
                  file.name, content);
    expect_status(
        run_lscna,
        {"./lscna", "-C", ".", "--simulate", number % 2 == 0 ? "--json" : "--pci-id=" + selection},
        file.name, content);
    write(other);
    write(file);
}

} // namespace

#ifdef CNATOOL_SWEEP
// The ways to spoil a line.
static std::vector<std::string> spoilt(const std::string& line) {
    std::vector<std::string> lines = {"", line + "\r", line + "\xff\xe4%s%n$(x)';|",
                                      line + std::string("\0x", 2), line};
    for (int i = 0; i < 500; ++i) {
        lines.back() += "\n" + line;
    }
    // From 1,023 characters on a line is read in pieces.
    for (const std::size_t length : {1022, 1023, 1024, 1025, 100000}) {
        lines.push_back(line + std::string(length - line.size(), '9'));
    }
    return lines;
}

int main() {
    std::size_t runs = 0;
    for (const BladeFile& file : blade) {
        const std::string& content = file.content;
        for (std::size_t length = 0; length < content.size(); ++length) {
            run_with(file, content.substr(0, length), ++runs);
        }
        for (const std::string_view line : split(content, '\n')) {
            const auto start = static_cast<std::size_t>(line.data() - content.data());
            for (const std::string& bad : spoilt(std::string(line))) {
                run_with(file, std::string(content).replace(start, line.size(), bad), ++runs);
            }
        }
    }
    dprintf(STDERR_FILENO, "%zu runs\n", runs);
}
#else
#include <fuzzer/FuzzedDataProvider.h>

// The input chooses a file and what is run, and tells how the file is edited.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const auto number = input.ConsumeIntegral<std::uint16_t>();
    const auto& file = blade[input.ConsumeIntegralInRange<std::size_t>(0, std::size(blade) - 1)];
    std::string content = file.content;
    while (input.remaining_bytes() > 0) {
        const auto place = input.ConsumeIntegralInRange<std::size_t>(0, content.size());
        const auto length = input.ConsumeIntegralInRange<std::size_t>(0, content.size() - place);
        content.replace(place, length, input.ConsumeRandomLengthString());
    }
    run_with(file, content, number);
    return 0;
}
#endif
