// lscna: lists the adapters' ports, the record that each is judged by, and what a flash would
// write.
#pragma once

// The exit statuses.
constexpr int status_all_well = 0;
constexpr int status_look = 1;
constexpr int status_no_listing = 2;

// Why the listing can't be made if the step that begins now ends the run (end_run).
inline const char* ending_reason = "";

// Runs the program on a command line. Returns the exit status.
int run_lscna(int argc, char** argv);
