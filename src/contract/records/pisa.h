#pragma once

#include <cstdint>

/// A pile support at a point.
struct T_PISA_D {
    std::uint32_t pointKey = 0;
    std::uint32_t typeKey = 0;     ///< of a pile support type

    bool operator==(const T_PISA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("pointKey", &T_PISA_D::pointKey);
        field("typeKey", &T_PISA_D::typeKey);
    }
};
