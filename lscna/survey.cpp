#include "lscna/survey.h"

#include "check/consistency.h"
#include "check/subsystem.h"
#include "conditions/match.h"
#include "flash/image_search.h"
#include "inventory/target_mapping.h"
#include "run/base/settings.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

// What is to be looked at, and the port that it is about.
struct PortNote {
    const hba_info* port;
    std::string text;
};

std::string format_ids(std::uint32_t vendor, std::uint32_t device) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%04X:%04X", vendor, device);
    return text.data();
}

std::string ids_of(const fc_config_file_entry& record) {
    return format_ids(static_cast<std::uint32_t>(record.vendor_id),
                      static_cast<std::uint32_t>(record.device_id)) +
           ":" +
           format_ids(static_cast<std::uint32_t>(record.subvendor_id),
                      static_cast<std::uint32_t>(record.subdevice_id));
}

// "a, b and c"
std::string join_list(const std::vector<std::string>& items) {
    std::string list;
    for (std::size_t i = 0; i < items.size(); ++i) {
        list += (i == 0 ? "" : i + 1 < items.size() ? ", " : " and ") + items[i];
    }
    return list;
}

std::string numbered(int record) {
    return "record " + std::to_string(record);
}

const fc_config_file_entry& record_at(int number) {
    return *fc_config_entry_list[number - 1];
}

// The number of the first record that `fits`; 0 when none does.
template <class Fits>
int find_record(Fits fits) {
    int number = 0;
    for (const fc_config_file_entry& record : all_conditions()) {
        ++number;
        if (fits(record)) {
            return number;
        }
    }
    return 0;
}

// The first record with the port's four ids, which a flash takes.
int record_with_ids(const hba_info& port) {
    return find_record(
        [&](const fc_config_file_entry& record) { return describes(record, port, Ids::four); });
}

// The first of them that is for the port's manufacturer and model, which a check judges by.
int judging_record(const hba_info& port) {
    return find_record([&](const fc_config_file_entry& record) {
        return describes(record, port, Ids::four) && is_for_model(record, port);
    });
}

// Why no record is for the port, with the record that comes nearest.
std::string missing_record(const hba_info& port) {
    if (const int number = record_with_ids(port); number != 0) {
        const fc_config_file_entry& record = record_at(number);
        return numbered(number) + " has its ids, but is for " + record.vendor + " " + record.model +
               ", not for " + port.mfg + " " + port.model +
               ": correct it; a flash takes the record's images all the same";
    }
    const std::string none = "no record has " + pci_id(port);
    const auto nearest = [&](bool swap_device, bool swap_subsystem) {
        return find_record([&](fc_config_file_entry record) {
            if (swap_device) {
                std::swap(record.vendor_id, record.device_id);
            }
            if (swap_subsystem) {
                std::swap(record.subvendor_id, record.subdevice_id);
            }
            return describes(record, port, Ids::four);
        });
    };
    if (const int number = nearest(true, false); number != 0) {
        return none + "; " + numbered(number) + " has vendor and device id swapped: correct it";
    }
    if (const int number = nearest(false, true); number != 0) {
        return none + "; " + numbered(number) +
               " has subvendor and subdevice id swapped: correct it";
    }
    if (const int number = nearest(true, true); number != 0) {
        return none + "; " + numbered(number) +
               " has vendor and device id, and subvendor and subdevice id swapped: correct it";
    }
    if (const int number = find_record(
            [&](const fc_config_file_entry& record) { return describes(record, port, Ids::two); });
        number != 0) {
        return none + "; " + numbered(number) + " is for " + ids_of(record_at(number)) +
               ": add a record, or correct that one";
    }
    std::string columns = pci_id(port);
    for (std::size_t colon = 0; (colon = columns.find(':', colon)) != std::string::npos;) {
        columns.replace(colon, 1, " | ");
    }
    return none + ": add one, '" + port.mfg + " | " + port.model + " | " + columns + " | ...'";
}

// The storage that a record allows, as "DGC Marlovan_CX and any NRB".
std::string allowed_storage(const fc_config_file_entry& record) {
    std::vector<std::string> allowed;
    for (const auto* entry = record.periphery; entry != nullptr; entry = entry->next) {
        if (!is_blank(entry->vendor)) {
            const std::string vendor = entry->vendor;
            allowed.push_back(entry->whole_models[0] == '\0' ? "any " + vendor
                                                             : vendor + " " + entry->whole_models);
        }
    }
    return allowed.empty() ? "no storage" : join_list(allowed);
}

bool allows(const fc_config_file_entry& record, target_mapping_entry storage) {
    hba_info port{};
    port.target_mapping = &storage;
    global_ctrl_flags flags{};
    return DoIndividualSubSystemCheck(port, record, flags);
}

constexpr const char* no_flash_port =
    "the adapter has no flash port (function 0 with port number 0, or 1 with 1), so that every run "
    "of cnatool ends with 22: load its kernel module";

