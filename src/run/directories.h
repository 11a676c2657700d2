// Where a run finds its files.
#pragma once

// Forgets the three paths, as a run begins.
void reset_directories();

// Takes over the directory of the command line for the conditions file, the images
// and the reports. One that is too long ends the process with RET_BAD_CALL.
void set_directories(const char* directory);

// Resolves the three paths: the directory set before, or else the one of the
// program as it was typed, or else the current one. A debug run gets its log
// there. A directory that is too long or can't be determined ends the process
// with RET_BAD_CALL.
void resolve_directories(const char* typed_program);

// Resolves TEMPDIR_BUFFER from the environment and shows it.
void resolve_temporary_directory();
