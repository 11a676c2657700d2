#include "check/subsystem.h"

#include "run/base/diagnostics.h"
#include "run/base/text.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

// What one walk over the allowed subsystems found out.
struct Findings {
    bool found = false;
    std::string references; // the items that matched, separated by commas
};

void accept(std::string_view item, Findings& findings) {
    findings.found = true;
    message(1, "\t\t\t--> OK\n");
    if (!findings.references.empty()) {
        findings.references += ',';
    }
    findings.references += item;
}

// Looks for an item of the group that the product begins with. The last item is
// looked at only while nothing has allowed the product yet, and an empty one
// allows nothing; an empty item before a comma allows everything.
void check_items(const char* group, const char* product, Findings& findings) {
    const std::vector<std::string_view> items = split(group, ',');
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::string item(items[i]);
        const bool last = i + 1 == items.size();
        if (last && findings.found) {
            return;
        }
        message(1,
                last ? "\t\tCheck subsystem: '%s' Attached subsystem: '%s'"
                     : "\t\t\tCheck subsystem: '%s' Attached subsystem: '%s'",
                item.c_str(), product);
        if (begins_with(product, item) && !(last && item.empty())) {
            accept(item, findings);
            return;
        }
        message(1, "\t\t\t--> Invalid subsystem!\n");
    }
}

void print_storage(const target_mapping_entry& storage) {
    message(1, "\t\t\t\t%s\n\t\t\t\t%s\n\t\t\t\t%s\n", storage.vendor_id, storage.product_id,
            storage.product_version);
}

// Judges the storage by one allowed subsystem of its vendor. Returns true when the other
// subsystems need not be looked at.
bool check_subsystem(const periphery_info_entry& allowed, const target_mapping_entry& storage,
                     Findings& findings) {
    message(1, "\n\t\tAttached storage sub-system:\n");
    print_storage(storage);
    const char* const models = allowed.whole_models;
    if (*models == '\0') {
        findings.found = true;
    } else {
        check_items(models, storage.product_id, findings);
    }
    if (!findings.found || findings.references.empty()) {
        return false;
    }
    if (CheckModelGroupConsistency(models, findings.references)) {
        message(1, "\t\t\tAll reference subsystems appear in the same group: %s\n", models);
        return true;
    }
    message(1,
            "\t\t\tAt least one reference subsystem is not member of group: %s\n\tSkip this "
            "group.\n",
            models);
    return false;
}

void print_invalid(const target_mapping_entry& storage) {
    message(1, "\n\n\t\tInvaild attached storage sub-system found.\n");
    print_storage(storage);
    message(1, "\n");
}

} // namespace

bool CheckModelGroupConsistency(std::string_view group, std::string_view references) {
    const std::string group_text(group);
    message(1, "\tAlready identified reference subsystems: %s  Subsystem group: %s\n",
            std::string(references).c_str(), group_text.c_str());
    const std::vector<std::string_view> items = split(group, ',');
    std::vector<std::string_view> wanted = split(references, ',');
    for (; !wanted.empty(); wanted.pop_back()) {
        const std::string reference(wanted.back());
        if (std::find(items.begin(), items.end(), reference) == items.end()) {
            message(1, "\tReference subsystem '%s' not in Group: >%s< => Skip this group.\n",
                    reference.c_str(), group_text.c_str());
            return false;
        }
        message(1, "\tReference subsystem %s found in Group: %s\n", reference.c_str(),
                group_text.c_str());
    }
    return true;
}

bool DoIndividualSubSystemCheck(const hba_info& port, const fc_config_file_entry& record,
                                global_ctrl_flags& flags) {
    const target_mapping_entry& storage = *port.target_mapping;
    Findings findings;
    for (const auto* allowed = record.periphery; allowed != nullptr; allowed = allowed->next) {
        if (!is_blank(allowed->vendor) && std::strcmp(allowed->vendor, storage.vendor_id) == 0 &&
            check_subsystem(*allowed, storage, findings)) {
            break;
        }
    }
    if (findings.found) {
        message(1, "\n");
        return true;
    }
    flags.InvalidCtrlSubsystemCombinationFound = 1;
    if (any_level_above(5)) {
        print_invalid(storage);
    }
    return false;
}
