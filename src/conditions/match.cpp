#include "conditions/match.h"

#include "run/base/diagnostics.h"
#include "run/base/settings.h"

#include <utility>

namespace {

// A selection entry and a conditions record name their identifiers alike.
template <class Identified>
bool same_device(const Identified& identified, const hba_attributes_entry& port) {
    return std::cmp_equal(identified.vendor_id, port.vendor_spec_id_val) &&
           std::cmp_equal(identified.device_id, port.device_id_val);
}

template <class Identified>
bool same_subsystem(const Identified& identified, const hba_attributes_entry& port) {
    return std::cmp_equal(identified.subvendor_id, port.subvendor_id_val) &&
           std::cmp_equal(identified.subdevice_id, port.subdevice_id_val);
}

bool names_subsystem(const option_input& entry) {
    return entry.subvendor_id >= 1;
}

bool selects(const option_input& entry, const hba_info& port) {
    return port.attributes != nullptr && same_device(entry, *port.attributes) &&
           (!names_subsystem(entry) || same_subsystem(entry, *port.attributes));
}

// Appends a match for each record that describes the port, or one without a record.
void match_records(hba_info& port, bool with_subsystem, std::vector<Match>& matches) {
    const std::size_t before = matches.size();
    int position = 0;
    for (fc_config_file_entry& record : all_conditions()) {
        ++position;
        if (same_device(record, *port.attributes) &&
            (!with_subsystem || same_subsystem(record, *port.attributes))) {
            matches.push_back({&port, &fc_config_entry_list[position - 1], position});
        }
    }
    if (matches.size() == before) {
        matches.push_back({&port, nullptr, 0});
    }
}

} // namespace

std::vector<Match> match_selection(const option_input* selection, Identity identity) {
    std::vector<Match> matches;
    for (const option_input* entry = selection; entry != nullptr; entry = entry->next) {
        const bool with_subsystem = identity == Identity::whole || names_subsystem(*entry);
        for (hba_info& port : all_ports()) {
            if (serial_missing(port)) {
                matches.push_back({&port, nullptr, 0});
            } else if (selects(*entry, port)) {
                match_records(port, with_subsystem, matches);
            }
        }
    }
    return matches;
}

void print_record(const Match& match) {
    const fc_config_file_entry& record = **match.record;
    message(2, "\t%s:\n", conditions_file_name);
    message(2, "\tFound a matching controller-device in line %d:\n", match.position);
    message(2, "\t\tvendor-id: %s, device-id: %s\n", record.vendor_id_str, record.device_id_str);
    message(2, "\t\tsubvendor-id: %s, subdevice-id: %s\n", record.subvendor_id_str,
            record.subdevice_id_str);
    message(2, "\t\tCorrespondig data: vendor: %s; model: %s\n\n", record.vendor, record.model);
}
