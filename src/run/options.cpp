#include "run/options.h"

#include "run/base/settings.h"
#include "run/levels.h"

namespace {

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

constexpr Option switch_option(std::string_view text,
                               bool (*matches)(std::string_view, std::string_view),
                               std::int32_t& setting) {
    return {.text = text, .matches = matches, .effect = Effect::switched_on, .setting = &setting};
}

constexpr Option list_option(std::string_view text,
                             bool (*matches)(std::string_view, std::string_view),
                             SelectionKind kind, const char* missing, const char* unusable) {
    return {.text = text,
            .matches = matches,
            .effect = Effect::list,
            .kind = kind,
            .value_missing = missing,
            .value_unusable = unusable};
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
constexpr Option table[] = {
    {.text = "-?", .matches = exactly, .effect = Effect::help},
    {.text = "-h", .matches = exactly, .effect = Effect::help},
    {.text = "--help", .matches = exactly, .effect = Effect::help},
    {.text = "--hiddenhelp", .matches = exactly, .effect = Effect::help},
    {.text = "--info", .matches = exactly, .effect = Effect::tool_information},
    {.text = "--version", .matches = exactly, .effect = Effect::version},
    {.text = "--silent", .matches = containing, .effect = Effect::silence},
    {.text = "-v", .matches = verbose, .effect = Effect::level},
    {.text = "-d", .matches = debug, .effect = Effect::level},
    list_option("-subvid", containing, kind_subvendor_id, no_subvendor, no_subvendor),
    list_option("-vid", containing, kind_vendor_id, no_vendor, no_vendor),
    list_option("-mod", beginning, kind_model, no_model, no_model),
    list_option("-vn", containing, kind_vendor_name, no_vendor_name, no_vendor_name),
    list_option("-dev", containing, kind_device_id,
                "Please enter at least one controller device-id (\"1A0F,2B03,...hex-value\")!\n",
                "Please enter at least one controller device-id (\"hex-value\")!\n"),
    list_option(
        "-subdev", containing, kind_subdevice_id,
        "Please enter at least one controller sub-device-id (\"1A0F,2B03,...hex-value\")!\n",
        "Please enter at least one controller sub-device-id (\"hex-value\")!\n"),
    {.text = "-pci-id",
     .matches = containing,
     .effect = Effect::pci_ids,
     .value_missing = "Please enter at least one pair of vendor- and device-id "
                      "(\"1A0F:2B03,...hex-value\")!\n",
     .value_unusable = "Please enter at least one pair of vendor- and device-id "
                       "(\"1A0F:2B03,...hex-value\")\n"},
    {.text = "--conpath",
     .matches = containing,
     .effect = Effect::directory,
     .value_missing = no_directory,
     .value_unusable = no_directory},
    switch_option("--check-for-valid-subsystem", containing, active_option_valid_subsystem),
    switch_option("--ctrl-wide-identical", containing, active_option_ctrl_wide_identical),
    switch_option("--ctrl-vendor-wide-identical", exactly,
                  active_option_ctrl_vendor_wide_identical),
    switch_option("--flash", exactly, active_option_flash),
    switch_option("--simulate", exactly, active_option_simulate),
    {.text = "--show-return-codes", .matches = exactly, .effect = Effect::return_codes},
    {.text = "--show-return-code", .matches = exactly, .effect = Effect::return_codes},
    switch_option("--qmr-mode", beginning, active_option_qmr_mode),
};

} // namespace

std::span<const Option> options() {
    return table;
}
