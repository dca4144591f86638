#pragma once

#include "contract/unit_types.h"

#include <array>
#include <cstdint>
#include <vector>

/// A static load case that counts as mass.
struct T_LTOM_BASE {
    std::uint32_t loadCase = 0;    ///< key of a static load case
    double        scale = 0.0;     ///< factor on its loads

    bool operator==(const T_LTOM_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("loadCase", &T_LTOM_BASE::loadCase);
        field("scale", &T_LTOM_BASE::scale, Unit::none);
    }
};

using T_LTOM_UNIT = std::array<int, 5>;

/// Loads to masses: the one record of its table. The form sets flags and gravity of a new one.
struct T_LTOM_D {
    std::int32_t             usePointLoad = 0;    ///< 1: point loads become masses
    std::int32_t             useLineLoad = 0;     ///< 1: line loads become masses
    std::int32_t             useAreaLoad = 0;     ///< 1: area loads become masses
    double                   gravity = 0.0;       ///< [acceleration]
    std::vector<T_LTOM_BASE> cases;

    static constexpr T_LTOM_UNIT unit{
        Unit::none, Unit::none, Unit::none,    // use point, line, area load
        Unit::acceleration,                    // gravity
        Unit::none,                            // cases
    };

    bool operator==(const T_LTOM_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("usePointLoad", &T_LTOM_D::usePointLoad);
        field("useLineLoad", &T_LTOM_D::useLineLoad);
        field("useAreaLoad", &T_LTOM_D::useAreaLoad);
        field("gravity", &T_LTOM_D::gravity, Unit::acceleration);
        field("cases", &T_LTOM_D::cases);
    }
};
