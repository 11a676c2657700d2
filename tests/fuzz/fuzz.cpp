// Broken input: a blade of one adapter with two ports, of which one file is replaced,
// and a simulated run over it in this process, which must end with a status of the
// table. libFuzzer finds the contents, or the sweep at the end of this file makes them.

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/driver.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

// In place of the library's: many runs share the process.
void end_run(std::int32_t status) {
    throw status;
}

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
        if (mkdtemp(name.data()) == nullptr || chdir(name.c_str()) != 0 ||
            std::freopen("/dev/null", "w", stdout) == nullptr) {
            std::abort();
        }
        std::for_each(std::begin(blade), std::end(blade), write);
    }
    ~Directory() { std::filesystem::remove_all(name); }

    static void write(const BladeFile& file) {
        std::ofstream(file.name, std::ios::binary) << file.content;
    }
};

void run_with(const BladeFile& file, const std::string& content, bool flash) {
    static const Directory directory;
    directory.write({file.name, content});
    std::string words[] = {"./cnatool", "--conpath", ".",         "--simulate", "-v",
                           "6",         "-pci-id",   "19A2:0714", "--flash"};
    char* argv[std::size(words)];
    std::transform(std::begin(words), std::end(words), argv,
                   [](auto& word) { return word.data(); });
    active_option_flash = 0;
    active_option_valid_subsystem = 0;
    std::int32_t status = -1;
    try {
        run_tool(static_cast<int>(std::size(words)) - (flash ? 0 : 1), argv);
    } catch (const std::int32_t ended) {
        status = ended;
    }
    release_hba_info_list();
    release_config_entry_list();
    directory.write(file);
    const auto codes = return_codes();
    if (std::none_of(codes.begin(), codes.end(),
                     [=](auto& code) { return code.value == status; })) {
        std::fprintf(stderr, "status %d for %s:\n%s\n", status, file.name, content.c_str());
        std::abort();
    }
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
int main() {
    int runs = 0;
    const auto run = [&](const BladeFile& file, const std::string& content) {
        run_with(file, content, ++runs % 2 == 0);
    };
    const std::string endings[] = {"\r", "\xff\xe4%s%n$(x)';|", std::string("\0x", 2)};
    for (const BladeFile* file = blade; file != blade + 4; ++file) {
        const std::string& content = file->content;
        std::string repeated = content;
        for (int i = 0; i < 500; ++i) {
            file == blade ? repeated.insert(content.find(" |x\n") + 3, "|D|C|x")
                          : repeated += content;
        }
        run(*file, repeated);
        for (std::size_t length = 0; length < content.size(); ++length) {
            run(*file, content.substr(0, length));
        }
        for (std::size_t kind = 0; kind < 10; ++kind) {
            std::string all;
            for (std::size_t start = 0, end = 0; start < content.size(); start = end + 1) {
                end = content.find('\n', start);
                std::string line = content.substr(start, end - start);
                line =
                    kind < 3   ? line + endings[kind]
                    : kind < 4 ? line + "\n" + line
                    : kind < 5
                        ? ""
                        : line + std::string((kind < 6 ? 100000 : 1016 + kind) - line.size(), '9');
                run(*file, content.substr(0, start) + line + content.substr(end));
                all += line + "\n";
            }
            run(*file, all);
        }
    }
    std::fprintf(stderr, "%d runs\n", runs);
}
#endif
