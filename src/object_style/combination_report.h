#pragma once

#include "object_style/jhload_combination.h"

// The texts of the report on combinations.
namespace zel::object_style {

/// The title with the empty lines around it.
CString reportTitle();

/// One combination: its name, its kind, its description, and a line for each link. Labels stand in fields of 10 and values in fields
/// of 5 characters (bytes), to the right; a longer text takes what it needs. Factors have six digits. A link without a case shows blanks
/// where the name and the type stand.
CString combinationBlock(const JhloadCombination& combination);

}  // namespace zel::object_style
