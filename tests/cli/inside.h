#pragma once

#include "cli/program.h"

/// The program as it is in this process, where a test can reach into a run.
namespace cli_test {

/// Runs the command in this process.
Outcome inside(const std::vector<std::string>& arguments, const std::string& input = {});

}  // namespace cli_test