// Why a check does not know the port's ids or storage; empty when it does.
std::string unknown_reason(const hba_info& port, const CommonCauses& causes) {
    if (serial_missing(port)) {
        return "no serial number, so that its reports are not read";
    }
    if (pci_id(port).empty()) {
        return !causes.inventory_ended.empty() ? causes.inventory_ended
               : port.attributes == nullptr    ? "its attributes report has no title: the command "
                                                 "failed, or the disk is full"
                                               : "its attributes report lacks a PCI id";
    }
    if (type_begins_with(port, "FCoE") && port.mapping_reported == 0) {
        return !causes.inventory_ended.empty()
                   ? causes.inventory_ended
                   : "its target-mapping report has no title: the command failed, "
                     "or the disk is full";
    }
    return "";
}

// Why a check does not judge the port by a record; empty when it does.
std::string unjudged_reason(const hba_info& port, int record, const CommonCauses& causes) {
    if (port.flash_port == nullptr) {
        return no_flash_port;
    }
    const std::vector<hba_info*> chain = adapter_chain(port);
    if (std::find(chain.begin(), chain.end(), &port) == chain.end()) {
        return "a check does not come to this port: of an adapter's FCoE ports it judges the first "
               "and the last after the flash port";
    }
    if (record != 0) {
        return "";
    }
    return causes.conditions_unusable.empty() ? missing_record(port) : causes.conditions_unusable;
}

SurveyedPort survey_port(const hba_info& port, const CommonCauses& causes) {
    SurveyedPort surveyed{&port};
    if (!pci_id(port).empty()) {
        surveyed.record = judging_record(port);
    }
    if (!type_begins_with(port, "FCoE")) {
        return surveyed;
    }
    surveyed.reason = unknown_reason(port, causes);
    if (!surveyed.reason.empty()) {
        surveyed.verdict = Verdict::not_known;
        return surveyed;
    }
    surveyed.reason = unjudged_reason(port, surveyed.record, causes);
    if (!surveyed.reason.empty()) {
        surveyed.verdict = Verdict::not_judged;
    } else if (port.target_mapping == nullptr) {
        surveyed.verdict = Verdict::no_storage;
    } else if (allows(record_at(surveyed.record), *port.target_mapping)) {
        surveyed.verdict = Verdict::allowed;
    } else {
        surveyed.verdict = Verdict::not_allowed;
        surveyed.reason =
            numbered(surveyed.record) + " allows " + allowed_storage(record_at(surveyed.record));
    }
    return surveyed;
}

// Notes storage that a check passes over: it judges the last LUN of a report alone.
void look_at_other_luns(const SurveyedPort& surveyed, std::vector<PortNote>& notes) {
    if (surveyed.record == 0 || surveyed.port->target_mapping == nullptr) {
        return;
    }
    for (const target_mapping_entry& lun : reported_luns(*surveyed.port)) {
        if (std::strcmp(lun.vendor_id, surveyed.port->target_mapping->vendor_id) == 0 &&
            std::strcmp(lun.product_id, surveyed.port->target_mapping->product_id) == 0) {
            continue;
        }
        if (!allows(record_at(surveyed.record), lun)) {
            notes.push_back({surveyed.port, std::string("its report also names ") + lun.vendor_id +
                                                " " + lun.product_id + ", which " +
                                                numbered(surveyed.record) +
                                                " does not allow; a check judges the last LUN"});
        }
    }
}

SurveyedImage survey_image(const char* kind, const char* pattern, const std::string& directory) {
    return {kind, pattern, matching_images(directory, pattern)};
}

SurveyedFlash survey_flash(const hba_info& port) {
    SurveyedFlash flash{&port};
    flash.record = pci_id(port).empty() ? 0 : record_with_ids(port);
    if (flash.record != 0) {
        const fc_config_file_entry& record = record_at(flash.record);
        const std::string directory = image_directory(port);
        flash.firmware = survey_image("firmware", record.firmware_image, directory);
        if (record.bios_image[0] != '\0') {
            flash.bios = survey_image("BIOS", record.bios_image, directory);
        }
    }
    return flash;
}

void look_at_image(const SurveyedFlash& flash, const std::optional<SurveyedImage>& image,
                   std::vector<PortNote>& notes) {
    if (!image) {
        return;
    }
    const std::string name = std::string("the ") + image->kind + " image '" + image->pattern +
                             "' of " + numbered(flash.record);
    if (image->pattern.empty()) {
        notes.push_back({flash.port, numbered(flash.record) + " names no " + image->kind +
                                         " image: a flash ends with 20"});
    } else if (image->files.empty()) {
        notes.push_back({flash.port, "no file is " + name + ": put one into " +
                                         image_directory(*flash.port) + "; a flash ends with 20"});
    } else if (image->files.size() > 1) {
        notes.push_back({flash.port, join_list(image->files) + " match " + name +
                                         ": keep one; a flash takes the first in the directory's "
                                         "order"});
    }
}

bool is_flash_port(const hba_info& port) {
    for (const hba_info& other : all_ports()) {
        if (other.flash_port == &port) {
            return true;
        }
    }
    return false;
}

