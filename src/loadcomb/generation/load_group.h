#pragma once

#include "contract/export.h"
#include "contract/text.h"
#include "loadcomb/tables/code_table.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

/// The static load cases of one load group, with what the analysis of a row's text finds out about the group.
struct _CCmd_Loadcase {                     // NOLINT(bugprone-reserved-identifier): the documented name
    CString name;                           ///< "DL", "LL", ...; "WLCB" where wind combinations stand in for "WL"
    std::int32_t inParentheses = 0;         ///< 1 when the row's text holds the name inside parentheses
    std::int32_t levels = 0;                ///< decimal digits, one for each parenthesis level that holds the name
    std::vector<std::uint32_t> cases;       ///< keys of static load cases
    std::vector<std::uint32_t> otherCases;  ///< empty in this system

    [[nodiscard]] bool hasCases() const { return !cases.empty() || !otherCases.empty(); }
    /// Whether the digits of `level` stand in the digits of `levels`.
    [[nodiscard]] ZEL_CMD_API bool isInLevel(int level) const;
};

namespace zel::loadcomb {

/// What the generator needs to know of a static load case.
struct LoadCase {
    std::uint32_t key = 0;
    CString name;
    CString type;
};

/// The thirteen groups in their fixed order, which is that of `codes::Word`.
using LoadGroups = std::array<_CCmd_Loadcase, codes::groupCount>;

/// Sorts load cases into the groups by their type texts, compared exactly, in the given order. A case of another type is in no group.
ZEL_CMD_API LoadGroups sortIntoGroups(const std::vector<LoadCase>& cases);

/// The facts that conditions of code tables ask for: which groups have cases, and whether one of LR, SL, RL has.
codes::Facts factsOf(const LoadGroups& groups);

}  // namespace zel::loadcomb
