#pragma once

#include "contract/table_store.h"

#include <string>

namespace zel::cli {

/// What "--scale CASE=FACTOR[,PARTNER]" says: a load case by name or "#KEY", its scale factor and its eccentric partner.
struct ScaleOption {
    Key loadCase = 0;
    double factor = 1.0;
    Key partner = 0;  ///< 0 for none
};

/// Reads an option against the load cases of the current model. A name may hold "=" and "," itself.
/// @throws std::runtime_error  that names the nearest load cases for an unknown one
ScaleOption readScale(const std::string& text);

}  // namespace zel::cli
