#include "lscna/lscna.h"

#include "classify/classify.h"
#include "classify/pairing.h"
#include "conditions/conditions.h"
#include "conditions/conditions_file.h"
#include "flash/image_search.h"
#include "inventory/hba_info.h"
#include "inventory/inventory.h"
#include "inventory/report.h"
#include "inventory/vendor_cli.h"
#include "lscna/conditions_notes.h"
#include "lscna/format.h"
#include "lscna/listing.h"
#include "lscna/notes.h"
#include "lscna/survey.h"
#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/environment.h"
#include "run/base/return_codes.h"
#include "run/base/selection.h"
#include "run/base/settings.h"
#include "run/base/terminal_line.h"
#include "run/directories.h"
#include "run/selection_lists.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <new>
#include <string>

namespace {

constexpr const char* usage =
    "Usage: lscna [-s|--simulate] [-C|--conpath DIR] [-p|--pci-id LIST] [-J|--json]\n"
    "             [-n|--no-wait]\n"
    "\n"
    "Lists the adapters' ports, the record that each is judged by, what a check says of its\n"
    "storage, what a flash would write, and what is to be looked at.\n"
    "\n"
    "  -s, --simulate     read the reports that are there, start nothing\n"
    "  -C, --conpath DIR  the directory of the conditions file, the reports and the images\n"
    "  -p, --pci-id LIST  only ports that the list names, as cnatool's -pci-id takes it\n"
    "  -J, --json         print a JSON object\n"
    "  -n, --no-wait      end with 2 if another run uses the vendor's CLI\n"
    "  -h, --help         show this help\n"
    "  -V, --version      show the version\n"
    "\n"
    "Columns:\n";

constexpr option options[] = {
    {"simulate", no_argument, nullptr, 's'},     {"conpath", required_argument, nullptr, 'C'},
    {"pci-id", required_argument, nullptr, 'p'}, {"json", no_argument, nullptr, 'J'},
    {"no-wait", no_argument, nullptr, 'n'},      {"help", no_argument, nullptr, 'h'},
    {"version", no_argument, nullptr, 'V'},      {nullptr, 0, nullptr, 0},
};

// What the command line asks for.
struct Call {
    const char* list = nullptr; // the value of --pci-id; null: it is not given
    bool json = false;
    std::string text{};  // what is to be printed in place of a listing
    std::string error{}; // why the call is refused
};

// Takes a step that a bad value ends. Returns `error` then, else an empty text.
template <class Step>
std::string attempt(const char* error, Step step) {
    try {
        step();
        return "";
    } catch (const RunEnd&) {
        return error;
    }
}

std::string set_directory(const char* directory) {
    if (*directory == '\0') {
        return "--conpath: the name of the directory is empty";
    }
    return attempt("--conpath: the name of the directory is too long",
                   [=] { set_directories(directory); });
}

// Takes one option. Returns what is wrong with it.
std::string take_option(int option, Call& call) {
    switch (option) {
    case 's':
        active_option_simulate = 1;
        return "";
    case 'C':
        return set_directory(optarg);
    case 'p':
        call.list = optarg;
        return "";
    case 'J':
        call.json = true;
        return "";
    case 'n':
        active_option_no_wait = 1;
        return "";
    case 'h':
        call.text = usage + describe_columns();
        return "";
    case 'V':
        call.text = "lscna " LSCNA_VERSION "\n";
        return "";
    default:
        return "a bad call: lscna --help shows the options";
    }
}

// Reads the command line, also behind an error: --json says how that is to be told.
Call read_call(int argc, char** argv) {
    static char name[] = "lscna"; // what getopt_long puts in front of its errors
    argv[0] = name;
    optind = 0; // a process may make several runs
    Call call;
    for (int option = 0; call.text.empty() &&
                         (option = getopt_long(argc, argv, "sC:p:JnhV", options, nullptr)) != -1;) {
        const std::string error = take_option(option, call);
        call.error = call.error.empty() ? error : call.error;
    }
    if (call.text.empty() && call.error.empty() && optind < argc) {
        call.error = format("'%s' is no option", argv[optind]);
    }
    return call;
}

// Reads the value of --pci-id. Returns why it is refused.
std::string read_list(const char* list, const option_input*& selection) {
    if (*list == '-') {
        return "--pci-id: the list begins with a minus sign";
    }
    if (std::strlen(list) > selection_length_max) {
        return "--pci-id: the list is too long";
    }
    return attempt("--pci-id: not a list of vendor:device[:subvendor:subdevice] in hexadecimal",
                   [&] { selection = save_list_of_pci_ids(list); });
}

// Notes what the reader of the list passes over: groups after the first empty one.
void note_list(const char* list, Notes& notes) {
    const std::string groups = format(",%s", list);
    const std::size_t unread = groups.find_first_not_of(',', groups.find(",,"));
    if (unread != std::string::npos) {
        add_note(notes, format("--pci-id: '%s' is not read: remove the empty group before it",
                               groups.c_str() + unread));
    }
}

// Reads the conditions file, unless cnatool would refuse it. Returns why it is not used.
std::string read_conditions(Notes& notes) {
    const char* const path = pHBAConditionsPath;
    const bool usable = examine_conditions(path, notes);
    if (!usable || Read_FC_Config_File(path) == RET_FATAL_ERROR) {
        release_config_entry_list();
        std::string refused =
            format("%s: cnatool refuses the file with 55, so it is not used: correct it", path);
        add_note(notes, refused);
        return refused;
    }
    if (all_conditions().empty()) {
        add_note(notes, format("%s: no record, so nothing is judged or flashed", path));
    }
    return "";
}

// Why there is no list of ports.
std::string no_list_reason(std::int32_t result) {
    const std::string list = report_path("local_hba_list.out");
    switch (result) {
    case cli_in_use:
        return "another run uses the vendor's CLI";
    case RET_SCLI_NOT_INSTALLED:
        return format("the vendor's CLI, %s, is not installed", hbacmd_path);
    case RET_FATAL_ERROR:
        return "the CLI's command listhbas failed: see what it says in " + list;
    case report_not_opened:
        return format("the list of ports, %s, can't be read", list.c_str());
    default:
        return format("the list of ports, %s, names no port", list.c_str());
    }
}

// Settles what the call names. Returns why it is refused.
std::string prepare(const Call& call, const char* typed_program, const option_input*& selection) {
    if (!call.error.empty()) {
        return call.error;
    }
    const std::string error = attempt("the directory of the program can't be used",
                                      [=] { resolve_directories(typed_program); });
    if (error.empty() && !path_exists(pHBAWorkingPath)) {
        return format("there is no directory %s", pHBAWorkingPath);
    }
    return error.empty() && call.list != nullptr ? read_list(call.list, selection) : error;
}

// Lists the ports, unless that can't be done.
Answer list_ports(const Call& call, const char* typed_program) {
    const option_input* selection = nullptr;
    if (const std::string error = prepare(call, typed_program, selection); !error.empty()) {
        return {status_no_listing, error};
    }
    Survey survey;
    if (call.list != nullptr) {
        note_list(call.list, survey.notes);
    }
    CommonCauses causes;
    causes.conditions_refused = read_conditions(survey.notes);
    std::int32_t result = RET_OK;
    if (const std::string error = attempt("a report holds a number of more than 64 bits",
                                          [&] { result = Get_All_Hba_Info(); });
        !error.empty()) {
        return {status_no_listing, error};
    }
    if (p_hba_info_list == nullptr) {
        return {result == RET_NO_FC_CTRL_INSTALLED ? status_no_port : status_no_listing,
                no_list_reason(result)};
    }
    if (result == report_not_opened) {
        causes.inventory_ended =
            format("the inventory ended at %s, which can't be read: later reports are not known, "
                   "and a check passes what they would show",
                   unread_report.c_str());
        add_note(survey.notes, causes.inventory_ended);
    }
    survey.fibre_channel_ports = static_cast<int>(std::ranges::count_if(
        all_ports(), [](const hba_info* port) { return has_type(*port, "FC"); }));
    Classify_Ctrl_List();
    Determine_Flash_Ports();
    survey_ports(selection, causes, survey);
    return {survey.notes.empty() ? status_all_well : status_look, "", survey};
}

// Prints what the call asks for. Returns the status.
int answer_call(const Call& call, const char* typed_program) {
    if (!call.text.empty() && call.error.empty()) {
        std::fputs(call.text.c_str(), stdout);
        return status_all_well;
    }
    const Answer answer = list_ports(call, typed_program);
    if (!answer.error.empty()) {
        std::fprintf(stderr, "lscna: %s\n", answer.error.c_str());
    }
    if (call.json) {
        print_json(answer);
    } else if (answer.error.empty()) {
        print_screen(answer.survey);
    }
    return answer.status;
}

} // namespace

int run_lscna(int argc, char** argv) {
    reset_inherited_state();
    VerboseLevel = 0;
    terminal_lines_enabled = true;
    const std::string typed_program = argv[0];
    try {
        const int status = answer_call(read_call(argc, argv), typed_program.c_str());
        if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
            return status;
        }
        std::fprintf(stderr, "lscna: standard output can't be written\n");
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "lscna: out of memory\n");
    }
    return status_no_listing;
}
