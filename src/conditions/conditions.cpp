#include "conditions/conditions.h"

fc_config_file_entry** fc_config_entry_list = nullptr;

namespace {

std::int32_t config_entry_cnt = 0;
std::int32_t periphery_info_cnt = 0;

void release_entry(fc_config_file_entry* entry) {
    while (periphery_info_entry* const subsystem = entry->periphery) {
        entry->periphery = subsystem->next;
        delete subsystem;
    }
    delete entry;
}

} // namespace

fc_config_file_entry* get_new_config_file_entry() {
    fc_config_file_entry* const entry = append_new_record(fc_config_entry_list, config_entry_cnt);
    if (entry != nullptr) {
        entry->number = config_entry_cnt;
    }
    return entry;
}

periphery_info_entry* get_new_periphery_info_entry() {
    return new_counted_record<periphery_info_entry>(periphery_info_cnt);
}

void release_config_entry_list() {
    release_records(fc_config_entry_list, config_entry_cnt, release_entry);
    periphery_info_cnt = 0;
}
