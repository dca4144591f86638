#pragma once

#include <cstdint>

/// A soil support under an area.
struct T_SOSA_D {
    std::uint32_t areaKey = 0;
    std::uint32_t typeKey = 0;    ///< of a soil support type

    bool operator==(const T_SOSA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("areaKey", &T_SOSA_D::areaKey);
        field("typeKey", &T_SOSA_D::typeKey);
    }
};
