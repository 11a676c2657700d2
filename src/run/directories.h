// Where a run finds its files.
#pragma once

// Sets the directory of the conditions file, the images and the reports. One that is too long
// ends the run with RET_BAD_CALL.
void set_directories(const char* directory);

// Resolves the three paths: from the directory set before, or else the one of the program as it
// was typed, or else the current one. A directory that is too long or can't be determined ends
// the run with RET_BAD_CALL.
void resolve_directories(const char* typed_program);

// Resolves TEMPDIR_BUFFER from the environment and shows it.
void resolve_temporary_directory();
