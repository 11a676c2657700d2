#include "harness.h"

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/driver.h"
#include "run/selection_lists.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

// In place of the library's: many runs share the process.
void end_run(std::int32_t status) {
    throw status;
}

namespace {

std::string port(const std::string& number) {
    return "Port WWN : 10:" + number + "\nMfg : E\nSerial No. : S1\nPort Number : " + number +
           "\nMode : I\nPCI Function : " + number + "\nPort Type : FCoE\nModel : CNA-1\n";
}

const std::string attributes = "HBA Attributes for x\n\nModel : M\nVendor Spec ID : 19A2\nDevice ID"
                               " : 0714\nSub Device ID : 11C1\nSub Vendor ID : 1C3E\n";
const std::string mapping = "Target Mapping for x\n\n\n\nVendor ID : DGC\nProduct ID : CX1\nType : "
                            "Disk\n";

std::string lay_directory() {
    std::string name = std::filesystem::temp_directory_path() / "cnatool_XXXXXX";
    if (mkdtemp(name.data()) == nullptr || chdir(name.c_str()) != 0 ||
        std::freopen("/dev/null", "w", stdout) == nullptr) {
        std::abort();
    }
    static const struct Remover {
        std::string name;
        ~Remover() { std::filesystem::remove_all(name); }
    } remover{name};
    return name;
}

void write(const char* name, std::string_view content) {
    std::ofstream(name, std::ios::binary) << content;
}

} // namespace

std::span<const BladeFile> blade() {
    static const BladeFile files[] = {
        {"FC_HBA_Conditions.txt",
         "# x\n--+--\nE|CNA|19A2|0714|1C3E|11C1|x|x|fw|*.b|x|x|DGC|A,CX|x|N| |x\n\nE|CNA|1\n"},
        {"local_hba_list.out", port("0") + "\n" + port("1")},
        {"S1_0_hba_attributes.out", attributes},
        {"S1_1_target_mapping.out", mapping},
        {"S1_1_hba_attributes.out", attributes},
        {"S1_0_target_mapping.out", mapping},
        {"fw1", ""},
        {"x.b", ""},
    };
    return files;
}

void run_with(const BladeFile& file, std::string_view content, bool flash) {
    static const std::string directory = lay_directory();
    for (const BladeFile& other : blade()) {
        if (!std::filesystem::exists(other.name)) {
            write(other.name, other.content);
        }
    }
    write(file.name, content);
    std::string words[] = {"./cnatool", "--simulate", "-v", "6", "-pci-id", "19A2:0714", "--flash"};
    char* argv[std::size(words)];
    std::transform(std::begin(words), std::end(words), argv,
                   [](auto& word) { return word.data(); });
    std::int32_t status = -1;
    try {
        run_tool(static_cast<int>(std::size(words)) - (flash ? 0 : 1), argv);
    } catch (const std::int32_t ended) {
        status = ended;
    }
    release_hba_info_list();
    release_config_entry_list();
    release_selection_lists();
    write(file.name, file.content);
    const auto codes = return_codes();
    if (std::none_of(codes.begin(), codes.end(),
                     [&](auto& code) { return code.value == status; })) {
        std::fprintf(stderr, "status %d for %s:\n%s\n", status, file.name, content.data());
        std::abort();
    }
}

// The fuzz target: the first byte chooses the file and the run, the rest replaces it.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size > 0) {
        const std::string content(data + 1, data + size);
        run_with(blade()[data[0] % 4], content, data[0] % 8 < 4);
    }
    return 0;
}
