#pragma once

#include "cli/explanation.h"

#include <iosfwd>

namespace zel::cli {

/// For reading.
void printExplanation(const Explanation& explanation, std::ostream& out);
void printOmissions(const Omissions& omissions, std::ostream& out);

/// As one line of JSON: a list with an object for each combination.
void printExplanationsJson(const std::vector<Explanation>& explanations, std::ostream& out);
void printOmissionsJson(const Omissions& omissions, std::ostream& out);

}  // namespace zel::cli
