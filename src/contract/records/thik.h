#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_THIK_UNIT = std::array<int, 7>;

/// One slab thickness.
struct T_THIK_D {
    CString      name;            ///< may be empty
    std::int32_t separate = 0;    ///< 0 one thickness for all, 1 in-plane and out-of-plane thicknesses apart
    double       outX = 0.0;      ///< out-of-plane, x bending, or the one thickness [length]
    double       outY = 0.0;      ///< out-of-plane, y bending [length]
    double       outXY = 0.0;     ///< out-of-plane, twisting [length]
    double       inX = 0.0;       ///< in-plane, x [length]
    double       inY = 0.0;       ///< in-plane, y [length]

    static constexpr T_THIK_UNIT unit{
        Unit::none, Unit::none,                      // name, separate
        Unit::length, Unit::length, Unit::length,    // out of plane
        Unit::length, Unit::length,                  // in plane
    };

    bool operator==(const T_THIK_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_THIK_D::name);
        field("separate", &T_THIK_D::separate);
        field("outX", &T_THIK_D::outX, Unit::length);
        field("outY", &T_THIK_D::outY, Unit::length);
        field("outXY", &T_THIK_D::outXY, Unit::length);
        field("inX", &T_THIK_D::inX, Unit::length);
        field("inY", &T_THIK_D::inY, Unit::length);
    }
};
