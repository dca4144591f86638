#include "cli/run_program.h"

int main(int argc, char** argv)
{
    return zel::cli::runProgram(argc, argv);
}
