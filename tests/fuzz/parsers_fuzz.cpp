// Fuzz target over the three report parsers and the conditions reader. The first
// byte of an input chooses the parser, the rest is its file. A parser that ends
// the process on bad input comes back here instead: the target is linked with
// exit and fdopen wrapped.

#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "inventory/adapter_list.h"
#include "inventory/attributes.h"
#include "inventory/target_mapping.h"
#include "run/diagnostics.h"
#include "run/settings.h"

// The record lists start anew for each input; their counters are private.
#include "conditions/conditions.cpp" // NOLINT(bugprone-suspicious-include)
#include "inventory/hba_info.cpp"    // NOLINT(bugprone-suspicious-include)

#include <csetjmp>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

std::jmp_buf process_end;
bool parsing = false;
std::FILE* opened = nullptr;
std::string directory;

void forget_records() {
    for (hba_info** port = p_hba_info_list; port != nullptr && *port != nullptr; ++port) {
        release_hba_info_entry(*port);
    }
    std::free(p_hba_info_list);
    p_hba_info_list = nullptr;
    hbainfo_entry_cnt = 0;
    for (auto** entry = fc_config_entry_list; entry != nullptr && *entry != nullptr; ++entry) {
        while (periphery_info_entry* const first = (*entry)->periphery) {
            (*entry)->periphery = first->next;
            delete first;
        }
        delete *entry;
    }
    std::free(fc_config_entry_list);
    fc_config_entry_list = nullptr;
    config_entry_cnt = 0;
}

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

extern "C" {

std::FILE* __real_fdopen(int descriptor, const char* mode);

std::FILE* __wrap_fdopen(int descriptor, const char* mode) {
    opened = __real_fdopen(descriptor, mode);
    return opened;
}

[[noreturn]] void __real_exit(int status);

[[noreturn]] void __wrap_exit(int status) {
    if (!parsing) {
        __real_exit(status);
    }
    std::fclose(opened);
    std::longjmp(process_end, 1);
}

int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    const char* const scratch = std::getenv("TMPDIR");
    directory = std::string(scratch == nullptr ? "/tmp" : scratch) + "/";
    copy_text(pHBAWorkingPath, directory);
    active_option_simulate = 1;
    VerboseLevel = 6;
    return std::freopen("/dev/null", "w", stdout) == nullptr ? 1 : 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    parsing = size > 0;
    if (parsing && setjmp(process_end) == 0) {
        parse(data[0] % 4, data + 1, size - 1);
    }
    parsing = false;
    forget_records();
    return 0;
}
}
