// The informational outputs, all written at level 1.
#pragma once

void print_version(const char* program_name);
void print_tool_information(const char* program_name);
void print_help(const char* program_name);
void print_return_codes(const char* program_name);
