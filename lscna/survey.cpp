#include "lscna/survey.h"

#include "check/consistency.h"
#include "check/subsystem.h"
#include "classify/adapter.h"
#include "conditions/match.h"
#include "flash/image_search.h"
#include "inventory/target_mapping.h"
#include "lscna/format.h"
#include "run/base/result_flags.h"
#include "run/base/settings.h"
#include "run/base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

using Record = fc_config_file_entry;

// Mistakes by which a record misses the port that it is meant for.
struct Mixup {
    std::array<std::size_t, 4> order; // of its ids, which gives the port's
    const char* text;
};

constexpr Mixup mixups[] = {
    {{1, 0, 2, 3}, "vendor and device id exchanged"},
    {{0, 1, 3, 2}, "subvendor and subdevice id exchanged"},
    {{1, 0, 3, 2}, "vendor and device id exchanged, and subvendor and subdevice id"},
    {{2, 3, 0, 1}, "the two pairs of ids exchanged (vendor and device id come first)"},
};

bool same(const char* a, const char* b) {
    return std::strcmp(a, b) == 0;
}

// The first record that `fits`; null when none does.
template <class Fits>
const Record* find_record(Fits fits) {
    const std::span<Record*> records = all_conditions();
    const auto found =
        std::ranges::find_if(records, [&](const Record* record) { return fits(*record); });
    return found == records.end() ? nullptr : *found;
}

// The first record with the port's four ids, whose images a flash takes.
const Record* record_of_flash(const hba_info& port) {
    return pci_id(port).empty() ? nullptr : find_record([&](const Record& record) {
        return describes(record, port, Ids::four);
    });
}

// The first of them that is for its manufacturer and model, too, by which a check judges.
const Record* record_of_check(const hba_info& port) {
    return pci_id(port).empty() ? nullptr : find_record([&](const Record& record) {
        return describes(record, port, Ids::four) && is_for_model(record, port);
    });
}

std::string named(const Record& record) {
    return format("record %d (line %d)", record.number, record.line);
}

bool has_mixup(Record record, const Mixup& mixup, const hba_info& port) {
    const std::array ids = {record.vendor_id, record.device_id, record.subvendor_id,
                            record.subdevice_id};
    record.vendor_id = ids[mixup.order[0]];
    record.device_id = ids[mixup.order[1]];
    record.subvendor_id = ids[mixup.order[2]];
    record.subdevice_id = ids[mixup.order[3]];
    return describes(record, port, Ids::four);
}

// Whether a port has the record's four ids: then it is not meant for another one.
bool has_port(const Record& record) {
    return std::ranges::any_of(all_ports(), [&](const hba_info* port) {
        return port->attributes != nullptr && describes(record, *port, Ids::four);
    });
}

// The record that has the port's ids in another order; empty when there is none.
std::string mixed_up_record(const hba_info& port) {
    for (const Mixup& mixup : mixups) {
        const Record* const record = find_record(
            [&](const Record& other) { return has_mixup(other, mixup, port) && !has_port(other); });
        if (record != nullptr) {
            return format("%s has %s: correct it", named(*record).c_str(), mixup.text);
        }
    }
    return "";
}

// A record for the ports with the ids, which allows the storage that they see.
std::string whole_record(const std::string& ids) {
    std::string record;
    for (const hba_info* port : all_ports()) {
        if (pci_id(*port) != ids) {
            continue;
        }
        if (record.empty()) {
            // Vendor and model are prefixes: what is too long for its column is cut.
            record = format("%.*s | %.*s", static_cast<int>(sizeof Record::vendor - 1), port->mfg,
                            static_cast<int>(sizeof Record::model - 1), port->model);
            for (const std::string_view id : split(ids, ':')) {
                record.append(" | ").append(id);
            }
            record += " | x | x | | | x | x";
        }
        if (port->target_mapping != nullptr && !is_blank(port->target_mapping->vendor_id)) {
            const std::string allowed = format(" | %s | %s | x", port->target_mapping->vendor_id,
                                               port->target_mapping->product_id);
            record += record.find(allowed) == std::string::npos ? allowed : "";
        }
    }
    return record;
}

