#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tables {

/// Factor of each load group in a printed formula, by the rules of arithmetic: "0.75(1.4DL + 1.7(LL+LR))" gives DL 1.05, LL 1.275,
/// LR 1.275. A word of `known` stands for its number, every other word of letters and digits for a load group; "*" may stand for a
/// product; "±" counts as "+". A group that stands twice has the sum.
/// @errors  std::invalid_argument for a text that is no sum of groups with factors
std::map<std::string, double> formulaFactors(std::string_view text, const std::map<std::string, double>& known = {});

}  // namespace tables
