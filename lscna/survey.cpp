#include "lscna/survey.h"

#include "check/subsystem.h"
#include "conditions/match.h"
#include "flash/image_search.h"
#include "inventory/target_mapping.h"
#include "lscna/format.h"

#include <cstring>
#include <map>
#include <utility>

namespace {

using Record = fc_config_file_entry;

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

void judge(SurveyedPort& surveyed, const CommonCauses& causes) {
    const hba_info& port = *surveyed.port;
    surveyed.reason = unknown_reason(port, causes);
    if (!surveyed.reason.empty()) {
        surveyed.verdict = Verdict::not_known;
        return;
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
        surveyed.reason = format("record %d allows %s", surveyed.record,
                                 allowed_storage(record_at(surveyed.record)).c_str());
    }
}

// Storage that a check passes over: it judges the last LUN of a report alone.
void look_at_luns(const SurveyedPort& surveyed, Notes& notes) {
    const target_mapping_entry* const judged = surveyed.port->target_mapping;
    if (surveyed.port->storage_differs == 0 || surveyed.record == 0) {
        return;
    }
    for (const target_mapping_entry& lun : reported_luns(*surveyed.port)) {
        const bool same = std::strcmp(lun.vendor_id, judged->vendor_id) == 0 &&
                          std::strcmp(lun.product_id, judged->product_id) == 0;
        const bool storage = lun.vendor_id[0] != '\0' || lun.product_id[0] != '\0';
        if (storage && !same && !allows(record_at(surveyed.record), lun)) {
            add_note(notes, *surveyed.port,
                     format("its report also names %s %s, which record %d "
                            "does not allow; a check judges the last LUN",
                            lun.vendor_id, lun.product_id, surveyed.record));
        }
    }
}

// Adapters of one model share directory and pattern, which are searched once.
using FoundImages = std::map<std::pair<std::string, std::string>, std::vector<std::string>>;

SurveyedImage survey_image(const char* kind, const char* pattern, const std::string& directory,
                           FoundImages& found) {
    const auto [images, is_new] = found.try_emplace({directory, pattern});
    if (is_new) {
        images->second = matching_images(directory, pattern);
    }
    return {kind, pattern, images->second};
}

SurveyedFlash survey_flash(const hba_info& port, FoundImages& found) {
    SurveyedFlash flash{&port};
    flash.record = pci_id(port).empty() ? 0 : record_with_ids(port);
    if (flash.record != 0) {
        const Record& record = record_at(flash.record);
        const std::string directory = image_directory(port);
        flash.firmware = survey_image("firmware", record.firmware_image, directory, found);
        if (record.bios_image[0] != '\0') {
            flash.bios = survey_image("BIOS", record.bios_image, directory, found);
        }
    }
    return flash;
}

void look_at_image(const SurveyedFlash& flash, const SurveyedImage& image, Notes& notes) {
    const char* const pattern = image.pattern.c_str();
    if (image.pattern.empty()) {
        add_note(
            notes, *flash.port,
            format("record %d names no %s image: a flash ends with 20", flash.record, image.kind));
    } else if (image.files.empty()) {
        add_note(notes, *flash.port,
                 format("no file in %s is the %s image '%s' of record %d: a flash ends "
                        "with 20",
                        image_directory(*flash.port).c_str(), image.kind, pattern, flash.record));
    } else if (image.files.size() > 1) {
        add_note(notes, *flash.port,
                 format("%s match the %s image '%s' of record %d, and a flash "
                        "takes either: give a longer beginning of the name, or move the "
                        "others away",
                        join(image.files).c_str(), image.kind, pattern, flash.record));
    }
}

// Whether the same file would be written as firmware and as BIOS.
bool is_written_twice(const SurveyedFlash& flash) {
    return flash.firmware && flash.bios && flash.firmware->files.size() == 1 &&
           flash.firmware->files == flash.bios->files;
}

// `surveyed` is the flash port. An FCoE port has the note of its verdict already.
void look_at_flash(const SurveyedPort& surveyed, const SurveyedFlash& flash, bool record_expected,
                   Notes& notes) {
    const hba_info& port = *flash.port;
    if (!is_fcoe(port) && !pci_id(port).empty() && surveyed.record == 0) {
        if (flash.record != 0) {
            add_note(notes, port, missing_record(port));
        } else if (record_expected) {
            add_note(notes, port, missing_record(port) + "; a flash writes nothing");
        } else {
            add_note(notes, port, swapped_record(port));
        }
    }
    for (const auto& image : {flash.firmware, flash.bios}) {
        if (image) {
            look_at_image(flash, *image, notes);
        }
    }
    if (is_written_twice(flash)) {
        add_note(notes, port,
                 format("%s would be written as firmware and as BIOS: give record "
                        "%d longer beginnings of the names",
                        flash.bios->files.front().c_str(), flash.record));
    }
}

bool is_flash_port(const hba_info& port) {
    bool found = false;
    for (const hba_info* other : all_ports()) {
        found = found || other->flash_port == &port;
    }
    return found;
}

// Whether the port is to be listed. One whose ids are not known is: it could be meant.
bool is_listed(const hba_info& port, const option_input* selection) {
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        if (selects(*entry, port)) {
            return true;
        }
    }
    const bool could_be_meant = pci_id(port).empty() && (is_fcoe(port) || !serial_missing(port));
    return selection == nullptr || could_be_meant;
}

