// A blade of one adapter with two ports, and a run over it in this process.
#pragma once

#include <span>
#include <string>
#include <string_view>

struct BladeFile {
    const char* name;
    std::string content;
};

// The files that a run reads; any of them may be replaced.
std::span<const BladeFile> blade();

// Runs the tool on the blade with one file replaced, as a check or a flash. Ends the
// process when the run does not end with a status of the table.
void run_with(const BladeFile& file, std::string_view content, bool flash);
