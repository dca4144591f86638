#pragma once

#include "cli/command_line.h"

#include <cstddef>
#include <deque>
#include <string>

namespace zel::cli {

/// The help of the program, in lines of at most `width` characters where words allow it.
[[nodiscard]] std::string programHelp(const std::deque<Command>& commands, std::size_t width);

/// The help of one command.
[[nodiscard]] std::string commandHelp(const Command& command, std::size_t width);

}  // namespace zel::cli
