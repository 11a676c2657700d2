// lscna: lists the adapters' ports, the record that each is judged by, and what a flash would
// write.
#pragma once

// The exit statuses.
constexpr int status_all_well = 0;
constexpr int status_look = 1;       // something is to be looked at
constexpr int status_no_listing = 2; // a bad call, or no list could be made or written
constexpr int status_no_port = 3;    // the CLI works and lists no port

// Runs the program on a command line. Returns the exit status.
int run_lscna(int argc, char** argv);
