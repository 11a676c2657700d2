// The file that a command's output goes into, in a directory that others may have
// written to.
#pragma once

#include <cstdint>
#include <string>

// What a command does to what the file holds already.
enum class Output : std::uint8_t { rewritten, appended };

// Makes the file ready to be written by a command: it is created when missing, and
// one that is to be rewritten is emptied and made writable by its owner alone, so
// that an earlier run's text is never taken for this one's. Returns false when a
// command must not write there, as to anything but a regular file with one name: a
// link, a FIFO or a device. A file that can't be opened for another reason is left
// to the shell, which tells of it.
bool prepare_output(const std::string& path, Output output);
