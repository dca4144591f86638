#pragma once

#include "contract/unit_types.h"

#include <array>
#include <cstdint>

/// End offsets of one beam.
struct T_OFFS_D {
    std::uint32_t         lineKey = 0;
    std::array<double, 6> offsets{};      ///< x, y, z of the first end, then of the second [length]

    bool operator==(const T_OFFS_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("lineKey", &T_OFFS_D::lineKey);
        field("offsets", &T_OFFS_D::offsets, Unit::length);
    }
};
