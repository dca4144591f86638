#pragma once

#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// What piles are to be generated, and where.
struct T_AUTOPILE {
    std::uint32_t              pileKey = 0;             ///< of the pile support type
    double                     minSpace = 0.0;          ///< minimum pile space S1 [length]
    double                     standardSpace = 0.0;     ///< standard pile space S2 [length]
    double                     allowableForce = 0.0;    ///< allowable bearing force of a pile [force]
    double                     loadScale = 0.0;         ///< factor on the loads
    std::int32_t               selectionMode = 0;       ///< 0 all, 1 `pointKeys`, 2 `lineKeys`
    std::int32_t               method = 0;              ///< 0 calculated, 1 `pileCount`
    std::int32_t               pileCount = 0;           ///< number of piles
    std::vector<std::uint32_t> pointKeys;               ///< selected points, mode 1
    std::vector<std::uint32_t> lineKeys;                ///< selected lines, mode 2
    double                     unitsPerMetre = 0.0;     ///< length units in a metre: 1000 with mm

    bool operator==(const T_AUTOPILE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("pileKey", &T_AUTOPILE::pileKey);
        field("minSpace", &T_AUTOPILE::minSpace, Unit::length);
        field("standardSpace", &T_AUTOPILE::standardSpace, Unit::length);
        field("allowableForce", &T_AUTOPILE::allowableForce, Unit::force);
        field("loadScale", &T_AUTOPILE::loadScale, Unit::none);
        field("selectionMode", &T_AUTOPILE::selectionMode);
        field("method", &T_AUTOPILE::method);
        field("pileCount", &T_AUTOPILE::pileCount);
        field("pointKeys", &T_AUTOPILE::pointKeys);
        field("lineKeys", &T_AUTOPILE::lineKeys);
        field("unitsPerMetre", &T_AUTOPILE::unitsPerMetre, Unit::none);
    }
};
