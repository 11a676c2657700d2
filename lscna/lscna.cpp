#include "lscna/lscna.h"

#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions_file.h"
#include "inventory/inventory.h"
#include "inventory/report.h"
#include "inventory/vendor_cli.h"
#include "lscna/conditions_notes.h"
#include "lscna/format.h"
#include "lscna/listing.h"
#include "lscna/survey.h"
#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/environment.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/terminal_line.h"
#include "run/directories.h"
#include "run/selection_lists.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <new>
#include <optional>
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

constexpr option options[] = {
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
};

// Reports why there is no listing. Returns the status.
int refuse(const char* reason) {
    std::fprintf(stderr, "lscna: %s\n", reason);
    return status_no_listing;
}

// Reads the command line. Returns the status to end with at once, if any.
std::optional<int> read_call(int argc, char** argv, Call& call) {
    static char name[] = "lscna"; // what getopt_long puts in front of its errors
    argv[0] = name;
    optind = 0; // a process may make several runs
    for (int option = 0; (option = getopt_long(argc, argv, "sC:p:JhV", options, nullptr)) != -1;) {
        switch (option) {
        case 's':
            active_option_simulate = 1;
            break;
        case 'C':
            if (*optarg == '\0') {
                return refuse("--conpath: the name of the directory is empty");
            }
            ending_reason = "--conpath: the name of the directory is too long";
            set_directories(optarg);
            break;
        case 'p':
            if (*optarg == '-') {
                return refuse("--pci-id: the list begins with a minus sign");
            }
            call.list = optarg;
            break;
        case 'J':
            call.json = true;
            break;
        case 'h':
            std::printf("%s%s", usage, describe_columns().c_str());
            return status_all_well;
        case 'V':
            std::printf("lscna %s\n", LSCNA_VERSION);
            return status_all_well;
        default:
            return status_no_listing;
        }
    }
    if (optind < argc) {
        return refuse(format("'%s' is no option", argv[optind]).c_str());
    }
    return std::nullopt;
}

// Adds what the reader of the list passes over: groups after the first empty one.
void look_at_list(const char* list, std::vector<std::string>& notes) {
    const std::string groups = format(",%s", list);
    const std::size_t unread = groups.find_first_not_of(',', groups.find(",,"));
    if (unread != std::string::npos) {
        notes.push_back(format("--pci-id: '%s' is not read: remove the empty group before it",
                               groups.c_str() + unread));
    }
}

// Reads the conditions file, unless cnatool would refuse it. Returns why it is not used.
std::string read_conditions(std::vector<std::string>& notes) {
    const ConditionsNotes found = examine_conditions(pHBAConditionsPath);
    notes.insert(notes.end(), found.texts.begin(), found.texts.end());
    if (found.usable && Read_FC_Config_File(pHBAConditionsPath) == RET_OK) {
        if (fc_config_entry_list == nullptr) {
            notes.push_back(
                format("%s: no record, so nothing is judged or flashed", pHBAConditionsPath));
        }
        return "";
    }
    if (found.usable) {
        notes.push_back(
            format("%s: can't be read to its end: cnatool refuses it", pHBAConditionsPath));
        release_config_entry_list();
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

int count_fibre_channel_ports() {
    int count = 0;
    for (const hba_info* port : all_ports()) {
        count += has_type(*port, "FC") ? 1 : 0;
    }
    return count;
}

bool is_well(const SurveyedPort& port) {
    return port.verdict == Verdict::none || port.verdict == Verdict::allowed ||
           port.verdict == Verdict::no_storage;
}

int list_ports(const Call& call) {
    std::vector<std::string> notes;
    const option_input* selection = nullptr;
    if (call.list != nullptr) {
        ending_reason =
            "--pci-id: not a list of vendor:device[:subvendor:subdevice] in hexadecimal";
        selection = save_list_of_pci_ids(call.list);
        look_at_list(call.list, notes);
    }
    CommonCauses causes;
    causes.conditions_unusable = read_conditions(notes);
    ending_reason = "a report holds a number of more than 64 bits";
    const std::int32_t result = Get_All_Hba_Info();
    if (p_hba_info_list == nullptr) {
        return refuse(no_list_reason(result));
    }
    if (result == report_not_opened) {
        causes.inventory_ended =
            format("the inventory ended at %s, which can't be read: later reports are not known, "
                   "and a check passes what they would show",
                   unread_report.c_str());
        notes.push_back(causes.inventory_ended);
    } else if (result != RET_OK) {
        throw std::bad_alloc();
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
    return survey.notes.empty() && std::all_of(survey.ports.begin(), survey.ports.end(), is_well)
               ? status_all_well
               : status_look;
}

} // namespace

int run_lscna(int argc, char** argv) {
    reset_inherited_state();
    VerboseLevel = 0;
    terminal_lines_enabled = true;
    const std::string typed_program = argc > 0 ? argv[0] : "lscna";
    try {
        Call call;
        if (const std::optional<int> status = read_call(argc, argv, call)) {
            return *status;
        }
        if (call.list != nullptr && std::strlen(call.list) > selection_length_max) {
            return refuse("--pci-id: the list is too long");
        }
        ending_reason = "the directory of the program can't be used";
        resolve_directories(typed_program.c_str());
        const int status = list_ports(call);
        return std::fflush(stdout) == 0 ? status : refuse("standard output can't be written");
    } catch (const RunEnd&) {
        return refuse(ending_reason);
    } catch (const std::bad_alloc&) {
        return refuse("out of memory");
    }
}
