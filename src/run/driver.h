// The driver: the phases of a run in their order, and its exit status.
#pragma once

// Runs the tool on a command line and ends the process with the exit status.
[[noreturn]] void run_tool(int argc, char** argv);
