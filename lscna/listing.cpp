#include "lscna/listing.h"

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "lscna/format.h"
#include "lscna/json_text.h"
#include "lscna/notes.h"
#include "run/base/settings.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

namespace {

// A column of the screen, a key of the JSON object, or both. An empty text is unknown or not there.
struct Column {
    const char* title; // empty: the screen does not show it
    const char* key;   // empty: the JSON object does not have it
    bool right;
    bool is_string; // in the JSON object; else the text is JSON as it stands
    std::string (*text)(const SurveyedPort&);
    const char* meaning = "";
};

constexpr bool left = false;
constexpr bool right = true;
constexpr bool quoted = true;
constexpr bool as_it_is = false;

template <auto Member>
std::string field(const SurveyedPort& surveyed) {
    return surveyed.port->*Member;
}

std::string pci_id_of(const SurveyedPort& surveyed) {
    return pci_id(*surveyed.port);
}

std::string firmware_of(const SurveyedPort& surveyed) {
    const hba_attributes_entry* const attributes = surveyed.port->attributes;
    if (attributes == nullptr) {
        return "";
    }
    return attributes->operational_fw[0] != '\0' ? attributes->operational_fw
                                                 : attributes->fw_version;
}

std::string storage_of(const SurveyedPort& surveyed) {
    const target_mapping_entry* const storage = surveyed.port->target_mapping;
    if (storage == nullptr) {
        return "";
    }
    const std::string vendor = storage->vendor_id;
    return vendor + (vendor.empty() || *storage->product_id == '\0' ? "" : " ") +
           storage->product_id;
}

std::string json_storage(const SurveyedPort& surveyed) {
    const target_mapping_entry* const storage = surveyed.port->target_mapping;
    return storage == nullptr ? ""
                              : json_object({{"vendor", json_text(storage->vendor_id)},
                                             {"product", json_text(storage->product_id)},
                                             {"version", json_text(storage->product_version)}});
}

template <auto Number>
std::string of_record(const SurveyedPort& surveyed) {
    return surveyed.record == nullptr ? "" : std::to_string(surveyed.record->*Number);
}

template <auto Member>
std::string finding(const SurveyedPort& surveyed) {
    return surveyed.*Member;
}

using Record = fc_config_file_entry;

constexpr Column columns[] = {
    {"ADAPTER", "adapter", left, quoted, field<&hba_info::serial_no>, "serial number"},
    {"FN", "fn", right, quoted, field<&hba_info::pci_function>, "PCI function"},
    {"PORT", "port", right, quoted, field<&hba_info::port_number>, "port number on the adapter"},
    {"TYPE", "type", left, quoted, field<&hba_info::port_type>, "port type"},
    {"MODEL", "model", left, quoted, field<&hba_info::model>, "model of the adapter"},
    {"PCI-ID", "pci-id", left, quoted, pci_id_of, "the four ids, as -pci-id takes them"},
    {"", "wwn", left, quoted, field<&hba_info::port_wwn>},
    {"", "mac", left, quoted, field<&hba_info::permanent_mac>},
    {"", "bus", left, quoted, field<&hba_info::pci_bus_number>},
    {"FIRMWARE", "firmware", left, quoted, firmware_of, "version of the firmware"},
    {"STORAGE", "", left, quoted, storage_of, "vendor and product that it sees"},
    {"", "storage", left, as_it_is, json_storage},
    {"RECORD", "record", right, as_it_is, of_record<&Record::number>,
     "record of the conditions file"},
    {"", "line", right, as_it_is, of_record<&Record::line>},
    {"VERDICT", "verdict", left, quoted, finding<&SurveyedPort::verdict>,
     "what a check says of an FCoE port"},
    {"", "reason", left, quoted, finding<&SurveyedPort::reason>},
};

// A text for a terminal, which other bytes could change.
std::string shown(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c < ' ' || c > '~'; }, '?');
    return text.empty() ? "-" : text;
}

std::string padded(const std::string& text, std::size_t width, bool to_the_right) {
    const std::string blanks(width - text.size(), ' ');
    return to_the_right ? blanks + text : text + blanks;
}

void print_table(const std::vector<SurveyedPort>& ports) {
    std::vector<std::string> lines(ports.size() + 1);
    for (const Column& column : columns) {
        if (*column.title == '\0') {
            continue;
        }
        std::vector<std::string> cells = {column.title};
        std::size_t width = cells.front().size();
        for (const SurveyedPort& port : ports) {
            cells.push_back(shown(column.text(port)));
            width = std::max(width, cells.back().size());
        }
        for (std::size_t i = 0; i < lines.size(); ++i) {
            lines[i] += (lines[i].empty() ? "" : "  ") + padded(cells[i], width, column.right);
        }
    }
    for (std::string& line : lines) {
        line.erase(line.find_last_not_of(' ') + 1);
        std::printf("%s\n", line.c_str());
    }
}

