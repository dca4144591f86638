#pragma once

#include "contract/unit_types.h"

/// One node of the analysis model.
struct T_NODE {
    double x = 0.0;    ///< [length]
    double y = 0.0;    ///< [length]
    double z = 0.0;    ///< [length]

    bool operator==(const T_NODE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("x", &T_NODE::x, Unit::length);
        field("y", &T_NODE::y, Unit::length);
        field("z", &T_NODE::z, Unit::length);
    }
};
