#include "platform/os/terminal.h"

#include <unistd.h>

namespace zel::os {

bool isErrorTerminal() { return isatty(STDERR_FILENO) != 0; }

}  // namespace zel::os
