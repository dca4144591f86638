#pragma once

namespace zel::os {

/// Whether standard error goes to a terminal, where a person watches.
bool isErrorTerminal();

}  // namespace zel::os
