#pragma once

#include "cli/combination_printer.h"

#include <iosfwd>

namespace zel::cli {

/// Prints combinations as text lines "number, name, case, factor, case, factor, ... ** formula", where a load case is its
/// place in the sequence of the model. A long combination runs over several lines of one number.
/// @throws std::runtime_error  for an item that is no load case of the model
void printLcb(const EachCombination& combinations, std::ostream& out);

}  // namespace zel::cli
