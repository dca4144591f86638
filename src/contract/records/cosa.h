#pragma once

#include <cstdint>

/// A column support at a point.
struct T_COSA_D {
    std::uint32_t pointKey = 0;
    std::uint32_t typeKey = 0;     ///< of a column support type

    bool operator==(const T_COSA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("pointKey", &T_COSA_D::pointKey);
        field("typeKey", &T_COSA_D::typeKey);
    }
};
