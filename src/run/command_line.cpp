#include "run/command_line.h"

#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/directories.h"
#include "run/help.h"
#include "run/options.h"

#include <array>
#include <cstddef>
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

std::string_view read_selection_value(const Option& option, const char* word, Parse& parse) {
    const std::string_view value = read_value(option, parse);
    if (value.size() > selection_length_max) {
        message(1, "\n\nValue of option '%s' is too long (at most %d characters)!\n\n", word,
                static_cast<int>(selection_length_max));
        end_run(RET_BAD_CALL);
    }
    return value;
}

void apply(const Option& option, const char* word, Parse& parse) {
    switch (option.effect) {
    case Effect::help:
        print_help(parse.program_name);
        end_run(RET_OK);
    case Effect::tool_information:
        print_tool_information(parse.program_name);
        end_run(RET_OK);
    case Effect::version:
        print_version();
        end_run(RET_OK);
    case Effect::return_codes:
        print_return_codes();
        end_run(RET_OK);
    case Effect::silence:
        silence();
        break;
    case Effect::level:
        parse.next_word();
        break;
    case Effect::list:
        parse.selection =
            save_list_of_ctrl_options(read_selection_value(option, word, parse), option.kind);
        parse.given[option.kind] = true;
        break;
    case Effect::pci_ids:
        parse.selection = save_list_of_pci_ids(read_selection_value(option, word, parse));
        break;
    case Effect::directory:
        set_directories(read_value(option, parse));
        break;
    case Effect::switched_on:
        *option.setting = 1;
        break;
    }
}

const Option* find_option(const char* word) {
    for (const Option& option : options()) {
        if (option.matches(word, option.text)) {
            return &option;
        }
    }
    return nullptr;
}

void read_options(Parse& parse) {
    while (const char* const word = parse.next_word()) {
        const Option* const option = find_option(word);
        if (option == nullptr) {
            message(1, "\n\nInvalid argument '%s' !\n\n", word);
            end_run(RET_BAD_CALL);
        }
        apply(*option, word, parse);
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
