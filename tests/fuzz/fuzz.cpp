// Broken input: a blade of one adapter with two ports, of which one file is replaced, and a
// simulated run of each program over it in this process, which must end with one of its
// statuses. libFuzzer finds the contents, or the sweep at the end of this file makes them.

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
    const char* name;
    std::string content;
};

std::string port(const std::string& number) {
    return "Port WWN : 1\nMfg : E\nSerial No. : S1\nPort Number : " + number +
           "\nMode : I\nPCI Function : " + number + "\nPort Type : FCoE\nModel : CNA-1\n";
}

const std::string attributes =
    "HBA Attributes for x\n\nModel : M\nVendor Spec ID : 19A2\nDevice ID "
    ": 0714\nSub Device ID : 11C1\nSub Vendor ID : 1C3E\n";
const std::string mapping =
    "Target Mapping for x\n\n\n\nVendor ID : D\nProduct ID : CX1\nType : D\n";

// The first four are replaced.
const BladeFile blade[] = {
    {"FC_HBA_Conditions.txt",
     "# x\n--+--\nE|CNA|19A2|0714|1C3E|11C1|x|x|fw|*.b|x|x|D|A,CX|x|N| |x\n\nE|CNA|1\n"},
    {"local_hba_list.out", port("0") + "\n" + port("1")},
    {"S1_0_hba_attributes.out", attributes},
    {"S1_1_target_mapping.out", mapping},
    {"S1_1_hba_attributes.out", attributes},
    {"S1_0_target_mapping.out", mapping},
    {"fw1", ""},
    {"x.b", ""},
};

// The current directory of all runs.
struct Directory {
    std::string name = std::filesystem::temp_directory_path() / "cnatool_XXXXXX";

    Directory() {
        if (mkdtemp(name.data()) == nullptr || chdir(name.c_str()) != 0) {
            std::abort();
        }
        // Only what the programs say: the sanitizers write to the descriptor.
        stdout = stderr = std::fopen("/dev/null", "w");
        std::for_each(std::begin(blade), std::end(blade), write);
    }
    ~Directory() { std::filesystem::remove_all(name); }

    static void write(const BladeFile& file) {
        std::ofstream(file.name, std::ios::binary) << file.content;
    }
};

// Runs a program, which must return one of its statuses.
void expect_status(int (*program)(int argc, char** argv), std::vector<std::string> words,
                   const BladeFile& file, const std::string& content) {
    std::vector<char*> argv;
    std::transform(words.begin(), words.end(), std::back_inserter(argv),
                   [](auto& word) { return word.data(); });
    const int status = program(static_cast<int>(argv.size()), argv.data());
    release_hba_info_list();
    release_config_entry_list();
    constexpr int statuses[] = {0, 1, 2, 3, 4, 12, 13, 15, 20, 22, 55};
    if (std::ranges::find(statuses, status) == std::end(statuses)) {
        dprintf(STDERR_FILENO, "status %d for %s:\n%s\n", status, file.name, content.c_str());
        std::abort();
    }
}

// `second` chooses what is run: a flash in place of a check, JSON in place of the table.
void run_with(const BladeFile& file, const std::string& content, bool second) {
    static const Directory directory;
    directory.write({file.name, content});
    active_option_flash = second ? 1 : 0;
    active_option_valid_subsystem = 0;
    expect_status(run_tool,
                  {"./cnatool", "--conpath", ".", "--simulate", "-v", "6", "-pci-id", "19A2:0714"},
                  file, content);
    expect_status(run_lscna,
                  {"./lscna", "-C", ".", "--simulate", second ? "--json" : "--pci-id=19A2:0714"},
                  file, content);
    directory.write(file);
}

} // namespace

// The first byte chooses the file and the run, the rest replaces the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size > 0) {
        run_with(blade[data[0] % 4], std::string(data + 1, data + size), data[0] % 8 < 4);
    }
    return 0;
}

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
    int runs = 0;
    const auto run = [&](const BladeFile& file, const std::string& content) {
        run_with(file, content, ++runs % 2 == 0);
    };
    for (const BladeFile* file = blade; file != blade + 4; ++file) {
        const std::string& content = file->content;
        for (std::size_t length = 0; length < content.size(); ++length) {
            run(*file, content.substr(0, length));
        }
        const std::size_t kinds = spoilt("").size();
        for (std::size_t kind = 0; kind < kinds; ++kind) {
            std::string all;
            for (const std::string_view line : split(content, '\n')) {
                const auto start = static_cast<std::size_t>(line.data() - content.data());
                const std::string bad = spoilt(std::string(line))[kind];
                run(*file, std::string(content).replace(start, line.size(), bad));
                all += bad + "\n";
            }
            run(*file, all);
        }
    }
    dprintf(STDERR_FILENO, "%d runs\n", runs);
}
#endif
