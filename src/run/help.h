// The informational outputs, all written at level 1.
#pragma once

void print_version();
void print_tool_information(const char* program);
void print_help(const char* program);
void print_return_codes();
