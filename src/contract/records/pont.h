#pragma once

#include "contract/unit_types.h"

/// One point of the model.
struct T_PONT_D {
    double x = 0.0;    ///< [length]
    double y = 0.0;    ///< [length]
    double z = 0.0;    ///< [length]

    bool operator==(const T_PONT_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("x", &T_PONT_D::x, Unit::length);
        field("y", &T_PONT_D::y, Unit::length);
        field("z", &T_PONT_D::z, Unit::length);
    }
};
