#pragma once

namespace zel::cli {

/// Runs what the arguments ask for and gives the exit code of the program. What goes wrong is told on standard error.
int runProgram(int argc, const char* const* argv);

}  // namespace zel::cli
