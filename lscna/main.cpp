#include "lscna/lscna.h"

#include "run/base/end_run.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// A step that ends a run of cnatool ends this one without a listing, whatever its status there.
void end_run(std::int32_t /*status*/) {
    std::fprintf(stderr, "lscna: %s\n", ending_reason);
    std::exit(status_no_listing);
}

int main(int argc, char** argv) {
    return run_lscna(argc, argv);
}