// An image's path below the directory of the images.
std::string below_directory(const std::string& path) {
    const std::string_view directory = pHBAFirmwarePath;
    return path.starts_with(directory) ? path.substr(directory.size()) : path;
}

void print_flashes(const std::vector<SurveyedFlash>& flashes) {
    const char* title = "\nA flash would write:\n";
    for (const SurveyedFlash& flash : flashes) {
        // A flash begins only when it has found all of the images.
        if (!flash.firmware || flash.firmware->files.empty() ||
            (flash.bios && flash.bios->files.empty())) {
            continue;
        }
        const std::string line =
            format("%s, function %s, record %d: %s", shown(flash.port->serial_no).c_str(),
                   flash.port->pci_function, flash.record->number,
                   below_directory(flash.firmware->files.front()).c_str()) +
            (flash.bios ? ", then BIOS " + below_directory(flash.bios->files.front()) : "");
        std::printf("%s  %s\n", title, shown(line).c_str());
        title = "";
    }
}

// Prints the items of a list, a line each.
template <class Item>
void print_json_list(const char* key, const std::vector<Item>& items,
                     std::string (*json)(const Item&), const char* end) {
    std::printf("  \"%s\": [", key);
    const char* separator = "\n";
    for (const Item& item : items) {
        std::printf("%s    %s", separator, json(item).c_str());
        separator = ",\n";
    }
    std::printf("%s]%s\n", items.empty() ? "" : "\n  ", end);
}

std::string json_port(const SurveyedPort& port) {
    std::vector<JsonMember> members;
    for (const Column& column : columns) {
        const std::string text = column.text(port);
        if (*column.key != '\0') {
            const bool is_string = column.is_string || text.empty();
            members.emplace_back(column.key, is_string ? json_text(text) : text);
        }
    }
    return json_object(members);
}

std::string json_image(const std::optional<SurveyedImage>& image) {
    return image ? json_object(
                       {{"pattern", json_text(image->pattern)}, {"files", json_list(image->files)}})
                 : "null";
}

std::string json_flash(const SurveyedFlash& flash) {
    return json_object(
        {{"adapter", json_text(flash.port->serial_no)},
         {"fn", json_text(flash.port->pci_function)},
         {"record", flash.record == nullptr ? "null" : std::to_string(flash.record->number)},
         {"firmware", json_image(flash.firmware)},
         {"bios", json_image(flash.bios)}});
}

std::string json_note(const Note& note) {
    return json_object({{"adapter", json_text(note.adapter)},
                        {"functions", json_list(note.functions)},
                        {"text", json_text(note.text)}});
}

} // namespace

std::string describe_columns() {
    std::string text;
    for (const Column& column : columns) {
        if (*column.title != '\0') {
            text += "  " + padded(column.title, 10, left) + column.meaning + "\n";
        }
    }
    return text;
}

void print_screen(const Survey& survey) {
    print_table(survey.ports);
    if (survey.fibre_channel_ports > 0) {
        std::printf("%d Fibre Channel port%s left alone.\n", survey.fibre_channel_ports,
                    survey.fibre_channel_ports == 1 ? " is" : "s are");
    }
    print_flashes(survey.flashes);
    const char* title = "\nTo look at:\n";
    for (const Note& note : survey.notes) {
        const std::string line =
            note.functions.empty()
                ? note.text
                : shown(note.adapter) +
                      (note.functions.size() > 1 ? ", functions " : ", function ") +
                      join(note.functions) + ": " + note.text;
        std::printf("%s  %s\n", title, shown(line).c_str());
        title = "";
    }
}

void print_json(const Answer& answer) {
    const Survey& survey = answer.survey;
    std::printf("{\n  \"format\": 1, \"version\": \"%s\", \"status\": %d, \"error\": %s,\n",
                LSCNA_VERSION, answer.status, json_text(answer.error).c_str());
    print_json_list("ports", survey.ports, json_port, ",");
    std::printf("  \"fibre-channel-ports\": %d,\n", survey.fibre_channel_ports);
    print_json_list("flashes", survey.flashes, json_flash, ",");
    print_json_list("notes", survey.notes, json_note, "");
    std::printf("}\n");
}
