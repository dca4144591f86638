#pragma once

#include "loadcomb/tables/code_table.h"

#include <string>
#include <string_view>
#include <vector>

// The combinations that a code's table gives for a model with one case in each of the named groups, as lines to be read beside the
// printed code. Each line begins with the row that it comes from:
//
//     service 2: DL 2/3, LL 2/3, WL 2/3
//     strength 7: DL 0.75*1.4, LL 1.275, WL 1.275
//     strength 2 with snow: DL 1.2, SL 1.4                       row 2 in the pass that takes SL for LR
//     strength 40: DL 0.75*1.4 + S*V, LL 1.275, EL 1             S short-period coefficient, V vertical load factor
//     strength 69: DL -VER, EL 1                                 VER vertical force factor
//
// "service" and "strength" are what the combination is stored as, 0 and 1 in `active`.
namespace tables {

using Lines = std::vector<std::string>;

/// The lines of `table` for the groups of `groups`, "DL LL WL", and a type of combinations.
Lines lines(const zel::codes::CodeTable& table, std::string_view groups, zel::codes::Word type = zel::codes::Word::typeStrength);

/// Their row numbers alone, runs drawn together: "service 1-5 strength 6 9 11-20".
std::string rowNumbers(const zel::codes::CodeTable& table, std::string_view groups, zel::codes::Word type = zel::codes::Word::typeStrength);

inline constexpr std::string_view everyGroup = "DL LL LR WL EL SL EEP RL FP EP WP EH EV";

}  // namespace tables
