#pragma once

#include <cstddef>

namespace zel::os {

/// Whether standard error goes to a terminal, where a person watches.
bool isErrorTerminal();

/// Columns of the terminal that standard output goes to, at least 40; without a terminal what COLUMNS says, else 80.
std::size_t terminalWidth();

}  // namespace zel::os