// Whether the port is to be listed. One without ids is: it could be a port that is meant.
bool is_listed(const hba_info& port, const option_input* selection) {
    if (selection == nullptr) {
        return true;
    }
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        if (selects(*entry, port)) {
            return true;
        }
    }
    return pci_id(port).empty() && (type_begins_with(port, "FCoE") || !serial_missing(port));
}

// Notes what concerns a listed port beside the verdict on its storage.
void look_at_port(const SurveyedPort& surveyed, const CommonCauses& causes, bool selected,
                  std::vector<PortNote>& notes) {
    const hba_info& port = *surveyed.port;
    if (surveyed.verdict != Verdict::none || serial_missing(port) || port.flash_port == nullptr) {
        return;
    }
    if (pci_id(port).empty()) {
        notes.push_back({&port, unknown_reason(port, causes)});
    } else if (selected && is_flash_port(port) && record_with_ids(port) == 0) {
        notes.push_back({&port, missing_record(port) + "; a flash writes nothing"});
    }
}

// One line for the ports of an adapter that have the same note.
std::vector<std::string> fold(const std::vector<PortNote>& notes) {
    std::vector<std::string> lines;
    std::vector<bool> folded(notes.size());
    for (std::size_t first = 0; first < notes.size(); ++first) {
        std::vector<std::string> functions;
        for (std::size_t note = first; note < notes.size(); ++note) {
            if (!folded[note] && notes[note].text == notes[first].text &&
                std::strcmp(notes[note].port->serial_no, notes[first].port->serial_no) == 0) {
                folded[note] = true;
                functions.emplace_back(notes[note].port->pci_function);
            }
        }
        if (!functions.empty()) {
            lines.push_back(std::string(notes[first].port->serial_no) +
                            (functions.size() > 1 ? ", functions " : ", function ") +
                            join_list(functions) + ": " + notes[first].text);
        }
    }
    return lines;
}

void look_at_duplicates(std::vector<std::string>& notes) {
    int number = 0;
    for (const fc_config_file_entry& record : all_conditions()) {
        ++number;
        const std::string ids = ids_of(record);
        const int first =
            find_record([&](const fc_config_file_entry& other) { return ids_of(other) == ids; });
        if (first != number && record.vendor_id != 0) {
            notes.push_back(
                "records " + std::to_string(first) + " and " + std::to_string(number) +
                " have the same four ids: a flash takes the first one's images, a check "
                "judges by the first one for the port's model");
        }
    }
}

void look_at_selection(const option_input* selection, std::vector<std::string>& notes) {
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        const auto ports = all_ports();
        bool found = false;
        for (const hba_info& port : ports) {
            found = found || (!serial_missing(port) && selects(*entry, port));
        }
        if (!found) {
            std::string group = entry->vendor_id_str;
            for (const char* id :
                 {entry->device_id_str, entry->subvendor_id_str, entry->subdevice_id_str}) {
                group += *id == '\0' ? "" : std::string(":") + id;
            }
            notes.push_back("--pci-id: no port has " + group);
        }
    }
}

} // namespace

std::string pci_id(const hba_info& port) {
    if (port.attributes == nullptr) {
        return "";
    }
    const hba_attributes_entry& attributes = *port.attributes;
    for (const auto& [text, value] :
         {std::pair{attributes.vendor_spec_id, attributes.vendor_spec_id_val},
          {attributes.device_id, attributes.device_id_val},
          {attributes.subvendor_id, attributes.subvendor_id_val},
          {attributes.subdevice_id, attributes.subdevice_id_val}}) {
        if (*text == '\0' || value > 0xFFFF) {
            return "";
        }
    }
    return format_ids(attributes.vendor_spec_id_val, attributes.device_id_val) + ":" +
           format_ids(attributes.subvendor_id_val, attributes.subdevice_id_val);
}

Survey survey_ports(const option_input* selection, const CommonCauses& causes) {
    Survey survey;
    std::vector<PortNote> notes;
    for (const hba_info& port : all_ports()) {
        if (!serial_missing(port) && port.flash_port == nullptr) {
            notes.push_back({&port, no_flash_port});
        }
        if (!is_listed(port, selection)) {
            continue;
        }
        const SurveyedPort surveyed = survey_port(port, causes);
        if (surveyed.reason != no_flash_port) {
            notes.push_back({&port, surveyed.reason});
        }
        look_at_port(surveyed, causes, selection != nullptr, notes);
        look_at_other_luns(surveyed, notes);
        survey.ports.push_back(surveyed);
        if (is_flash_port(port)) {
            survey.flashes.push_back(survey_flash(port));
            look_at_image(survey.flashes.back(), survey.flashes.back().firmware, notes);
            look_at_image(survey.flashes.back(), survey.flashes.back().bios, notes);
        }
    }
    std::erase_if(notes, [&](const PortNote& note) {
        return note.text.empty() || note.text == causes.inventory_ended ||
               note.text == causes.conditions_unusable;
    });
    survey.notes = fold(notes);
    look_at_duplicates(survey.notes);
    look_at_selection(selection, survey.notes);
    return survey;
}
