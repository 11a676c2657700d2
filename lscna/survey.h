// What lscna finds out: each port's record and verdict, what a flash would write, and what is to be
// looked at.
#pragma once

#include "conditions/conditions.h"
#include "inventory/hba_info.h"
#include "lscna/notes.h"
#include "lscna/reasons.h"
#include "run/base/selection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What a check says of an FCoE port; of any other port it says nothing.
enum class Verdict : std::uint8_t { none, allowed, not_allowed, no_storage, not_judged, not_known };

struct SurveyedPort {
    const hba_info* port;
    int record = 0; // the first with the port's four ids, manufacturer and model; 0: there is none
    Verdict verdict = Verdict::none;
    std::string reason{}; // of the verdict; empty: it needs none
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
    int record = 0; // the first with the port's four ids; 0: there is none, nothing is flashed
    std::optional<SurveyedImage> firmware{};
    std::optional<SurveyedImage> bios{};
};

struct Survey {
    std::vector<SurveyedPort> ports; // in the order in which a check walks them
    std::vector<SurveyedFlash> flashes;
    Notes notes;
    int fibre_channel_ports = 0; // are left alone
};

// Surveys the ports that the inventory has found, ordered and paired. `selection` (null: every
// port) names the ports to list. The common causes become reasons, but not notes of each port.
Survey survey_ports(const option_input* selection, const CommonCauses& causes);
