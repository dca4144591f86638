#pragma once

#include <cstdint>

namespace zel {

/// Names a step that a recorder holds; 0 is none. It stands apart from the recorder, whose header takes long to compile.
using RecorderTicket = std::uint64_t;

}  // namespace zel
