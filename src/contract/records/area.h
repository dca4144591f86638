#pragma once

#include <cstdint>
#include <vector>

/// One area, outlined by points.
struct T_AREA_D {
    std::vector<std::uint32_t> points;    ///< keys in the order of the outline

    bool operator==(const T_AREA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("points", &T_AREA_D::points);
    }
};
