#pragma once

#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// Scale-up of one earthquake load case.
struct T_LCUG_SF {
    double        factor = 1.0;
    std::uint32_t loadCaseKey = 0;     ///< of a static load case
    std::uint32_t eccentricKey = 0;    ///< of the accidental eccentricity load case; 0 for none

    bool operator==(const T_LCUG_SF&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("factor", &T_LCUG_SF::factor, Unit::none);
        field("loadCaseKey", &T_LCUG_SF::loadCaseKey);
        field("eccentricKey", &T_LCUG_SF::eccentricKey);
    }
};

/// An earthquake load case in one direction, with the earth pressures that act with it.
struct T_LCUG_SEIS {
    std::uint32_t              loadCaseKey = 0;    ///< of a static load case
    std::int32_t               direction = 0;      ///< 0 plus, 1 minus
    std::vector<std::uint32_t> seismicKeys;        ///< keys of the seismic earth pressure cases
    std::vector<std::uint32_t> staticKeys;         ///< keys of the static earth pressure cases

    bool operator==(const T_LCUG_SEIS&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("loadCaseKey", &T_LCUG_SEIS::loadCaseKey);
        field("direction", &T_LCUG_SEIS::direction);
        field("seismicKeys", &T_LCUG_SEIS::seismicKeys);
        field("staticKeys", &T_LCUG_SEIS::staticKeys);
    }
};

/// The load-case set for underground loads: the one record of its table.
struct T_LCUG_D {
    std::vector<T_LCUG_SF>   scaleUps;
    std::vector<T_LCUG_SEIS> groups;      ///< no load case stands twice with one direction

    bool operator==(const T_LCUG_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("scaleUps", &T_LCUG_D::scaleUps);
        field("groups", &T_LCUG_D::groups);
    }
};
