// The driver: the phases of a run in their order, and its exit status.
#pragma once

// Runs the tool on a command line. Returns the exit status; many of a run's
// ends leave through an immediate process exit instead.
int run_tool(int argc, char** argv);
