#pragma once

#include <cstdint>

/// An area load on an area.
struct T_ARLA_D {
    std::uint32_t areaKey = 0;
    std::uint32_t typeKey = 0;    ///< of an area load type

    bool operator==(const T_ARLA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("areaKey", &T_ARLA_D::areaKey);
        field("typeKey", &T_ARLA_D::typeKey);
    }
};
