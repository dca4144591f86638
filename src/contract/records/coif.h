#pragma once

#include "contract/unit_types.h"

#include <cstdint>

/// Size of a punching check.
struct T_COIF_D {
    std::uint32_t pointKey = 0;
    double        depth = 0.0;     ///< [length]
    double        width = 0.0;     ///< [length]

    bool operator==(const T_COIF_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("pointKey", &T_COIF_D::pointKey);
        field("depth", &T_COIF_D::depth, Unit::length);
        field("width", &T_COIF_D::width, Unit::length);
    }
};
