#include "lscna/reasons.h"

#include "check/consistency.h"
#include "conditions/match.h"
#include "lscna/format.h"

#include <algorithm>
#include <cstdint>
#include <sys/wait.h>
#include <utility>

namespace {

using Record = fc_config_file_entry;

// Mistakes by which a record misses the port that it is meant for.
struct Swap {
    bool device;
    bool subsystem;
    const char* text;
};

constexpr Swap swaps[] = {
    {true, false, "vendor and device id swapped"},
    {false, true, "subvendor and subdevice id swapped"},
    {true, true, "both pairs of ids swapped"},
};

// What a command ended with, a raw wait status, in words.
std::string ending(std::int32_t status) {
    if (status == -1) {
        return "nothing: it could not be run";
    }
    return WIFSIGNALED(status) ? format("signal %d", WTERMSIG(status))
                               : format("exit status %d", WEXITSTATUS(status));
}

} // namespace

const char* const no_flash_port =
    "the adapter has no flash port (function 0 with port number 0, or 1 with 1), so every run of "
    "cnatool ends with 22: load its kernel module";

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

const fc_config_file_entry& record_at(int number) {
    return *fc_config_entry_list[number - 1];
}

int record_with_ids(const hba_info& port) {
    return find_record([&](const Record& record) { return describes(record, port, Ids::four); });
}

std::string swapped_record(const hba_info& port) {
    for (const Swap& swap : swaps) {
        const int number = find_record([&](Record record) {
            if (swap.device) {
                std::swap(record.vendor_id, record.device_id);
            }
            if (swap.subsystem) {
                std::swap(record.subvendor_id, record.subdevice_id);
            }
            return describes(record, port, Ids::four);
        });
        if (number != 0) {
            return format("no record has %s; record %d has %s: correct it", pci_id(port).c_str(),
                          number, swap.text);
        }
    }
    return "";
}

std::string missing_record(const hba_info& port) {
    if (const int number = record_with_ids(port); number != 0) {
        return format("record %d has its ids, but is for %s %s, not %s %s: correct it; a flash "
                      "takes its images all the same",
                      number, record_at(number).vendor, record_at(number).model, port.mfg,
                      port.model);
    }
    if (std::string swapped = swapped_record(port); !swapped.empty()) {
        return swapped;
    }
    const std::string id = pci_id(port);
    const int same_device =
        find_record([&](const Record& record) { return describes(record, port, Ids::two); });
    if (same_device != 0) {
        return format("no record has %s; record %d has the same vendor and device id only: correct "
                      "it, or add a record",
                      id.c_str(), same_device);
    }
    std::string columns = id;
    for (std::size_t at = 0; (at = columns.find(':', at)) != std::string::npos;) {
        columns.replace(at, 1, " | ");
    }
    const Record room{};
    return format("no record has %s: add '%.*s | %.*s | %s | ...'", id.c_str(),
                  static_cast<int>(sizeof room.vendor - 1), port.mfg,
                  static_cast<int>(sizeof room.model - 1), port.model, columns.c_str());
}

std::string unknown_reason(const hba_info& port, const CommonCauses& causes) {
    const bool without_ids = pci_id(port).empty();
    if (serial_missing(port)) {
        return "no serial number, so its reports are not read";
    }
    for (const auto& [command, status] : {std::pair{"hbaattributes", port.attributes_status},
                                          {"targetmapping", port.mapping_status}}) {
        if (status != 0) {
            return format("the CLI's command %s ended with %s, so its report may be cut", command,
                          ending(status).c_str());
        }
    }
    if (!without_ids && (!is_fcoe(port) || port.mapping_reported != 0)) {
        return "";
    }
    if (!causes.inventory_ended.empty()) {
        return causes.inventory_ended;
    }
    if (port.attributes != nullptr && without_ids) {
        return "its attributes report lacks a PCI id, or has one that is not hexadecimal";
    }
    return format("its %s report has not its title: see that its command works and the disk has "
                  "room",
                  without_ids ? "attributes" : "target-mapping");
}

std::string unjudged_reason(const hba_info& port, int record, const CommonCauses& causes) {
    if (port.flash_port == nullptr) {
        return no_flash_port;
    }
    const std::vector<hba_info*> chain = adapter_chain(port);
    if (std::find(chain.begin(), chain.end(), &port) == chain.end()) {
        return "a check does not come to it: of an adapter's FCoE ports it judges the first and "
               "the last after the flash port";
    }
    if (record != 0) {
        return "";
    }
    return causes.conditions_unusable.empty() ? missing_record(port) : causes.conditions_unusable;
}
