#pragma once

#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// Over-strength factor of one earthquake load case.
struct T_SOSF_BASE {
    std::uint32_t loadCaseKey = 0;    ///< of a static load case; 0 for none
    double        factor = 0.2;

    bool operator==(const T_SOSF_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("loadCaseKey", &T_SOSF_BASE::loadCaseKey);
        field("factor", &T_SOSF_BASE::factor, Unit::none);
    }
};

/// Factors for seismic design: the one record of its table.
struct T_SLCF_D {
    double                   verticalLoadFactor = 0.2;        ///< vertical load factor of special seismic loads
    double                   verticalForceFactor = 0.2;       ///< factor of vertical seismic forces
    double                   shortPeriodCoefficient = 0.0;    ///< design spectral acceleration coefficient of short periods
    std::vector<T_SOSF_BASE> overStrengthFactors;             ///< one entry an earthquake load case

    bool operator==(const T_SLCF_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("verticalLoadFactor", &T_SLCF_D::verticalLoadFactor, Unit::none);
        field("verticalForceFactor", &T_SLCF_D::verticalForceFactor, Unit::none);
        field("shortPeriodCoefficient", &T_SLCF_D::shortPeriodCoefficient, Unit::none);
        field("overStrengthFactors", &T_SLCF_D::overStrengthFactors);
    }
};
