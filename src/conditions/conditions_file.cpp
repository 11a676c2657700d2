#include "conditions/conditions_file.h"

#include "conditions/columns.h"
#include "run/base/diagnostics.h"
#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/base/text_file.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

// The record that a data line becomes, while its columns are read.
struct DataLine {
    fc_config_file_entry* entry;
    std::size_t column = 0;                    // the next one
    periphery_info_entry* subsystem = nullptr; // the last of the record's chain
};

// Converts an identifier from its whole value: a cut one could be another adapter's.
void store_identifier(const ConditionsColumn& column, char* value, const DataLine& line) {
    const std::int32_t number = string2int(value, 16);
    if (number < 0) {
        if (DebugLevel > 0 && PrintDebugOnScreen != 0) {
            std::fprintf(stderr, "\nError line %d: %s %s is not a valid hex value!\n",
                         line.entry->line, column.refused_name,
                         column.field.of(*line.entry).data());
        }
        end_run(RET_FATAL_ERROR);
    }
    line.entry->*column.number = number;
}

// Whether a value can be stored. A cut one would select more than it says: other images, other
// adapters.
bool fits(const char* value, std::size_t length_max, const char* refused_name,
          const DataLine& line) {
    if (refused_name == nullptr || std::strlen(value) <= length_max) {
        return true;
    }
    message(1, "\nError line %d: %s '%s' is too long (at most %zu characters)!\n", line.entry->line,
            refused_name, value, length_max);
    return false;
}

std::int32_t store_controller_column(char* value, const DataLine& line) {
    const ConditionsColumn& column = conditions_columns[line.column];
    copy_text(column.field.of(*line.entry), value);
    if (column.number != nullptr) {
        store_identifier(column, value, line);
    } else if (!fits(value, column.field.length_max, column.refused_name, line)) {
        return RET_FATAL_ERROR;
    }
    message(5, " %*s |", column.width, value);
    return RET_OK;
}

// Hangs a new subsystem at the end of the record's chain.
std::int32_t append_subsystem(DataLine& line) {
    periphery_info_entry* const subsystem = get_new_periphery_info_entry();
    if (subsystem == nullptr) {
        message(1, "Could not allocate memory for new fc_periphery_info.\n");
        return RET_MEMALLOC_FAIL;
    }
    (line.subsystem == nullptr ? line.entry->periphery : line.subsystem->next) = subsystem;
    line.subsystem = subsystem;
    return RET_OK;
}

std::int32_t store_subsystem_column(const char* value, DataLine& line) {
    const std::size_t position =
        (line.column - conditions_columns.size()) % subsystem_columns.size();
    if (position == 0) {
        if (const std::int32_t result = append_subsystem(line); result != RET_OK) {
            return result;
        }
    }
    const SubsystemColumn& column = subsystem_columns[position];
    if (!fits(value, column.field.length_max, column.refused_name, line)) {
        return RET_FATAL_ERROR;
    }
    copy_text(column.field.of(*line.subsystem), value);
    if (column.is_model_list) {
        copy_text(line.subsystem->whole_models, value);
    }
    message(5, " %*s%s", column.width, value, column.border);
    return RET_OK;
}

std::int32_t store_column(char* value, DataLine& line) {
    const std::int32_t result = line.column < conditions_columns.size()
                                    ? store_controller_column(value, line)
                                    : store_subsystem_column(value, line);
    ++line.column;
    return result;
}

// Makes a record of a line that is no comment, unless it has no column.
std::int32_t read_data_line(const char* text, std::int32_t number) {
    std::vector<std::string> values = column_values(text);
    if (values.empty()) {
        return RET_OK;
    }
    fc_config_file_entry* const entry = get_new_config_file_entry();
    if (entry == nullptr) {
        message(1, "Could not allocate memory for new fc_config_file entry.\n");
        return RET_MEMALLOC_FAIL;
    }
    entry->line = number;
    DataLine line{entry};
    for (std::string& value : values) {
        if (const std::int32_t result = store_column(value.data(), line); result != RET_OK) {
            return result;
        }
    }
    message(5, "\n");
    return RET_OK;
}

} // namespace

bool is_comment(const char* line) {
    return std::strchr(line, '#') != nullptr || std::strstr(line, "--+--") != nullptr;
}

std::vector<std::string> column_values(const char* line) {
    std::vector<std::string> values;
    for (const std::string_view column : split(line, '|')) {
        if (!column.empty()) {
            values.emplace_back(cleanString(std::string(column).data()));
        }
    }
    return values;
}

std::int32_t Read_FC_Config_File(const char* path) {
    const TextFile file = open_text_file(path);
    if (file == nullptr) {
        message(1, "Error: Could not open file %s\n", path);
        return RET_FC_HBA_CONDITIONS_MISSING;
    }
    LineBuffer line;
    for (std::int32_t number = 1; read_line(file, line); ++number) {
        if (is_comment(line)) {
            continue;
        }
        if (const std::int32_t result = read_data_line(line, number); result != RET_OK) {
            return result;
        }
    }
    return read_failed(file) ? RET_FATAL_ERROR : RET_OK;
}
