#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>

/// One named user coordinate system.
struct T_NUCS_D {
    CString               name;        ///< unique
    std::array<double, 3> origin{};    ///< x, y, z [length]
    std::array<double, 6> axes{};      ///< direction of the x axis, then of the y axis

    bool operator==(const T_NUCS_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_NUCS_D::name);
        field("origin", &T_NUCS_D::origin, Unit::length);
        field("axes", &T_NUCS_D::axes, Unit::none);
    }
};
