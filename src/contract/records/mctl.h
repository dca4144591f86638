#pragma once

#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_MCTL_UNIT = std::array<int, 6>;

/// Model control data: the one record of its table.
///
/// The default of `maxMeshDimension` is 1 m, written here in mm; the table's handle converts it to the current units.
struct T_MCTL_D {
    double       maxMeshDimension = 1000.0;    ///< greatest dimension of a mesh line [length]
    std::int32_t massConversion = 0;           ///< of the model weight: 0 no conversion to masses, 1 to Z
    double       gravity = 0.0;                ///< [acceleration]
    std::int32_t alignBeamTop = 0;             ///< 1: top of beam sections aligned to the floor for display
    std::int32_t alignSlabTop = 0;             ///< 1: top of slab sections aligned to the floor for display
    std::int32_t loadCoordinates = 0;          ///< coordinate system of boundaries and loads: 0 domain, 1 global

    static constexpr T_MCTL_UNIT unit{
        Unit::length,              // greatest mesh line dimension
        Unit::none,                // mass conversion
        Unit::acceleration,        // gravity
        Unit::none, Unit::none,    // align beam, slab
        Unit::none,                // coordinate system
    };

    bool operator==(const T_MCTL_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("maxMeshDimension", &T_MCTL_D::maxMeshDimension, Unit::length);
        field("massConversion", &T_MCTL_D::massConversion);
        field("gravity", &T_MCTL_D::gravity, Unit::acceleration);
        field("alignBeamTop", &T_MCTL_D::alignBeamTop);
        field("alignSlabTop", &T_MCTL_D::alignSlabTop);
        field("loadCoordinates", &T_MCTL_D::loadCoordinates);
    }
};
