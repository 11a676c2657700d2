// Text files that other programs wrote.
#pragma once

#include <cstdio>
#include <memory>

struct FileCloser {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using TextFile = std::unique_ptr<std::FILE, FileCloser>;

// The text of one read. A longer line is read in pieces.
using LineBuffer = char[1024];

// Opens a regular file for reading; null when it can't be opened or is none (a
// directory, or a FIFO that would make the run wait for a writer).
TextFile open_text_file(const char* path);

// Reads the next line, or the next piece of a long one, with its line end.
// Returns false at the end of the file.
inline bool read_line(const TextFile& file, LineBuffer& line) {
    return std::fgets(line, sizeof line, file.get()) != nullptr;
}
