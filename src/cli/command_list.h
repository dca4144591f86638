#pragma once

#include "cli/command_line.h"

namespace zel::cli {

/// Declares the commands of `zel` with their arguments and options. `line` stays where it is while one of them runs.
void addCommands(CommandLine& line);

}  // namespace zel::cli
