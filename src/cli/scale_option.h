#pragma once

#include "contract/table_store.h"

#include <map>
#include <string>
#include <vector>

namespace zel::cli {

/// What the options "--scale CASE=FACTOR[,PARTNER]" say: by the key of each earthquake case its scale factor, and its eccentric partner (0 for none).
struct ScaleOptions {
    std::map<Key, double> factors;
    std::map<Key, Key> partners;
};

/// Reads the options against the load cases of the current model: cases by name or "#KEY". A name may hold "=" and "," itself.
/// @throws std::runtime_error  that names the nearest load cases for an unknown one; for a case that is no earthquake case or is named twice, a
///                             partner that is the case itself, and a factor below 0
ScaleOptions readScales(const std::vector<std::string>& options);

}  // namespace zel::cli
