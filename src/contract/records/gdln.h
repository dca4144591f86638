#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>

/// One grid line.
struct T_GDLN_D {
    CString               name;           ///< unique
    double                angle = 0.0;    ///< [degrees]
    std::array<double, 3> origin{};       ///< x, y, z [length]

    bool operator==(const T_GDLN_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_GDLN_D::name);
        field("angle", &T_GDLN_D::angle, Unit::degrees);
        field("origin", &T_GDLN_D::origin, Unit::length);
    }
};
