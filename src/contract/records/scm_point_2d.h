#pragma once

#include "contract/unit_types.h"

/// A point of a drawn section. The y axis runs down the screen: y = 0 is the top of the section.
struct SCMPoint2D {
    double x = 0.0;    ///< [length]
    double y = 0.0;    ///< [length]

    bool operator==(const SCMPoint2D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("x", &SCMPoint2D::x, Unit::length);
        field("y", &SCMPoint2D::y, Unit::length);
    }
};
