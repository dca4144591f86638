#pragma once

#include "contract/text.h"

#include <vector>

/// A load-time notice: a static object of this class in a module says that the module is loaded.
class CLoadingStatus {
public:
    explicit CLoadingStatus(const char* moduleName);
};

namespace zel {

/// The modules that have been loaded, in order.
[[nodiscard]] const std::vector<CString>& loadedModules();

}  // namespace zel
