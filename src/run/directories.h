// Where a run finds its files.
#pragma once

// Takes the directory of the command line for the conditions file, the images
// and the reports. One that is too long ends the process with RET_BAD_CALL.
void set_directories(const char* directory);

// Settles the three paths: the directory set before, or else the one that the
// program was started from, `program` being its name as typed; a debug run gets its
// log there. A directory that is too long or can't be determined ends the process
// with RET_BAD_CALL.
void settle_directories(const char* program);

// Settles TEMPDIR_BUFFER from the environment and reports it.
void settle_temporary_directory();
