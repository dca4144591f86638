#pragma once

#include "contract/text.h"

#include <cstdint>

namespace zel::os {

/// Folder of the running program, with a separator at its end; empty if the system does not tell.
CString programFolder();

/// Physical memory of the machine [bytes]; 0 if the system does not tell.
std::uint64_t physicalMemory();

}  // namespace zel::os
