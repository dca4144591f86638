#pragma once

#include "loadcomb/generation/generator.h"

#include <iosfwd>
#include <string>

namespace zel::cli {

/// Tells where a combination of a traced run comes from: the row of the code, what was chosen among wind and earthquake
/// cases, and each factor as its product.
/// @param name  of the combination; blanks at its end don't count
/// @throws std::runtime_error  when the run gives no combination of that name
void explainCombination(const loadcomb::Generator& run, const std::string& code, const std::string& name, std::ostream& out);

/// Tells what a run left out: the rows of the code that gave nothing and why, and the load cases in no combination.
void explainMissing(const loadcomb::Generator& run, const std::string& code, std::ostream& out);

}  // namespace zel::cli
