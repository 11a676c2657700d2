#include "conditions/match.h"

#include "run/diagnostics.h"
#include "run/settings.h"

#include <utility>

namespace {

// A selection entry and a conditions record name their identifiers alike.
template <class Identity>
bool same_device(const Identity& identity, const hba_attributes_entry& port) {
    return std::cmp_equal(identity.vendor_id, port.vendor_spec_id_val) &&
           std::cmp_equal(identity.device_id, port.device_id_val);
}

template <class Identity>
bool same_subsystem(const Identity& identity, const hba_attributes_entry& port) {
    return std::cmp_equal(identity.subvendor_id, port.subvendor_id_val) &&
           std::cmp_equal(identity.subdevice_id, port.subdevice_id_val);
}

} // namespace

bool names_subsystem(const option_input& entry) {
    return entry.subvendor_id >= 1;
}

bool selects(const option_input& entry, const hba_info& port) {
    return port.attributes != nullptr && same_device(entry, *port.attributes) &&
           (!names_subsystem(entry) || same_subsystem(entry, *port.attributes));
}

bool describes(const fc_config_file_entry& record, const hba_info& port, bool with_subsystem) {
    return same_device(record, *port.attributes) &&
           (!with_subsystem || same_subsystem(record, *port.attributes));
}

void report_match(const fc_config_file_entry& record, int position) {
    message(2, "\t%s:\n", conditions_file_name);
    message(2, "\tFound a matching controller-device in line %d:\n", position);
    message(2, "\t\tvendor-id: %s, device-id: %s\n", record.vendor_id_str, record.device_id_str);
    message(2, "\t\tsubvendor-id: %s, subdevice-id: %s\n", record.subvendor_id_str,
            record.subdevice_id_str);
    message(2, "\t\tCorrespondig data: vendor: %s; model: %s\n\n", record.vendor, record.model);
}