// That no record is for the port, what comes of it, and the record that is nearest or is to be
// added.
std::string missing_record(const hba_info& port, const char* consequence) {
    const std::string ids = pci_id(port);
    if (const Record* const record = record_of_flash(port)) {
        return format("%s has the ids %s, but is for %s %s, not %s %s: correct it, or add one%s",
                      named(*record).c_str(), ids.c_str(), record->vendor, record->model, port.mfg,
                      port.model,
                      *record->firmware_image != '\0'
                          ? "; a flash of the port takes its images all the same"
                          : "");
    }
    const std::string missing = "no record has " + ids + consequence + "; ";
    if (const std::string record = mixed_up_record(port); !record.empty()) {
        return missing + record;
    }
    if (const Record* const record = find_record([&](const Record& other) {
            return describes(other, port, Ids::two) && !has_port(other);
        })) {
        return missing + named(*record) +
               " has the same vendor and device id only: correct it, or add one";
    }
    return missing +
           (is_fcoe(port) ? "if its storage is the right one, add: "
                          : "add, with its image in column 8: ") +
           whole_record(ids);
}

constexpr const char* no_flash_port =
    "the adapter has no flash port (function 0 with port number 0, or 1 with 1), so every run of "
    "cnatool ends with 22: load its kernel module";

// What a command ended with, a raw wait status, in words. The shell adds 128 to a signal.
std::string ending(std::int32_t status) {
    if (status == -1) {
        return "could not be run: its report can't be written, or there is no process to be had";
    }
    const int code = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return format(code > 128 ? "ended with signal %d" : "ended with exit status %d",
                  code > 128 ? code - 128 : code) +
           ", so its report may be cut: see what it says, and run it again";
}

// Why the port's ids or its storage are not known; empty when they are.
std::string unknown_reason(const hba_info& port, const CommonCauses& causes) {
    if (serial_missing(port)) {
        return "no serial number, so its reports are not read";
    }
    if (port.attributes_status != 0) {
        return "the CLI's command hbaattributes " + ending(port.attributes_status);
    }
    if (port.mapping_status != 0) {
        return "the CLI's command targetmapping " + ending(port.mapping_status);
    }
    if (port.attributes != nullptr && pci_id(port).empty()) {
        return "its attributes report lacks a PCI id, or has one that is not hexadecimal";
    }
    if (port.attributes != nullptr && (!is_fcoe(port) || port.mapping_reported != 0)) {
        return "";
    }
    if (!causes.inventory_ended.empty()) {
        return causes.inventory_ended;
    }
    return port.attributes == nullptr
               ? "its attributes report has no title: see that its command works and the disk has "
                 "room"
               : format("its target-mapping report has no title with %s: see that its command "
                        "works and the disk has room",
                        port.port_wwn);
}

// Why a check does not come to the port; empty when it does.
std::string unreached_reason(const hba_info& port) {
    if (port.flash_port == nullptr) {
        return no_flash_port;
    }
    const std::vector<hba_info*> chain = adapter_chain(port);
    return std::ranges::find(chain, &port) != chain.end()
               ? ""
               : "a check does not come to it: of an adapter's FCoE ports it judges the first and "
                 "the last after the flash port";
}

// The storage that a record allows, as "DGC Marlovan_CX and any NRB".
std::string allowed_storage(const Record& record) {
    std::vector<std::string> allowed;
    for (const auto* entry = record.periphery; entry != nullptr; entry = entry->next) {
        if (!is_blank(entry->vendor)) {
            allowed.push_back(entry->whole_models[0] == '\0'
                                  ? format("any %s", entry->vendor)
                                  : format("%s %s", entry->vendor, entry->whole_models));
        }
    }
    return allowed.empty() ? "no storage" : join(allowed);
}

