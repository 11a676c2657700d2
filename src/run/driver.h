// The driver: the phases of a run in their order, and its exit status.
#pragma once

// Runs the tool on a command line, the program's name first. Returns the exit status.
int run_tool(int argc, char** argv);
