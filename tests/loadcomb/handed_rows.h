#pragma once

#include "loadcomb/tables/code_registry.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The rows that a code's table hands to the generator for a model with one case in each of the named groups, as their texts stand
// before a case is looked at. Rows that the model cannot feed are left out; rows that repeat each other stay.
namespace handed {

using zel::codes::service;
using zel::codes::strength;

// What the model and the options give.
inline constexpr double S = 0.3;         ///< short-period coefficient
inline constexpr double V = 0.7;         ///< vertical load factor
inline constexpr double verticalForceFactor = 0.2;
inline constexpr double alphaH = 0.8;

struct HandedRow {
    zel::codes::Flag flag = strength;
    std::string text;
    std::vector<std::pair<std::string, double>> factors;    ///< groups without cases included
};
using Rows = std::vector<HandedRow>;

/// @param groups  "DL LL WL"
/// @param type    of combinations, 0 to 4
Rows rowsOf(const zel::codes::CodeTable& table, std::string_view groups, int type);
Rows rowsOf(std::string_view code, std::string_view groups, int type);

Rows joined(std::initializer_list<Rows> rows);
/// Those of which the text holds `part`.
Rows rowsWith(std::string_view part, const Rows& rows);
Rows rowsWithout(std::string_view part, const Rows& rows);
Rows serviceRowsWith(std::string_view part, const Rows& rows);
Rows strengthRowsWith(std::string_view part, const Rows& rows);
/// Those without a negative factor of WL or EL.
Rows plusRows(const Rows& rows);

std::vector<std::string> texts(const Rows& rows);
/// One line a row, for comparison: "strength | 1.4(DL) | DL 1.4". Factors read back exactly.
std::vector<std::string> lines(const Rows& rows);
using Lines = std::vector<std::string>;

std::string replaced(std::string text, std::string_view from, std::string_view to);

/// `text` cut at its blanks.
std::vector<std::string_view> words(std::string_view text);

}  // namespace handed
