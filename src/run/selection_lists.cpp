#include "run/selection_lists.h"

#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/record_list.h"
#include "run/base/return_codes.h"
#include "run/base/text.h"

#include <array>
#include <string>

namespace {

std::int32_t option_input_cnt = 0;

// Where the items of a kind go and what the messages call them. Only identifiers have a number.
struct Target {
    TextField<option_input> field;
    const char* list_name;
    const char* item_name;
    std::int32_t option_input::*number = nullptr;
};

constexpr auto targets = std::to_array<Target>({
    {text_field<&option_input::vendor_id_str>, "vendor-ids", "Vendor-Id", &option_input::vendor_id},
    {text_field<&option_input::subvendor_id_str>, "sub-vendor-ids", "SubVendor-Id",
     &option_input::subvendor_id},
    {text_field<&option_input::vendor_name>, "vendor-names", "Vendor"},
    {text_field<&option_input::device_id_str>, "device-ids", "Device-Id", &option_input::device_id},
    {text_field<&option_input::subdevice_id_str>, "sub-device-ids", "SubDevice-Id",
     &option_input::subdevice_id},
    {text_field<&option_input::model>, "controller-model strings", "Model"},
});
static_assert(targets.size() == selection_kinds);

// The fields of a PCI identity in their order.
constexpr auto pci_fields =
    std::to_array({kind_vendor_id, kind_device_id, kind_subvendor_id, kind_subdevice_id});

// The entry that `link` leads to, made when there is none.
option_input& entry_at(option_input*& link) {
    if (link == nullptr) {
        link = &made(get_new_option_input_buffer());
    }
    return *link;
}

// Stores an identifier, converted from the whole item. A bad one is refused at the level given.
void store_id(option_input& entry, const Target& target, std::string_view item,
              std::int32_t level) {
    std::string text(item);
    const std::int32_t number = string2int(text.data(), 16);
    if (number < 0) {
        message(level, "Error: %s %s is not a valid hex value!\n", target.item_name, text.c_str());
        end_run(RET_FATAL_ERROR);
    }
    copy_text(target.field.of(entry), text.c_str());
    entry.*target.number = number;
}

void store_item(option_input& entry, const Target& target, std::string_view item) {
    if (target.number != nullptr) {
        store_id(entry, target, item, 1);
    } else {
        copy_text(target.field.of(entry), item);
    }
}

void echo_item(option_input& entry, const Target& target, int index) {
    if (target.number != nullptr) {
        message(2, "%d. %s: 0x%x\n", index, target.item_name,
                static_cast<std::uint32_t>(entry.*target.number));
    } else {
        message(2, "%d. %s: %s\n", index, target.item_name, target.field.of(entry).data());
    }
}

// Stores the fields of one PCI identity. Returns how many there were.
std::size_t store_group(option_input& entry, std::string_view group) {
    std::size_t count = 0;
    for (const std::string_view item : split(group, ':')) {
        if (item.empty()) {
            continue;
        }
        if (count == pci_fields.size()) {
            end_run(RET_FATAL_ERROR);
        }
        store_id(entry, targets[pci_fields[count]], item, 2);
        ++count;
    }
    return count;
}

void list_pci_ids(const option_input* head) {
    for (const option_input* entry = head; entry != nullptr; entry = entry->next) {
        message(2, "\n\tVendor-Id 0x%x\n", static_cast<std::uint32_t>(entry->vendor_id));
        message(2, "\tDevice-Id 0x%x\n", static_cast<std::uint32_t>(entry->device_id));
        message(2, "\tSubVendor-Id 0x%x\n", static_cast<std::uint32_t>(entry->subvendor_id));
        message(2, "\tSubDevice-Id 0x%x\n", static_cast<std::uint32_t>(entry->subdevice_id));
    }
}

} // namespace

option_input* get_new_option_input_buffer() {
    return new_counted_record<option_input>(option_input_cnt);
}

const option_input* save_list_of_pci_ids(std::string_view value) {
    static option_input* p_option_input = nullptr;
    const std::string whole(value);
    if (any_level_above(2)) {
        message(2, "\nList of input pci-ids: \"%s\"\n", whole.c_str());
    }
    if (value.empty()) {
        end_run(RET_BAD_CALL);
    }
    // A value without any group still makes the head.
    entry_at(p_option_input);
    option_input** link = &p_option_input;
    for (const std::string_view group : split(value, ',')) {
        // Groups after two commas in a row are not read.
        if (group.empty()) {
            break;
        }
        option_input& entry = entry_at(*link);
        const std::size_t fields = store_group(entry, group);
        if (fields != 0 && fields != 2 && fields != pci_fields.size()) {
            message(2, "Error: List of PCI-IDs %s is incomplete!\n", whole.c_str());
            end_run(RET_BAD_CALL);
        }
        link = &entry.next;
    }
    if (any_level_above(5)) {
        list_pci_ids(p_option_input);
    }
    return p_option_input;
}

const option_input* save_list_of_ctrl_options(std::string_view value, std::uint32_t kind) {
    static option_input* p_option_input = nullptr;
    if (kind >= targets.size()) {
        end_run(RET_FATAL_ERROR);
    }
    const Target& target = targets[kind];
    if (any_level_above(2)) {
        message(2, "List of input %s: %s\n", target.list_name, std::string(value).c_str());
    }
    option_input** link = &p_option_input;
    int index = 0;
    for (const std::string_view item : split(value, ',')) {
        if (item.empty()) {
            continue;
        }
        option_input& entry = entry_at(*link);
        store_item(entry, target, item);
        if (any_level_above(2)) {
            echo_item(entry, target, index);
        }
        ++index;
        link = &entry.next;
    }
    return p_option_input;
}
