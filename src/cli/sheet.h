#pragma once

#include "cli/combination_printer.h"

#include <iosfwd>

namespace zel::cli {

/// A table for reading: columns as wide as their widest text, factors with six digits, control characters written out.
void printTable(const EachCombination& combinations, std::ostream& out);

/// The same columns for a spreadsheet: factors with all digits, texts as they are.
void printCsv(const EachCombination& combinations, std::ostream& out);

}  // namespace zel::cli
