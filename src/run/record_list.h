// The null-terminated pointer arrays that hold the records of a run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

// Makes a zero-filled record and appends it to `list`, which grows by one slot
// and keeps its terminating null. Returns null, with the list and the count as
// they were, when memory is exhausted.
template <class Record>
Record* append_new_record(Record**& list, std::int32_t& count) {
    auto* const record = new (std::nothrow) Record();
    if (record == nullptr) {
        return nullptr;
    }
    const auto used = static_cast<std::size_t>(count);
    void* const grown = std::realloc(list, (used + 2) * sizeof(Record*));
    if (grown == nullptr) {
        delete record;
        return nullptr;
    }
    list = static_cast<Record**>(grown);
    list[used] = record;
    list[used + 1] = nullptr;
    ++count;
    return record;
}

// Makes a zero-filled record that its maker links, and counts it. Returns null
// when memory is exhausted.
template <class Record>
Record* new_counted_record(std::int32_t& count) {
    auto* const record = new (std::nothrow) Record();
    if (record != nullptr) {
        ++count;
    }
    return record;
}
