#pragma once

#include <cstdint>

/// One slab on an area.
struct T_SLAB_D {
    std::uint32_t areaKey = 0;
    std::uint32_t materialKey = 0;
    std::uint32_t thicknessKey = 0;

    bool operator==(const T_SLAB_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("areaKey", &T_SLAB_D::areaKey);
        field("materialKey", &T_SLAB_D::materialKey);
        field("thicknessKey", &T_SLAB_D::thicknessKey);
    }
};
