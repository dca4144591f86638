#pragma once

#include "contract/export.h"

#include <string>

// A formula after its expansion becomes the description of a combination. The steps reach everything in the text, the names of load
// cases included.
namespace zel::loadcomb {

/// All steps below, in their order.
ZEL_CMD_API void rewriteDescription(std::string& text);

/// Rewrites the many formulas of one row, which begin and end alike: the common parts are rewritten once.
///
/// A part in front of a blank with all its parentheses in pairs, and a part behind one, are rewritten the same by themselves as in the whole
/// formula. So the result is that of `rewriteDescription`, whatever the formulas are.
class ZEL_CMD_API SharedRewriting {
public:
    /// @param first, last  two formulas of the row; what they share is taken for shared by all
    SharedRewriting(const std::string& first, const std::string& last);

    void rewrite(std::string& text) const;

private:
    std::string m_front, m_rewrittenFront;  ///< up to a blank, without it
    std::string m_back, m_rewrittenBack;    ///< from a blank on
};

/// Deletes every "(APH)" that is left.
ZEL_CMD_API void deleteAlphaTokens(std::string& text);

/// Deletes signs that groups without cases have left over, first every "+", then every "-": before ")", behind "(", and together with a
/// "()" in front or behind. Stays: a "-" at the very start, and one between "(" and a digit, which is the sign of a number.
ZEL_CMD_API void deleteLooseSigns(std::string& text);

/// Takes the parentheses off pairs that stand less than four characters apart, the inner pair first.
ZEL_CMD_API void deleteShortParentheses(std::string& text);

/// "DL" to "D", then "LL" to "L", "SL" to "S", "RL" to "R", "TL" to "T".
ZEL_CMD_API void shortenGroupNames(std::string& text);

/// Cuts a description of 80 characters or more to its first 76 and "...". Characters are counted, not bytes, and none is split.
ZEL_CMD_API void cutDescription(std::string& text);

}  // namespace zel::loadcomb
