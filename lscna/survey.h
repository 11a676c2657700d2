// What lscna finds out: each port's record and verdict, what a flash would write, and what is to be
// looked at.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "lscna/notes.h"
#include "run/base/selection.h"

#include <optional>
#include <string>
#include <vector>

struct SurveyedPort {
    const hba_info* port;
    const fc_config_file_entry* record; // the first with its four ids, manufacturer and model
    std::string verdict{};              // what a check says of an FCoE port; of others nothing
    std::string reason{};               // of the verdict; empty: it needs none
};

// An image name of a record, and the paths of the files that match it. A flash takes the first.
struct SurveyedImage {
    const char* kind;
    std::string pattern;
    std::vector<std::string> files;
};

// A flash port.
struct SurveyedFlash {
    const hba_info* port;
    const fc_config_file_entry* record; // the first with its four ids; null: nothing is flashed
    std::optional<SurveyedImage> firmware{};
    std::optional<SurveyedImage> bios{};
};

struct Survey {
    std::vector<SurveyedPort> ports; // in the order in which cnatool goes through all ports
    std::vector<SurveyedFlash> flashes;
    Notes notes;
    int fibre_channel_ports = 0; // are left alone
};

// What ports have in common that are not known, or not judged; empty when there is no such cause.
// It has been noted already.
struct CommonCauses {
    std::string inventory_ended;
    std::string conditions_refused;
};

// The port's four PCI ids as -pci-id takes them; empty when one of them is not known.
std::string pci_id(const hba_info& port);

// Surveys the ports that the inventory has found, ordered and paired. `selection` (null: every
// port) names the ports to list.
void survey_ports(const option_input* selection, const CommonCauses& causes, Survey& survey);
