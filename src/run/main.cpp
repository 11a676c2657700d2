#include "run/driver.h"

int main(int argc, char** argv) {
    run_tool(argc, argv);
}
