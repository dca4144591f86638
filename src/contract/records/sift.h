#pragma once

#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// Over-strength factor of one earthquake load case, for underground loads.
struct T_SIFT_BASE {
    std::uint32_t loadCaseKey = 0;    ///< of a static load case; 0 for none
    double        factor = 0.2;

    bool operator==(const T_SIFT_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("loadCaseKey", &T_SIFT_BASE::loadCaseKey);
        field("factor", &T_SIFT_BASE::factor, Unit::none);
    }
};

/// Factors for seismic design of underground loads: the one record of its table.
struct T_SIFT_D {
    double                   verticalLoadFactor = 0.2;        ///< vertical load factor of special seismic loads
    double                   shortPeriodCoefficient = 0.0;    ///< design spectral acceleration coefficient of short periods
    std::vector<T_SIFT_BASE> overStrengthFactors;             ///< one entry an earthquake load case

    bool operator==(const T_SIFT_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("verticalLoadFactor", &T_SIFT_D::verticalLoadFactor, Unit::none);
        field("shortPeriodCoefficient", &T_SIFT_D::shortPeriodCoefficient, Unit::none);
        field("overStrengthFactors", &T_SIFT_D::overStrengthFactors);
    }
};
