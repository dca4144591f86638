#pragma once

#include "contract/document.h"
#include "contract/records/lcom.h"

#include <functional>
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

/// Combinations that are printed: gives each of them, in order, as often as it is called. A printer goes through them once or twice and holds
/// what it prints of one at a time.
using EachCombination = std::function<void(const std::function<void(const PrintedCombination&)>& take)>;

/// Prints combinations of the current model for reading (table), for a spreadsheet (csv) or as a file that other programs
/// import (lcb). A column of factors stands for each load case in use; the factors of a case that stands twice are summed up.
/// @throws std::runtime_error  for a combination that an lcb file can't hold
void printCombinations(Format format, const EachCombination& combinations, std::ostream& out);

/// The result of a generation as one line of JSON: whether something was stored, the keys of the messages, and the rows as
/// they are handed to the model.
/// @param ending  further members, in front of the end: ", \"line\": 3"
void printResultJson(bool ok, const std::vector<std::string>& messages, const EachCombination& combinations, std::ostream& out, const std::string& ending = {});

}  // namespace zel::cli
