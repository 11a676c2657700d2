#include "run/base/end_run.h"
#include "run/base/return_codes.h"
#include "run/driver.h"

#include <new>

int main(int argc, char** argv) {
    try {
        run_tool(argc, argv);
    } catch (const std::bad_alloc&) {
        end_run(RET_MEMALLOC_FAIL);
    }
}
