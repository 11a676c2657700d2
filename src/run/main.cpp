#include "run/driver.h"
#include "run/return_codes.h"

#include <new>

int main(int argc, char** argv) {
    try {
        return run_tool(argc, argv);
    } catch (const std::bad_alloc&) {
        return RET_MEMALLOC_FAIL;
    }
}
