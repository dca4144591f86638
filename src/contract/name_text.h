#pragma once

#include "contract/text.h"

#include <string_view>

namespace zel {

/// The name as the tables compare it: without regard to the case of A to Z.
CString foldedName(std::string_view name);

}  // namespace zel
