#pragma once

#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_ACTL_UNIT = std::array<int, 5>;

/// Main control data of the analysis: the one record of its table.
struct T_ACTL_D {
    std::int32_t springMode = 1;            ///< 0 includes inactive springs, 1 excludes them
    std::int32_t iterations = 20;           ///< number of iterations in mode 0
    std::int32_t iterationsPerCase = 20;    ///< number of iterations a load case in mode 1
    std::int32_t subIterations = 10;        ///< number of sub-iterations an iteration in mode 1
    double       tolerance = 0.001;         ///< of both modes

    static constexpr T_ACTL_UNIT unit{
        Unit::none, Unit::none, Unit::none, Unit::none,    // mode and numbers of iterations
        Unit::none,                                        // tolerance
    };

    bool operator==(const T_ACTL_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("springMode", &T_ACTL_D::springMode);
        field("iterations", &T_ACTL_D::iterations);
        field("iterationsPerCase", &T_ACTL_D::iterationsPerCase);
        field("subIterations", &T_ACTL_D::subIterations);
        field("tolerance", &T_ACTL_D::tolerance, Unit::none);
    }
};
