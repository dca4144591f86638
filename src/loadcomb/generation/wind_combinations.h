#pragma once

#include "contract/records/lcom.h"
#include "contract/records/lcwd.h"
#include "loadcomb/generation/load_group.h"

#include <cstdint>
#include <vector>

// Wind acts along the wind, across it and in torsion at once. A wind set gives the combinations of the three.
namespace zel::loadcomb {

/// How a set is combined. Sets whose along case does not exist are never met.
enum class WindForm : std::uint8_t {
    along = 1,            ///< the along case by itself
    alongAcross = 4,      ///< of a middle or low rise building: both with 1.0
    alongAcrossHigh = 5,  ///< of a high rise building: with the factors of GD
    alongTorsion = 6,
    all = 8
};

/// The form of a set whose along case exists.
ZEL_CMD_API WindForm windForm(const T_LCWD_BASE& set, bool acrossExists, bool torsionExists);

/// The wind combinations of the sets of a model.
///
/// Load cases of type "W" are walked in their sequence; each set of a case counts, in list order, and a case that is the along case of no set
/// stands by itself. Descriptions show each factor with its case: "1.0WX + 0.67WA - 0.8WT".
/// @param kind  design kind that the records carry; `active` is 0
/// @return  empty when there is no set or no case of type "W"
ZEL_CMD_API std::vector<T_LCOM_D> makeWindCombinations(const T_LCWD_D& sets, const std::vector<LoadCase>& cases, int kind);

}  // namespace zel::loadcomb
