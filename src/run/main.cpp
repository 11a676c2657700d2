#include "run/driver.h"

int main(int argc, char** argv) {
    return run_tool(argc, argv);
}
