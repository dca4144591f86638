#pragma once

#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// Scale-up of one response load case.
struct T_SURS_SF {
    std::uint32_t loadCaseKey = 0;     ///< of a static load case
    double        factor = 1.0;
    std::uint32_t eccentricKey = 0;    ///< of the accidental eccentricity load case; 0 for none

    bool operator==(const T_SURS_SF&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("loadCaseKey", &T_SURS_SF::loadCaseKey);
        field("factor", &T_SURS_SF::factor, Unit::none);
        field("eccentricKey", &T_SURS_SF::eccentricKey);
    }
};

/// What the default load combination dialog remembers: the one record of its table.
struct T_SURS_D {
    std::vector<T_SURS_SF> scaleFactors;    ///< in key order of the load cases

    bool operator==(const T_SURS_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("scaleFactors", &T_SURS_D::scaleFactors);
    }
};
