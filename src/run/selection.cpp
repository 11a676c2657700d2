#include "run/selection.h"

#include "run/diagnostics.h"
#include "run/record_list.h"
#include "run/return_codes.h"
#include "run/text.h"

#include <array>
#include <cstdlib>
#include <string>

namespace {

using Input = option_input;

// What the kinds of a list differ in; identifiers have a number and a refusal.
struct Kind {
    std::span<char> (*field)(Input&);
    const char* list_echo;
    const char* item_echo;
    std::int32_t Input::*number = nullptr;
    const char* refusal = nullptr;
};

constexpr auto kinds = std::to_array<Kind>({
    {text_field<&Input::vendor_id_str>, "List of input vendor-ids: %s\n", "%d. Vendor-Id: 0x%x\n",
     &Input::vendor_id, "Error: Vendor-Id %s is not a valid hex value!\n"},
    {text_field<&Input::subvendor_id_str>, "List of input sub-vendor-ids: %s\n",
     "%d. SubVendor-Id: 0x%x\n", &Input::subvendor_id,
     "Error: SubVendor-Id %s is not a valid hex value!\n"},
    {text_field<&Input::vendor_name>, "List of input vendor-names: %s\n", "%d. Vendor: %s\n"},
    {text_field<&Input::device_id_str>, "List of input device-ids: %s\n", "%d. Device-Id: 0x%x\n",
     &Input::device_id, "Error: Device-Id %s is not a valid hex value!\n"},
    {text_field<&Input::subdevice_id_str>, "List of input sub-device-ids: %s\n",
     "%d. SubDevice-Id: 0x%x\n", &Input::subdevice_id,
     "Error: SubDevice-Id %s is not a valid hex value!\n"},
    {text_field<&Input::model>, "List of input controller-model strings: %s\n", "%d. Model: %s\n"},
});
static_assert(kinds.size() == selection_kinds);

// The fields of a PCI identity in their order, as kinds of identifiers.
constexpr auto pci_fields =
    std::to_array({kind_vendor_id, kind_device_id, kind_subvendor_id, kind_subdevice_id});

// Takes the next item off `rest`, passing over runs of the separator; empty
// when there is none left.
std::string_view next_item(std::string_view& rest, char separator) {
    rest.remove_prefix(std::min(rest.find_first_not_of(separator), rest.size()));
    const std::string_view item = rest.substr(0, rest.find(separator));
    rest.remove_prefix(item.size());
    return item;
}

// The entry behind `link`, made when there is none.
Input* entry_at(Input*& link) {
    if (link == nullptr) {
        link = get_new_option_input_buffer();
    }
    if (link == nullptr) {
        std::exit(RET_MEMALLOC_FAIL);
    }
    return link;
}

// Stores an identifier, converted from the whole item; a bad one is refused at
// the level given.
void store_id(Input& entry, const Kind& kind, std::string_view item, std::int32_t level) {
    std::string text(item);
    const std::int32_t number = string2int(text.data(), 16);
    if (number < 0) {
        message(level, kind.refusal, text.c_str());
        std::exit(RET_FATAL_ERROR);
    }
    copy_text(kind.field(entry), text.c_str());
    entry.*kind.number = number;
}

void store_item(Input& entry, const Kind& kind, std::string_view item, int index) {
    if (kind.number != nullptr) {
        store_id(entry, kind, item, 1);
    } else {
        copy_text(kind.field(entry), item);
    }
    if (!levels_above(2)) {
        return;
    }
    if (kind.number != nullptr) {
        message(2, kind.item_echo, index, static_cast<std::uint32_t>(entry.*kind.number));
    } else {
        message(2, kind.item_echo, index, kind.field(entry).data());
    }
}

// Stores the fields of one PCI identity. Returns how many there were.
std::size_t store_group(Input& entry, std::string_view group) {
    std::size_t count = 0;
    for (auto item = next_item(group, ':'); !item.empty(); item = next_item(group, ':')) {
        if (count == pci_fields.size()) {
            std::exit(RET_FATAL_ERROR);
        }
        store_id(entry, kinds[pci_fields[count]], item, 2);
        ++count;
    }
    return count;
}

void list_pci_ids(const Input* entry) {
    for (; entry != nullptr; entry = entry->next) {
        message(2, "\n\tVendor-Id 0x%x\n", static_cast<std::uint32_t>(entry->vendor_id));
        message(2, "\tDevice-Id 0x%x\n", static_cast<std::uint32_t>(entry->device_id));
        message(2, "\tSubVendor-Id 0x%x\n", static_cast<std::uint32_t>(entry->subvendor_id));
        message(2, "\tSubDevice-Id 0x%x\n", static_cast<std::uint32_t>(entry->subdevice_id));
    }
}

} // namespace

option_input* get_new_option_input_buffer() {
    static std::int32_t option_input_cnt = 0;
    return new_counted_record<option_input>(option_input_cnt);
}

option_input* save_list_of_pci_ids(std::string_view value) {
    static Input* p_option_input = nullptr;
    const std::string whole(value);
    if (levels_above(2)) {
        message(2, "\nList of input pci-ids: \"%s\"\n", whole.c_str());
    }
    if (value.empty()) {
        std::exit(RET_BAD_CALL);
    }
    // The head is there even when no group is; whatever follows two commas in a
    // row is not read.
    entry_at(p_option_input);
    Input** link = &p_option_input;
    while (!value.empty() && value.front() != ',') {
        const std::string_view group = value.substr(0, value.find(','));
        Input* const entry = entry_at(*link);
        const std::size_t fields = store_group(*entry, group);
        if (fields != 0 && fields != 2 && fields != pci_fields.size()) {
            message(2, "Error: List of PCI-IDs %s is incomplete!\n", whole.c_str());
            std::exit(RET_BAD_CALL);
        }
        value.remove_prefix(std::min(group.size() + 1, value.size()));
        link = &entry->next;
    }
    if (levels_above(5)) {
        list_pci_ids(p_option_input);
    }
    return p_option_input;
}

option_input* save_list_of_ctrl_options(std::string_view value, std::uint32_t kind) {
    static Input* p_option_input = nullptr;
    if (kind >= kinds.size()) {
        std::exit(RET_FATAL_ERROR);
    }
    const Kind& row = kinds[kind];
    if (levels_above(2)) {
        message(2, row.list_echo, std::string(value).c_str());
    }
    Input** link = &p_option_input;
    std::string_view rest = value;
    int index = 0;
    for (auto item = next_item(rest, ','); !item.empty(); item = next_item(rest, ',')) {
        Input* const entry = entry_at(*link);
        store_item(*entry, row, item, index++);
        link = &entry->next;
    }
    return p_option_input;
}
