#pragma once

#include "contract/unit_types.h"

#include <cstdint>

/// Mesh dimension of one line.
struct T_MSLN_D {
    std::uint32_t lineKey = 0;
    double        dimension = 0.0;    ///< greatest distance of mesh nodes [length]

    bool operator==(const T_MSLN_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("lineKey", &T_MSLN_D::lineKey);
        field("dimension", &T_MSLN_D::dimension, Unit::length);
    }
};
