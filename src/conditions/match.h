// Which ports the selection names, and which conditions records describe them:
// the PCI identities compared. Shared by the check and the flash run.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "run/base/selection.h"

#include <cstdint>
#include <vector>

// How many identifiers a record must share with the port that it describes.
enum class Identity : std::uint8_t {
    as_selected, // those that the selection entry names: two or four
    whole,       // all four
};

// A port that concerns a run.
struct Match {
    hba_info* port;
    // The slot of a record that describes the port; null for a port without a
    // serial number, and for one that is selected but described by none.
    fc_config_file_entry** record;
    int position; // of the record, counted from 1 over all records
};

// What a run has to walk, in its order. For each entry of the selection (null: none)
// and each port that it names, in list order, there is a match for each record that
// describes the port, or one without a record. A port without a serial number is
// there once for each entry, whether the entry names it or not. No entry names a port
// without attributes.
std::vector<Match> match_selection(const option_input* selection, Identity identity);

// Shows at level 2 the record of a match, which must have one.
void print_record(const Match& match);