bool allows(const Record& record, target_mapping_entry storage) {
    hba_info port{};
    port.target_mapping = &storage;
    global_ctrl_flags flags{};
    return DoIndividualSubSystemCheck(port, record, flags);
}

// Fills in what a check says of an FCoE port.
void judge(SurveyedPort& surveyed, const CommonCauses& causes, Notes& notes) {
    const hba_info& port = *surveyed.port;
    if (surveyed.reason = unknown_reason(port, causes); !surveyed.reason.empty()) {
        surveyed.verdict = "not known";
    } else if (surveyed.reason = unreached_reason(port); !surveyed.reason.empty()) {
        surveyed.verdict = "not judged";
    } else if (surveyed.record == nullptr) {
        surveyed.verdict = "not judged";
        surveyed.reason = causes.conditions_refused.empty() ? missing_record(port, "")
                                                            : causes.conditions_refused;
        add_note(notes, surveyed.reason); // of all ports that want this record
    } else if (port.target_mapping == nullptr) {
        surveyed.verdict = "no storage";
    } else if (allows(*surveyed.record, *port.target_mapping)) {
        surveyed.verdict = "allowed";
    } else {
        surveyed.verdict = "not allowed";
        surveyed.reason = named(*surveyed.record) + " allows " + allowed_storage(*surveyed.record);
    }
    add_note(notes, port, surveyed.reason);
}

// Storage that a check passes over: it judges the last LUN of a report alone.
void note_luns(const hba_info& port, const Record& record, Notes& notes) {
    const target_mapping_entry& judged = *port.target_mapping;
    for (const target_mapping_entry& lun : reported_luns(port)) {
        const bool is_judged =
            same(lun.vendor_id, judged.vendor_id) && same(lun.product_id, judged.product_id);
        const bool is_storage = lun.vendor_id[0] != '\0' || lun.product_id[0] != '\0';
        if (is_storage && !is_judged && !allows(record, lun)) {
            add_note(notes, port,
                     format("its report also names %s %s, which %s does not allow; a check judges "
                            "the last LUN",
                            lun.vendor_id, lun.product_id, named(record).c_str()));
        }
    }
}

SurveyedFlash survey_flash(const hba_info& port, const std::vector<SurveyedFlash>& others) {
    SurveyedFlash flash{&port, record_of_flash(port)};
    if (flash.record == nullptr) {
        return flash;
    }
    // Adapters of one model share the directory of their images, which is read once.
    for (const SurveyedFlash& other : others) {
        if (other.record == flash.record && same(other.port->model, port.model)) {
            return {&port, flash.record, other.firmware, other.bios};
        }
    }
    const std::string directory = image_directory(port);
    const char* const firmware = flash.record->firmware_image;
    const char* const bios = flash.record->bios_image;
    flash.firmware = SurveyedImage{"firmware", firmware, matching_images(directory, firmware)};
    if (*bios != '\0') {
        flash.bios = SurveyedImage{"BIOS", bios, matching_images(directory, bios)};
    }
    return flash;
}

// What keeps a file from being an image; empty when nothing does.
const char* image_fault(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0 || access(path.c_str(), R_OK) != 0) {
        return "can't be read";
    }
    return !S_ISREG(status.st_mode) ? "is no regular file" : status.st_size == 0 ? "is empty" : "";
}

// What is said beside a fault of the images where the model has no directory of its own.
std::string missing_own_directory(const hba_info& port, const std::string& directory) {
    return directory == pHBAFirmwarePath && *port.model != '\0'
               ? format("; the model's own directory, %s%s, is not there", directory.c_str(),
                        port.model)
               : "";
}

