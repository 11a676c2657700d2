#include "run/command_line.h"

#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/directories.h"
#include "run/help.h"
#include "run/selection_lists.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

// What the words up to now have set.
struct Parse {
    const char* program_name;
    Words words;
    std::size_t position = 0;                  // of the next word
    std::array<bool, selection_kinds> given{}; // the list options, by kind
    const option_input* selection = nullptr;   // of the last selection option

    // The next word, which an option with a value uses up; null after the last.
    const char* next_word() { return position < words.size() ? words[position++] : nullptr; }
};

// One row of the table; a word belongs to the first row that matches it.
struct Option {
    std::string_view text;
    bool (*matches)(std::string_view word, std::string_view text);
    void (*act)(const Option& option, const char* word, Parse& parse);
    const char* value_missing = nullptr;  // the refusal when no word follows
    const char* value_unusable = nullptr; // when the next word is empty or an option
    SelectionKind kind{};                 // of a list
};

bool exactly(std::string_view word, std::string_view text) {
    return word == text;
}

bool beginning(std::string_view word, std::string_view text) {
    return word.starts_with(text);
}

bool containing(std::string_view word, std::string_view text) {
    return word.find(text) != std::string_view::npos;
}

bool verbose(std::string_view word, std::string_view /*text*/) {
    return is_verbose_word(word);
}

bool debug(std::string_view word, std::string_view /*text*/) {
    return is_debug_word(word);
}

template <void (*Print)(const char* program_name)>
void inform(const Option& /*option*/, const char* /*word*/, Parse& parse) {
    Print(parse.program_name);
    end_run(RET_OK);
}

void be_silent(const Option& /*option*/, const char* /*word*/, Parse& /*parse*/) {
    silence();
}

// The level was read before all other words.
void skip_level(const Option& /*option*/, const char* /*word*/, Parse& parse) {
    parse.next_word();
}

template <std::int32_t& Setting>
void switch_on(const Option& /*option*/, const char* /*word*/, Parse& /*parse*/) {
    Setting = 1;
}

const char* read_value(const Option& option, Parse& parse) {
    const char* const value = parse.next_word();
    if (value == nullptr) {
        message(1, "%s", option.value_missing);
        end_run(RET_BAD_CALL);
    }
    if (*value == '\0' || *value == '-') {
        message(1, "%s", option.value_unusable);
        end_run(RET_BAD_CALL);
    }
    return value;
}

void read_directory(const Option& option, const char* /*word*/, Parse& parse) {
    set_directories(read_value(option, parse));
}

std::string_view read_selection_value(const Option& option, const char* word, Parse& parse) {
    const std::string_view value = read_value(option, parse);
    if (value.size() > selection_length_max) {
        message(1, "\n\nValue of option '%s' is too long (at most %zu characters)!\n\n", word,
                selection_length_max);
        end_run(RET_BAD_CALL);
    }
    return value;
}

void read_list(const Option& option, const char* word, Parse& parse) {
    parse.selection =
        save_list_of_ctrl_options(read_selection_value(option, word, parse), option.kind);
    parse.given[option.kind] = true;
}

void read_pci_ids(const Option& option, const char* word, Parse& parse) {
    parse.selection = save_list_of_pci_ids(read_selection_value(option, word, parse));
}

constexpr const char* no_subvendor =
    "Please enter at least one controller sub-vendor-id (\"1A0F,2B03,...hex-value\")!\n";
constexpr const char* no_vendor =
    "Please enter at least one controller vendor-id (\"1A0F,2B03,...hex-value\")!\n";
constexpr const char* no_model = "Please enter at least one controller-model string "
                                 "(\"LPe11002-M4, RM480-TC31n, QLE2460... \")!\n";
constexpr const char* no_vendor_name =
    "Please enter at least one controller vendor-name (\"Emulex, QLogic, ... \")!\n";
constexpr const char* no_directory =
    "Please enter a path for file FC_HBA_Conditions.txt and/or HBA firmware!\n";

