#include "inventory/hba_info.h"

hba_info** p_hba_info_list = nullptr;

namespace {

std::int32_t hbainfo_entry_cnt = 0;
std::int32_t hbaattributes_entry_cnt = 0;
std::int32_t mapping_entry_cnt = 0;

} // namespace

hba_info* get_new_hba_info_entry() {
    return append_new_record(p_hba_info_list, hbainfo_entry_cnt);
}

hba_attributes_entry* get_new_hba_attributes_entry() {
    return new_counted_record<hba_attributes_entry>(hbaattributes_entry_cnt);
}

target_mapping_entry* get_new_target_mapping_entry() {
    return new_counted_record<target_mapping_entry>(mapping_entry_cnt);
}

void release_hba_info_entry(hba_info* port) {
    delete port->attributes;
    delete port->target_mapping;
    delete port;
}

void release_hba_info_list() {
    release_records(p_hba_info_list, hbainfo_entry_cnt, release_hba_info_entry);
    hbaattributes_entry_cnt = 0;
    mapping_entry_cnt = 0;
}
