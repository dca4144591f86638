#pragma once

#include "contract/unit_types.h"

/// A position in the model.
struct T_POINT3 {
    double x = 0.0;    ///< [length]
    double y = 0.0;    ///< [length]
    double z = 0.0;    ///< [length]

    bool operator==(const T_POINT3&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("x", &T_POINT3::x, Unit::length);
        field("y", &T_POINT3::y, Unit::length);
        field("z", &T_POINT3::z, Unit::length);
    }
};
