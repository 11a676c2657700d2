// The two forms of a survey: the screen and the JSON object.
#pragma once

#include "lscna/survey.h"

#include <string>

// What there is to say.
struct Answer {
    int status = 0;
    std::string error{}; // why nothing could be listed
    Survey survey{};
};

// The columns of the screen, a line each with the meaning, for the help.
std::string describe_columns();

// Writes the table, what a flash would write and the notes to standard output. The plain Fibre
// Channel ports are only counted.
void print_screen(const Survey& survey);

// Writes one JSON object to standard output.
void print_json(const Answer& answer);
