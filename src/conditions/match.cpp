#include "conditions/match.h"

#include "run/base/diagnostics.h"

#include <utility>

namespace {

// A selection entry and a conditions record have the same names for their identifiers.
template <class Identified>
bool same_ids(const Identified& identified, const hba_attributes_entry& port, Ids ids) {
    return std::cmp_equal(identified.vendor_id, port.vendor_spec_id_val) &&
           std::cmp_equal(identified.device_id, port.device_id_val) &&
           (ids == Ids::two || (std::cmp_equal(identified.subvendor_id, port.subvendor_id_val) &&
                                std::cmp_equal(identified.subdevice_id, port.subdevice_id_val)));
}

} // namespace

Ids named_ids(const option_input& entry) {
    return entry.subvendor_id >= 1 ? Ids::four : Ids::two;
}

bool selects(const option_input& entry, const hba_info& port) {
    return port.attributes != nullptr && same_ids(entry, *port.attributes, named_ids(entry));
}

bool describes(const fc_config_file_entry& record, const hba_info& port, Ids ids) {
    return same_ids(record, *port.attributes, ids);
}

bool is_for_model(const fc_config_file_entry& record, const hba_info& port) {
    return begins_with(port.mfg, record.vendor) && begins_with(port.model, record.model);
}

void print_record(const fc_config_file_entry& record) {
    message(2, "\tFC_HBA_Conditions.txt:\n");
    message(2, "\tFound a matching controller-device in line %d:\n", record.number);
    message(2, "\t\tvendor-id: %s, device-id: %s\n", record.vendor_id_str, record.device_id_str);
    message(2, "\t\tsubvendor-id: %s, subdevice-id: %s\n", record.subvendor_id_str,
            record.subdevice_id_str);
    message(2, "\t\tCorrespondig data: vendor: %s; model: %s\n\n", record.vendor, record.model);
}