void note_image(const SurveyedFlash& flash, const SurveyedImage& image, Notes& notes) {
    const hba_info& port = *flash.port;
    const std::string name = format("the %s image '%s' of %s", image.kind, image.pattern.c_str(),
                                    named(*flash.record).c_str());
    if (image.pattern.empty()) {
        add_note(notes, port,
                 named(*flash.record) + " names no firmware image, so a flash ends with 20");
    } else if (image.files.empty()) {
        const std::string directory = image_directory(port);
        add_note(notes, port,
                 format("no file in %s is %s, so a flash ends with 20%s", directory.c_str(),
                        name.c_str(), missing_own_directory(port, directory).c_str()));
    } else if (image.files.size() > 1) {
        add_note(notes, port,
                 format("%s match %s, and a flash takes either: give a longer beginning of the "
                        "name, or move the others away%s",
                        join(image.files).c_str(), name.c_str(),
                        missing_own_directory(port, image_directory(port)).c_str()));
    }
    for (const std::string& file : image.files) {
        if (const char* const fault = image_fault(file); *fault != '\0') {
            add_note(notes, port,
                     format("%s, %s, %s, and a flash takes it all the same: replace it",
                            file.c_str(), name.c_str(), fault));
        }
    }
}

// An FCoE port has the note of its verdict already.
void note_flash(const SurveyedFlash& flash, bool is_for_model, bool record_expected, Notes& notes) {
    const hba_info& port = *flash.port;
    if (!is_fcoe(port) && !pci_id(port).empty() && !is_for_model) {
        const bool nearly = flash.record != nullptr || !mixed_up_record(port).empty();
        if (nearly || record_expected) {
            add_note(notes, missing_record(port, ", so a flash writes nothing"));
        }
    }
    for (const auto& image : {flash.firmware, flash.bios}) {
        if (image) {
            note_image(flash, *image, notes);
        }
    }
    // The same file as firmware and as BIOS.
    if (flash.firmware && flash.bios && flash.firmware->files.size() == 1 &&
        flash.firmware->files == flash.bios->files) {
        add_note(notes, port,
                 format("%s would be written as firmware and as BIOS: give %s longer beginnings of "
                        "the names",
                        flash.bios->files.front().c_str(), named(*flash.record).c_str()));
    }
}

bool is_flash_port(const hba_info& port) {
    return std::ranges::any_of(all_ports(),
                               [&](const hba_info* other) { return other->flash_port == &port; });
}

// Whether the port is to be listed. One whose ids are not known is: it could be meant.
bool is_to_be_listed(const hba_info& port, const option_input* selection) {
    if (selection == nullptr) {
        return true;
    }
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        if (selects(*entry, port)) {
            return true;
        }
    }
    return pci_id(port).empty() && (is_fcoe(port) || !serial_missing(port));
}

void survey_port(const hba_info& port, bool is_selected, const CommonCauses& causes,
                 Survey& survey) {
    SurveyedPort& surveyed = survey.ports.emplace_back(SurveyedPort{&port, record_of_check(port)});
    Notes& notes = survey.notes;
    if (is_fcoe(port)) {
        judge(surveyed, causes, notes);
    } else if (!serial_missing(port)) {
        add_note(notes, port, unknown_reason(port, causes));
    }
    if (surveyed.record != nullptr && port.target_mapping != nullptr) {
        note_luns(port, *surveyed.record, notes);
    }
    if (!pci_id(port).empty() && port.attributes->subvendor_id_val == 0) {
        add_note(notes, port, "subvendor id 0: -pci-id takes its four ids for two");
    }
    if (is_flash_port(port)) {
        const SurveyedFlash& flash =
            survey.flashes.emplace_back(survey_flash(port, survey.flashes));
        note_flash(flash, surveyed.record != nullptr,
                   is_selected && causes.conditions_refused.empty(), notes);
    }
}

bool same_images(const Record* a, const Record* b) {
    return a == b || (a != nullptr && b != nullptr && same(a->firmware_image, b->firmware_image) &&
                      same(a->bios_image, b->bios_image));
}

