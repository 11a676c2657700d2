#include "lscna/lscna.h"

int main(int argc, char** argv) {
    return run_lscna(argc, argv);
}
