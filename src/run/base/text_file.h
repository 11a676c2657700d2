// Reading and creating text files.
#pragma once

#include <cstdio>
#include <memory>

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using TextFile = std::unique_ptr<std::FILE, FileCloser>;

// The text of one read. A longer line is read in pieces.
using LineBuffer = char[1024];

// Opens a regular file for reading. Returns null when it can't be opened or when `path`
// names something else (a directory, a FIFO). Throws std::bad_alloc when memory is exhausted.
TextFile open_text_file(const char* path);

// Reads the next line, or the next piece of a long one, with its line end.
// Returns false at the end of the file, and where it can't be read any further.
inline bool read_line(const TextFile& file, LineBuffer& line) {
    return std::fgets(line, sizeof line, file.get()) != nullptr;
}

// Whether reading has ended because of an error, not at the end of the file.
inline bool read_failed(const TextFile& file) {
    return std::ferror(file.get()) != 0;
}

// Makes a file that messages are written to, emptied and readable by its owner alone. Returns
// null when it can't be opened or could be somebody else's: nothing is written through a link,
// nor to a file with another owner or a second name. Throws std::bad_alloc likewise.
TextFile create_private_file(const char* path);