// The ids of a flash port can be those of another adapter's port: a flash that selects them writes
// through that adapter's flash port, too, whatever that is listed to get.
void note_side_effects(Survey& survey) {
    for (const SurveyedPort& surveyed : survey.ports) {
        const hba_info& port = *surveyed.port;
        const Record* const record = record_of_flash(port);
        bool is_selected = false;
        bool is_listed = false;
        for (const SurveyedFlash& flash : survey.flashes) {
            is_selected = is_selected || flash.record == record;
            is_listed =
                is_listed || (flash.port == port.flash_port && same_images(flash.record, record));
        }
        if (record != nullptr && port.flash_port != nullptr && is_selected && !is_listed) {
            add_note(survey.notes, port,
                     format("it has the ids of a flash port, %s: a flash that selects them writes "
                            "the images of %s to this adapter, too",
                            pci_id(port).c_str(), named(*record).c_str()));
        }
    }
}

// Adapters that cnatool takes for one, though they may be two.
void note_adapters(Notes& notes) {
    const std::span<hba_info*> ports = all_ports();
    for (const hba_info* port : ports) {
        for (const hba_info* other : ports) {
            if (port == other || !matches(*port, *other) || serial_missing(*port) ||
                serial_missing(*other)) {
                continue;
            }
            if (!same(port->serial_no, other->serial_no)) {
                add_note(notes, format("the serial number '%s' is the beginning of '%s': cnatool "
                                       "takes the adapters for one, so do not flash them with it",
                                       port->serial_no, other->serial_no));
            } else if (same(port->pci_function, other->pci_function)) {
                add_note(notes, *port,
                         "the function is listed twice: cnatool takes two adapters with this "
                         "serial number for one, so do not flash them with it");
            }
        }
    }
}

bool same_ids(const Record& a, const Record& b) {
    return a.vendor_id == b.vendor_id && a.device_id == b.device_id &&
           a.subvendor_id == b.subvendor_id && a.subdevice_id == b.subdevice_id;
}

void note_records(Notes& notes) {
    for (const Record* record : all_conditions()) {
        if (record->vendor_id == 0) {
            continue;
        }
        const Record& first =
            *find_record([&](const Record& other) { return same_ids(other, *record); });
        if (&first != record) {
            add_note(notes, format("%s and %s have the same four ids: a flash takes the first, a "
                                   "check the first that is for the port's model",
                                   named(first).c_str(), named(*record).c_str()));
        }
    }
}

// A group of --pci-id, as typed but for what its fields cut.
std::string group_of(const option_input& entry) {
    std::string group = entry.vendor_id_str;
    for (const char* id : {entry.device_id_str, entry.subvendor_id_str, entry.subdevice_id_str}) {
        group += *id == '\0' ? "" : format(":%s", id);
    }
    return group.empty() ? "an empty group" : group;
}

void note_selection(const option_input* selection, Notes& notes) {
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        if (std::ranges::none_of(all_ports(),
                                 [&](const hba_info* port) { return selects(*entry, *port); })) {
            add_note(notes, "--pci-id: no port has " + group_of(*entry));
        }
    }
}

} // namespace

std::string pci_id(const hba_info& port) {
    if (port.attributes == nullptr) {
        return "";
    }
    const hba_attributes_entry& ids = *port.attributes;
    for (const auto& [text, value] : {std::pair{ids.vendor_spec_id, ids.vendor_spec_id_val},
                                      {ids.device_id, ids.device_id_val},
                                      {ids.subvendor_id, ids.subvendor_id_val},
                                      {ids.subdevice_id, ids.subdevice_id_val}}) {
        if (*text == '\0' || value > 0xFFFF) {
            return "";
        }
    }
    return format("%04X:%04X:%04X:%04X", ids.vendor_spec_id_val, ids.device_id_val,
                  ids.subvendor_id_val, ids.subdevice_id_val);
}

void survey_ports(const option_input* selection, const CommonCauses& causes, Survey& survey) {
    note_adapters(survey.notes);
    for (const hba_info* port : all_ports()) {
        if (!serial_missing(*port) && port->flash_port == nullptr) {
            add_note(survey.notes, *port, no_flash_port);
        }
        if (is_to_be_listed(*port, selection)) {
            survey_port(*port, selection != nullptr, causes, survey);
        }
    }
    note_side_effects(survey);
    note_records(survey.notes);
    note_selection(selection, survey.notes);
}
