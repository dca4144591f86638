#pragma once

#include "cli/program.h"

#include <functional>

/// The program as it is in this process, where a test can reach into a run.
namespace cli_test {

/// Runs the command in this process. `justBefore` is called once all is ready; memory that it lets fail is whole again when the command has ended.
Outcome inside(const std::vector<std::string>& arguments, const std::string& input = {}, const std::function<void()>& justBefore = {});

}  // namespace cli_test
