#include "run/base/end_run.h"

#include <cstdlib>

void end_run(std::int32_t status) {
    std::exit(status);
}
