// The file that a command's output goes into.
#pragma once

#include <cstdint>
#include <string>

// What a command does to the text that the file holds already.
enum class Output : std::uint8_t { rewritten, appended };

// Makes the file ready for a command. One that is to be rewritten is emptied, so that an earlier
// run's text is never taken for this one's; anything but a regular file with one name (a link,
// a FIFO) is removed, so that nothing is written through it. One that is appended to must be
// absent or a regular file with one name. Returns false when the command must not be run.
bool prepare_output(const std::string& path, Output output);
