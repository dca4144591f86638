#pragma once

#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// One wind set: the load cases of one wind direction.
struct T_LCWD_BASE {
    std::int32_t  groupNo = 0;         ///< written as 0; lists show the row number instead
    std::int32_t  buildingType = 1;    ///< 0 middle or low rise, 1 high rise
    std::uint32_t along = 0;           ///< key of a load case of type "W"; 0 for none
    std::uint32_t across = 0;          ///< key of a load case of type "WA"; 0 for none
    std::uint32_t torsion = 0;         ///< key of a load case of type "WT"; 0 for none, and always in a middle or low rise set
    double        gd = 2.2;            ///< factor GD
    double        k = 0.8;             ///< factor k

    bool operator==(const T_LCWD_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("groupNo", &T_LCWD_BASE::groupNo);
        field("buildingType", &T_LCWD_BASE::buildingType);
        field("along", &T_LCWD_BASE::along);
        field("across", &T_LCWD_BASE::across);
        field("torsion", &T_LCWD_BASE::torsion);
        field("gd", &T_LCWD_BASE::gd, Unit::none);
        field("k", &T_LCWD_BASE::k, Unit::none);
    }
};

/// The load-case sets for wind directions: the one record of its table.
struct T_LCWD_D {
    std::int32_t             reserved = 0;            ///< written as 0 and never read
    std::int32_t             torsionDirection = 0;    ///< signs of the torsional part: 0 both, 1 plus only, 2 minus only
    std::vector<T_LCWD_BASE> sets;                    ///< in the order of the list

    bool operator==(const T_LCWD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("reserved", &T_LCWD_D::reserved);
        field("torsionDirection", &T_LCWD_D::torsionDirection);
        field("sets", &T_LCWD_D::sets);
    }
};
