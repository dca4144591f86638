#pragma once

#include <cstdint>

/// A wall support along a line.
struct T_WASA_D {
    std::uint32_t lineKey = 0;
    std::uint32_t typeKey = 0;    ///< of a wall support type

    bool operator==(const T_WASA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("lineKey", &T_WASA_D::lineKey);
        field("typeKey", &T_WASA_D::typeKey);
    }
};
