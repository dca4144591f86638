#pragma once

#include "contract/document.h"
#include "contract/records/lcom.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace zel::cli {

enum class Format { table, json, csv, lcb };

/// A combination that is printed, with its place in the sequence of its kind.
struct PrintedCombination {
    const T_LCOM_D* record = nullptr;
    int kind = 1;
    int number = 0;
};

/// Prints combinations of the current model for reading (table), for a spreadsheet (csv) or as a file that other programs
/// import (lcb). A column of factors stands for each load case in use; the factors of a case that stands twice are summed up.
/// @throws std::runtime_error  for a combination that an lcb file can't hold
void printCombinations(Format format, const std::vector<PrintedCombination>& combinations, std::ostream& out);

/// The result of a generation as one line of JSON: whether something was stored, the keys of the messages, and the rows as
/// they are handed to the model.
void printResultJson(bool ok, const std::vector<std::string>& messages, const std::vector<PrintedCombination>& combinations, std::ostream& out);

}  // namespace zel::cli
