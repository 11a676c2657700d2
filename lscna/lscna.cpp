#include "lscna/lscna.h"

#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "inventory/inventory.h"
#include "inventory/report.h"
#include "inventory/vendor_cli.h"
#include "lscna/conditions_notes.h"
#include "lscna/listing.h"
#include "lscna/survey.h"
#include "run/base/diagnostics.h"
#include "run/base/environment.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/terminal_line.h"
#include "run/base/text_file.h"
#include "run/directories.h"
#include "run/selection_lists.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <new>
#include <string>

namespace {

constexpr const char* usage =
    "Usage: lscna [-s|--simulate] [-C|--conpath DIR] [-p|--pci-id LIST] [-J|--json]\n"
    "\n"
    "Lists the adapters' ports, the record that each is judged by, what a check says of its\n"
    "storage, what a flash would write, and what is to be looked at.\n"
    "\n"
    "  -s, --simulate     read the reports that are there, start nothing\n"
    "  -C, --conpath DIR  the directory of the conditions file, the reports and the images\n"
    "  -p, --pci-id LIST  only ports that the list names, as cnatool's -pci-id takes it\n"
    "  -J, --json         print a JSON object\n"
    "  -h, --help         show this help\n"
    "  -V, --version      show the version\n"
    "\n"
    "Columns:\n";

constexpr option long_options[] = {
    {"simulate", no_argument, nullptr, 's'},
    {"conpath", required_argument, nullptr, 'C'},
    {"pci-id", required_argument, nullptr, 'p'},
    {"json", no_argument, nullptr, 'J'},
    {"help", no_argument, nullptr, 'h'},
    {"version", no_argument, nullptr, 'V'},
    {nullptr, 0, nullptr, 0},
};

// What the command line asks for.
struct Call {
    const char* list = nullptr; // the value of --pci-id; null: it is not given
    bool json = false;
    bool ended = false; // there is nothing more to do than to end with `status`
    int status = status_all_well;
};

Call refuse(const std::string& reason) {
    std::fprintf(stderr, "lscna: %s\n", reason.c_str());
    return {.ended = true, .status = status_no_listing};
}

void read_option(int option, Call& call) {
    switch (option) {
    case 's':
        active_option_simulate = 1;
        break;
    case 'C':
        if (*optarg == '\0') {
            call = refuse("--conpath: the directory is empty");
            break;
        }
        ending_reason = "--conpath: the directory's name is too long";
        set_directories(optarg);
        break;
    case 'p':
        call.list = optarg;
        break;
    case 'J':
        call.json = true;
        break;
    case 'h':
        std::printf("%s%s", usage, describe_columns().c_str());
        call.ended = true;
        break;
    case 'V':
        std::printf("lscna %s\n", LSCNA_VERSION);
        call.ended = true;
        break;
    default: // getopt_long has said what is wrong
        call = {.ended = true, .status = status_no_listing};
    }
}

Call read_call(int argc, char** argv) {
    Call call;
    static char name[] = "lscna"; // what getopt_long puts in front of its errors
    argv[0] = name;
    optind = 0; // a process may make several runs
    for (int option = 0; !call.ended && option != -1;) {
        option = getopt_long(argc, argv, "sC:p:JhV", long_options, nullptr);
        if (option != -1) {
            read_option(option, call);
        }
    }
    if (!call.ended && optind < argc) {
        return refuse(std::string("'") + argv[optind] + "' is no option");
    }
    return call;
}

// Adds what the reader of the list passes over: groups after the first empty one.
void look_at_list(std::string_view list, std::vector<std::string>& notes) {
    const std::string groups = "," + std::string(list);
    const std::size_t end = groups.find(",,");
    const std::size_t unread = end == std::string::npos ? end : groups.find_first_not_of(',', end);
    if (unread != std::string::npos) {
        notes.push_back("--pci-id: '" + groups.substr(unread) +
                        "' after an empty group is not read: remove the empty group");
    }
}

// Reads the conditions file, unless cnatool would refuse it. Returns why it is not used.
std::string read_conditions(std::vector<std::string>& notes) {
    const ConditionsNotes found = examine_conditions(pHBAConditionsPath);
    notes.insert(notes.end(), found.texts.begin(), found.texts.end());
    if (found.usable && Read_FC_Config_File(pHBAConditionsPath) == RET_OK) {
        return "";
    }
    return "the conditions file can't be used";
}

// Why there is no list of ports.
const char* no_list_reason(std::int32_t result) {
    switch (result) {
    case RET_SCLI_NOT_INSTALLED:
        return "the vendor's CLI is not installed";
    case RET_FATAL_ERROR:
        return "the CLI's command listhbas failed";
    case report_not_opened:
        return "the list of ports, local_hba_list.out, can't be read";
    default:
        return "the list of ports names no port";
    }
}

// Why the inventory has not come to its end; empty when it has.
std::string inventory_end(std::int32_t result) {
    if (result == RET_OK) {
        return "";
    }
    for (const hba_info& port : all_ports()) {
        for (const char* name : {attributes_report, mapping_report}) {
            const std::string path = report_file(port, name).path;
            const bool taken =
                !serial_missing(port) && (name == attributes_report || is_fcoe_or_fc(port));
            if (taken && open_text_file(path.c_str()) == nullptr) {
                return "the inventory ended at " + path +
                       ", which can't be opened: ports after it are not known, and a check passes "
                       "them";
            }
        }
    }
    return "the inventory ended at a report that can't be read: ports after it are not known, and "
           "a check passes them";
}

int count_fibre_channel_ports() {
    int count = 0;
    for (const hba_info& port : all_ports()) {
        count += has_type(port, "FC") ? 1 : 0;
    }
    return count;
}

bool well(const SurveyedPort& port) {
    return port.verdict == Verdict::none || port.verdict == Verdict::allowed ||
           port.verdict == Verdict::no_storage;
}

int list_ports(const Call& call) {
    std::vector<std::string> notes;
    const option_input* selection = nullptr;
    if (call.list != nullptr) {
        selection = save_list_of_pci_ids(call.list);
        look_at_list(call.list, notes);
    }
    CommonCauses causes;
    causes.conditions_unusable = read_conditions(notes);
    ending_reason = "a report holds a number of more than 64 bits";
    const std::int32_t result = Get_All_Hba_Info();
    if (p_hba_info_list == nullptr) {
        return refuse(no_list_reason(result)).status;
    }
    causes.inventory_ended = inventory_end(result);
    if (!causes.inventory_ended.empty()) {
        notes.push_back(causes.inventory_ended);
    }
    const int fibre_channel_ports = count_fibre_channel_ports();
    Classify_Ctrl_List();
    Determine_Flash_Ports();
    Survey survey = survey_ports(selection, causes);
    survey.notes.insert(survey.notes.begin(), notes.begin(), notes.end());
    if (call.json) {
        print_json(survey);
    } else {
        print_screen(survey, fibre_channel_ports);
    }
    return survey.notes.empty() && std::all_of(survey.ports.begin(), survey.ports.end(), well)
               ? status_all_well
               : status_look;
}

} // namespace

int run_lscna(int argc, char** argv) {
    reset_inherited_state();
    set_levels(0, 0, 0);
    const std::string typed_program = argc > 0 ? argv[0] : "lscna";
    try {
        const Call call = read_call(argc, argv);
        if (call.ended) {
            return call.status;
        }
        if (call.list != nullptr && std::strlen(call.list) > selection_length_max) {
            return refuse("--pci-id: the list is too long").status;
        }
        terminal_lines_enabled = true;
        ending_reason = "the directory of the files can't be used";
        resolve_directories(typed_program.c_str());
        ending_reason = "--pci-id: not a list of vendor:device[:subvendor:subdevice], hexadecimal "
                        "and separated by commas";
        return list_ports(call);
    } catch (const std::bad_alloc&) {
        return refuse("out of memory").status;
    }
}
