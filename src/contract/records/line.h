#pragma once

#include <cstdint>

/// One line between two points.
struct T_LINE_D {
    std::uint32_t point1 = 0;    ///< key of its first point
    std::uint32_t point2 = 0;    ///< key of its second point

    bool operator==(const T_LINE_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("point1", &T_LINE_D::point1);
        field("point2", &T_LINE_D::point2);
    }
};
