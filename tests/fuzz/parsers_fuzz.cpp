// Fuzz target over the three report parsers and the conditions reader. The first
// byte of an input chooses the parser, the rest is its file. A run that would end
// the process comes back here instead.

#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions.h"
#include "conditions/conditions_file.h"
#include "inventory/adapter_list.h"
#include "inventory/attributes.h"
#include "inventory/target_mapping.h"
#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/settings.h"

#include <cstdlib>
#include <string>

namespace {

struct RunEnded {};

std::string directory;

void write_file(const std::string& name, const std::uint8_t* data, std::size_t size) {
    if (std::FILE* file = std::fopen((directory + name).c_str(), "w")) {
        std::fwrite(data, 1, size, file);
        std::fclose(file);
    }
}

void parse(int choice, const std::uint8_t* data, std::size_t size) {
    switch (choice) {
    case 0:
        write_file(conditions_file_name, data, size);
        Read_FC_Config_File((directory + conditions_file_name).c_str());
        break;
    case 1:
        write_file("local_hba_list.out", data, size);
        if (read_adapter_list() == 0 && p_hba_info_list != nullptr) {
            Classify_Ctrl_List();
            Determine_Flash_Ports();
        }
        break;
    case 2:
        write_file("__hba_attributes.out", data, size);
        read_attributes(*get_new_hba_info_entry());
        break;
    default:
        write_file("__target_mapping.out", data, size);
        hba_info& port = *get_new_hba_info_entry();
        copy_text(port.port_type, "FCoE");
        read_target_mapping(port);
        break;
    }
}

} // namespace

// In place of the library's own.
void end_run(std::int32_t /*status*/) {
    throw RunEnded{};
}

extern "C" {

int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    const char* const scratch = std::getenv("TMPDIR");
    directory = std::string(scratch == nullptr ? "/tmp" : scratch) + "/";
    copy_text(pHBAWorkingPath, directory);
    active_option_simulate = 1;
    VerboseLevel = 6;
    return std::freopen("/dev/null", "w", stdout) == nullptr ? 1 : 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        if (size > 0) {
            parse(data[0] % 4, data + 1, size - 1);
        }
    } catch (const RunEnded&) {
        // Refused, as it should be.
    }
    release_hba_info_list();
    release_config_entry_list();
    return 0;
}
}
