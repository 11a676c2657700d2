// The null-terminated pointer arrays that hold the records of a run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <span>

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

// Makes a zero-filled record, counted but in no list: the caller links it.
// Returns null when memory is exhausted.
template <class Record>
Record* new_counted_record(std::int32_t& count) {
    auto* const record = new (std::nothrow) Record();
    if (record != nullptr) {
        ++count;
    }
    return record;
}

// The record that was made. Throws std::bad_alloc for null.
template <class Record>
Record& made(Record* record) {
    if (record == nullptr) {
        throw std::bad_alloc();
    }
    return *record;
}

// The slots of such an array up to its terminating null; none of an absent array.
template <class Record>
std::span<Record*> records(Record** list) {
    std::size_t count = 0;
    while (list != nullptr && list[count] != nullptr) {
        ++count;
    }
    return {list, count};
}

// Empties an array: every record is handed to `release`, then the slots go.
template <class Record>
void release_records(Record**& list, std::int32_t& count, void (*release)(Record*)) {
    for (Record* record : records(list)) {
        release(record);
    }
    std::free(list);
    list = nullptr;
    count = 0;
}
