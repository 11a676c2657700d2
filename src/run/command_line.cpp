#include "run/command_line.h"

#include "run/diagnostics.h"
#include "run/directories.h"
#include "run/help.h"
#include "run/return_codes.h"
#include "run/settings.h"

#include <cstdlib>
#include <utility>

namespace {

// The walk over the words: an option with a value takes the next one as well.
struct Cursor {
    Words words;
    std::size_t position = 0;

    [[nodiscard]] bool at_end() const { return position >= words.size(); }
    char* take() { return at_end() ? nullptr : words[position++]; }
};

[[noreturn]] void refuse() {
    std::exit(RET_BAD_CALL);
}

const char* take_value(const Option& option, Cursor& cursor) {
    const char* const value = cursor.take();
    if (value == nullptr) {
        message(1, "%s", option.value_missing);
        refuse();
    }
    if (*value == '\0' || *value == '-') {
        message(1, "%s", option.value_unusable);
        refuse();
    }
    return value;
}

std::string_view take_selection(const Option& option, const char* word, Cursor& cursor) {
    const std::string_view value = take_value(option, cursor);
    if (value.size() >= path_capacity) {
        message(1, "\n\nValue of option '%s' is too long (at most %d characters)!\n\n", word,
                static_cast<int>(path_capacity) - 1);
        refuse();
    }
    return value;
}

void apply(const Option& option, const char* program, const char* word, Cursor& cursor,
           Request& request) {
    switch (option.effect) {
    case Effect::help:
        print_help(program);
        std::exit(RET_OK);
    case Effect::tool_information:
        print_tool_information(program);
        std::exit(RET_OK);
    case Effect::version:
        print_version();
        std::exit(RET_OK);
    case Effect::return_codes:
        print_return_codes();
        std::exit(RET_OK);
    case Effect::silence:
        silence();
        break;
    case Effect::level:
        cursor.take();
        break;
    case Effect::list:
        request.selection =
            save_list_of_ctrl_options(take_selection(option, word, cursor), option.kind);
        request.given[option.kind] = true;
        break;
    case Effect::pci_ids:
        request.selection = save_list_of_pci_ids(take_selection(option, word, cursor));
        break;
    case Effect::directory:
        set_directories(take_value(option, cursor));
        break;
    case Effect::flag:
        request.*option.flag = true;
        break;
    }
}

Request read_options(const char* program, Words words) {
    Request request;
    Cursor cursor{words};
    while (const char* const word = cursor.take()) {
        const Option* found = nullptr;
        for (const Option& option : options()) {
            if (option.matches(word, option.text)) {
                found = &option;
                break;
            }
        }
        if (found == nullptr) {
            message(1, "\n\nInvalid argument '%s' !\n\n", word);
            refuse();
        }
        apply(*found, program, word, cursor, request);
    }
    return request;
}

// A list option that makes sense only beside another one.
struct Need {
    SelectionKind given;
    SelectionKind needed;
    const char* format;
    const char* given_name;
    const char* needed_name;
};

constexpr Need needs[] = {
    {kind_model, kind_vendor_name,
     "\n\nPlease, also specify vendor-names (option \"%s\")\n, if using option \"%s\"!\n", "-mod",
     "-vn"},
    {kind_device_id, kind_vendor_id,
     "\n\nPlease, also specify one or more vendor-ids (option \"%s\")\n, if using option "
     "\"%s\"!\n",
     "-dev", "-vid"},
    {kind_subvendor_id, kind_device_id,
     "\n\nPlease, also specify one or more device-ids (option \"%s\")\n, if using option "
     "\"%s\"!\n",
     "-subvid", "-dev"},
    {kind_subdevice_id, kind_subvendor_id,
     "\n\nPlease, also specify one or more subvendor-ids (option \"%s\")\n, if using option "
     "\"%s\"!\n",
     "-subdev", "-subvid"},
    {kind_subvendor_id, kind_subdevice_id,
     "\n\nPlease, also specify one or more subdevice-ids (option \"%s\")\n, if using option "
     "\"%s\"!\n",
     "-subvid", "-subdev"},
};

void check_combinations(const Request& request) {
    const auto& given = request.given;
    const bool by_id = given[kind_vendor_id] || given[kind_subvendor_id] || given[kind_device_id] ||
                       given[kind_subdevice_id];
    for (const auto& [kind, name] : {std::pair{kind_vendor_name, "-vn"}, {kind_model, "-mod"}}) {
        if (by_id && given[kind]) {
            message(1,
                    "\n\nCombining options \"%s\", \"%s\", \"%s\", \"%s\" together with option "
                    "\"%s\" is not supported.\t!\n",
                    "-vid", "-subvid", "-dev", "-subdev", name);
            refuse();
        }
    }
    for (const Need& need : needs) {
        if (given[need.given] && !given[need.needed]) {
            message(1, need.format, need.needed_name, need.given_name);
            refuse();
        }
    }
}

void choose_checks(Request& request) {
    if (!request.ctrl_vendor_wide_identical && !request.ctrl_wide_identical && !request.flash) {
        request.check_valid_subsystem = true;
    }
    active_option_simulate = request.simulate ? 1 : 0;
    active_option_valid_subsystem = request.check_valid_subsystem ? 1 : 0;
    active_option_ctrl_wide_identical = request.ctrl_wide_identical ? 1 : 0;
    active_option_ctrl_vendor_wide_identical = request.ctrl_vendor_wide_identical ? 1 : 0;
}

} // namespace

Request read_command_line(const char* program, Words words) {
    normalize_words(words);
    read_levels(words);
    Request request = read_options(program, words);
    check_combinations(request);
    choose_checks(request);
    return request;
}