bool same_ids(const Record& a, const Record& b) {
    return a.vendor_id == b.vendor_id && a.device_id == b.device_id &&
           a.subvendor_id == b.subvendor_id && a.subdevice_id == b.subdevice_id;
}

void look_at_records(Notes& notes) {
    int number = 0;
    for (const Record* record : all_conditions()) {
        ++number;
        const int first =
            find_record([&](const Record& other) { return same_ids(other, *record); });
        if (first != number && record->vendor_id != 0) {
            notes.push_back({format("records %d and %d have the same four ids: a flash takes the "
                                    "first, a check the first that is for the port's model",
                                    first, number)});
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

void look_at_selection(const option_input* selection, Notes& notes) {
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        bool found = false;
        for (const hba_info* port : all_ports()) {
            found = found || (!serial_missing(*port) && selects(*entry, *port));
        }
        if (!found) {
            notes.push_back({format("--pci-id: no port has %s", group_of(*entry).c_str())});
        }
    }
}

} // namespace

Survey survey_ports(const option_input* selection, const CommonCauses& causes) {
    Survey survey;
    Notes& notes = survey.notes;
    FoundImages images;
    for (const hba_info* listed : all_ports()) {
        const hba_info& port = *listed;
        if (!serial_missing(port) && port.flash_port == nullptr) {
            add_note(notes, port, no_flash_port);
        }
        if (!is_listed(port, selection)) {
            continue;
        }
        SurveyedPort& surveyed = survey.ports.emplace_back(SurveyedPort{&port});
        surveyed.record = pci_id(port).empty() ? 0 : find_record([&](const Record& record) {
            return describes(record, port, Ids::four) && is_for_model(record, port);
        });
        if (is_fcoe(port)) {
            judge(surveyed, causes);
            if (surveyed.reason != causes.inventory_ended &&
                surveyed.reason != causes.conditions_unusable) {
                add_note(notes, port, surveyed.reason);
            }
        } else if (!serial_missing(port)) {
            if (const std::string reason = unknown_reason(port, causes);
                reason != causes.inventory_ended) {
                add_note(notes, port, reason);
            }
        }
        look_at_luns(surveyed, notes);
        if (!pci_id(port).empty() && port.attributes->subvendor_id_val == 0) {
            add_note(notes, port, "subvendor id 0: -pci-id takes its four ids for two");
        }
        if (is_flash_port(port)) {
            survey.flashes.push_back(survey_flash(port, images));
            look_at_flash(surveyed, survey.flashes.back(),
                          selection != nullptr && causes.conditions_unusable.empty(), notes);
        }
    }
    look_at_records(notes);
    look_at_selection(selection, notes);
    return survey;
}