// Most words need only contain the option's text, so the order decides.
constexpr Option options[] = {
    {"-?", exactly, inform<print_help>},
    {"-h", exactly, inform<print_help>},
    {"--help", exactly, inform<print_help>},
    {"--hiddenhelp", exactly, inform<print_help>},
    {"--info", exactly, inform<print_tool_information>},
    {"--version", exactly, inform<print_version>},
    {"--silent", containing, be_silent},
    {"-v", verbose, skip_level},
    {"-d", debug, skip_level},
    {"-subvid", containing, read_list, no_subvendor, no_subvendor, kind_subvendor_id},
    {"-vid", containing, read_list, no_vendor, no_vendor, kind_vendor_id},
    {"-mod", beginning, read_list, no_model, no_model, kind_model},
    {"-vn", containing, read_list, no_vendor_name, no_vendor_name, kind_vendor_name},
    {"-dev", containing, read_list,
     "Please enter at least one controller device-id (\"1A0F,2B03,...hex-value\")!\n",
     "Please enter at least one controller device-id (\"hex-value\")!\n", kind_device_id},
    {"-subdev", containing, read_list,
     "Please enter at least one controller sub-device-id (\"1A0F,2B03,...hex-value\")!\n",
     "Please enter at least one controller sub-device-id (\"hex-value\")!\n", kind_subdevice_id},
    {"-pci-id", containing, read_pci_ids,
     "Please enter at least one pair of vendor- and device-id (\"1A0F:2B03,...hex-value\")!\n",
     "Please enter at least one pair of vendor- and device-id (\"1A0F:2B03,...hex-value\")\n"},
    {"--conpath", containing, read_directory, no_directory, no_directory},
    {"--check-for-valid-subsystem", containing, switch_on<active_option_valid_subsystem>},
    {"--ctrl-wide-identical", containing, switch_on<active_option_ctrl_wide_identical>},
    {"--ctrl-vendor-wide-identical", exactly, switch_on<active_option_ctrl_vendor_wide_identical>},
    {"--flash", exactly, switch_on<active_option_flash>},
    {"--simulate", exactly, switch_on<active_option_simulate>},
    {"--show-return-codes", exactly, inform<print_return_codes>},
    {"--show-return-code", exactly, inform<print_return_codes>},
    {"--qmr-mode", beginning, switch_on<active_option_qmr_mode>},
};

void read_options(Parse& parse) {
    while (const char* const word = parse.next_word()) {
        const auto* const option = std::ranges::find_if(
            options, [=](const Option& row) { return row.matches(word, row.text); });
        if (option == std::end(options)) {
            message(1, "\n\nInvalid argument '%s' !\n\n", word);
            end_run(RET_BAD_CALL);
        }
        option->act(*option, word, parse);
    }
}

// A list option that makes sense only beside another one.
struct Need {
    SelectionKind given;
    SelectionKind needed;
    const char* given_option;
    const char* needed_option;
    const char* needed_values;
};

constexpr Need needs[] = {
    {kind_model, kind_vendor_name, "-mod", "-vn", "vendor-names"},
    {kind_device_id, kind_vendor_id, "-dev", "-vid", "one or more vendor-ids"},
    {kind_subvendor_id, kind_device_id, "-subvid", "-dev", "one or more device-ids"},
    {kind_subdevice_id, kind_subvendor_id, "-subdev", "-subvid", "one or more subvendor-ids"},
    {kind_subvendor_id, kind_subdevice_id, "-subvid", "-subdev", "one or more subdevice-ids"},
};

void check_combinations(const std::array<bool, selection_kinds>& given) {
    const bool by_id = given[kind_vendor_id] || given[kind_subvendor_id] || given[kind_device_id] ||
                       given[kind_subdevice_id];
    for (const auto& [kind, name] : {std::pair{kind_vendor_name, "-vn"}, {kind_model, "-mod"}}) {
        if (by_id && given[kind]) {
            message(
                1,
                "\n\nCombining options \"-vid\", \"-subvid\", \"-dev\", \"-subdev\" together with "
                "option \"%s\" is not supported.\t!\n",
                name);
            end_run(RET_BAD_CALL);
        }
    }
    for (const Need& need : needs) {
        if (given[need.given] && !given[need.needed]) {
            message(1, "\n\nPlease, also specify %s (option \"%s\")\n, if using option \"%s\"!\n",
                    need.needed_values, need.needed_option, need.given_option);
            end_run(RET_BAD_CALL);
        }
    }
}

void choose_default_check() {
    if (active_option_ctrl_vendor_wide_identical == 0 && active_option_ctrl_wide_identical == 0 &&
        active_option_flash == 0) {
        active_option_valid_subsystem = 1;
    }
}

} // namespace

const option_input* read_command_line(const char* program_name, Words words) {
    normalize_words(words);
    read_levels(words);
    Parse parse{.program_name = program_name, .words = words};
    read_options(parse);
    check_combinations(parse.given);
    choose_default_check();
    return parse.selection;
}
