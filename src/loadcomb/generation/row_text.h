#pragma once

#include "loadcomb/generation/load_group.h"

#include <string>
#include <vector>

// The text of a row steers its expansion: a group outside parentheses is mandatory, of a set in parentheses one member must have cases.
namespace zel::loadcomb {

/// Marks the groups that stand inside parentheses, and deletes those of them that have no cases from the text, each with the sign behind it.
///
/// The text is cut at its blanks into tokens, once and before any deletion. The pairs of parentheses of a token are taken from the
/// innermost outward; names are found as plain substrings, "EL" in "(ZEL)" too. Each token that holds a group is a level of its own.
/// @param text    of the row; changed
/// @param groups  the row's own copies, in the order of its pairs; `inParentheses` and `levels` are set
/// @return  the final level: one above the number of tokens in which a group was found
ZEL_CMD_API int analyseText(std::string& text, std::vector<_CCmd_Loadcase>& groups);

/// Whether a row can be expanded, and if not, why.
struct Feasibility {
    bool feasible = true;
    const _CCmd_Loadcase* missing = nullptr;  ///< the mandatory group without cases, if that is the reason
    int emptyLevel = 0;                       ///< the level without cases, if that is the reason
};

/// A row is feasible when each group outside parentheses has cases, and each level has a group with cases. A group "PS" may lack
/// cases; its term is then cut out of the text of a feasible row.
/// @param level  the result of `analyseText`
ZEL_CMD_API Feasibility testFeasibility(std::string& text, const std::vector<_CCmd_Loadcase>& groups, int level);

}  // namespace zel::loadcomb
