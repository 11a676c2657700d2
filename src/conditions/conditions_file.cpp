#include "conditions/conditions_file.h"

#include "conditions/conditions.h"
#include "run/diagnostics.h"
#include "run/return_codes.h"
#include "run/text.h"
#include "run/text_file.h"

#include <array>
#include <cstdlib>

namespace {

using Entry = fc_config_file_entry;

// The columns that describe the controller; an identifier also has a number and
// the name that its refusal gives it.
struct Column {
    std::span<char> (*field)(Entry&);
    const char* listing;
    std::int32_t Entry::*number = nullptr;
    const char* name = nullptr;
};

constexpr auto columns = std::to_array<Column>({
    {text_field<&Entry::vendor>, " %18s |"},
    {text_field<&Entry::model>, " %16s |"},
    {text_field<&Entry::vendor_id_str>, " %6s |", &Entry::vendor_id, "Vendor-Id"},
    {text_field<&Entry::device_id_str>, " %6s |", &Entry::device_id, "Device-Id"},
    {text_field<&Entry::subvendor_id_str>, " %6s |", &Entry::subvendor_id, "Sub-Vendor-Id"},
    {text_field<&Entry::subdevice_id_str>, " %6s |", &Entry::subdevice_id, "Sub-System-Id"},
    {text_field<&Entry::column6>, " %12s |"},
    {text_field<&Entry::column7>, " %12s |"},
    {text_field<&Entry::firmware_image>, " %12s |"},
    {text_field<&Entry::bios_image>, " %12s |"},
    {text_field<&Entry::column10>, " %12s |"},
    {text_field<&Entry::column11>, " %12s |"},
});

// The columns behind them, which repeat for each allowed subsystem.
struct SubsystemColumn {
    std::span<char> (*field)(periphery_info_entry&);
    const char* listing;
};

constexpr auto subsystem_columns = std::to_array<SubsystemColumn>({
    {text_field<&periphery_info_entry::vendor>, " %12s |"},
    {text_field<&periphery_info_entry::models>, " %18s |"},
    {text_field<&periphery_info_entry::extra>, " %12s"},
});

// Converts an identifier from its whole value, so that cutting the stored text
// never makes it another adapter's.
void store_identifier(const Column& column, char* value, std::int32_t line_number, Entry& entry) {
    const std::int32_t number = string2int(value, 16);
    if (number < 0) {
        if (DebugLevel > 0 && PrintDebugOnScreen != 0) {
            static_cast<void>(std::fprintf(stderr,
                                           "\nError line %d: %s %s is not a valid hex value!\n",
                                           line_number, column.name, column.field(entry).data()));
        }
        std::exit(RET_FATAL_ERROR);
    }
    entry.*column.number = number;
}

// Appends a subsystem record; `last` is the link of the chain's end. Returns
// null when memory is exhausted.
periphery_info_entry* append_subsystem(periphery_info_entry**& last) {
    periphery_info_entry* const subsystem = get_new_periphery_info_entry();
    if (subsystem == nullptr) {
        message(1, "Could not allocate memory for new fc_periphery_info.\n");
        return nullptr;
    }
    *last = subsystem;
    last = &subsystem->next;
    return subsystem;
}

// Makes a record of a data line, whose first column is `text`.
std::int32_t read_data_line(char* text, char* rest, std::int32_t line_number) {
    Entry* const entry = get_new_config_file_entry();
    if (entry == nullptr) {
        message(1, "Could not allocate memory for new fc_config_file entry.\n");
        return RET_MEMALLOC_FAIL;
    }
    periphery_info_entry** last = &entry->periphery;
    periphery_info_entry* subsystem = nullptr;
    for (std::size_t index = 0; text != nullptr; ++index, text = strtok_r(nullptr, "|", &rest)) {
        char* const value = cleanString(text);
        const char* listing = nullptr;
        if (index < columns.size()) {
            const Column& column = columns[index];
            copy_text(column.field(*entry), value);
            if (column.number != nullptr) {
                store_identifier(column, value, line_number, *entry);
            }
            listing = column.listing;
        } else {
            const std::size_t position = (index - columns.size()) % subsystem_columns.size();
            if (position == 0) {
                subsystem = append_subsystem(last);
            }
            if (subsystem == nullptr) {
                return RET_MEMALLOC_FAIL;
            }
            copy_text(subsystem_columns[position].field(*subsystem), value);
            listing = subsystem_columns[position].listing;
        }
        message(5, listing, value);
    }
    message(5, "\n");
    return RET_OK;
}

} // namespace

std::int32_t Read_FC_Config_File(const char* path) {
    const TextFile file = open_text_file(path);
    if (file == nullptr) {
        message(1, "Error: Could not open file %s\n", path);
        return RET_FC_HBA_CONDITIONS_MISSING;
    }
    LineBuffer line;
    for (std::int32_t number = 1; read_line(file, line); ++number) {
        if (std::strchr(line, '#') != nullptr || std::strstr(line, "--+--") != nullptr) {
            continue;
        }
        char* rest = nullptr;
        char* const first = strtok_r(line, "|", &rest);
        if (first == nullptr) {
            continue;
        }
        if (const std::int32_t result = read_data_line(first, rest, number); result != RET_OK) {
            return result;
        }
    }
    return RET_OK;
}
