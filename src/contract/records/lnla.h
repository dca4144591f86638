#pragma once

#include <cstdint>

/// A line load on a line.
struct T_LNLA_D {
    std::uint32_t lineKey = 0;
    std::uint32_t typeKey = 0;    ///< of a line load type

    bool operator==(const T_LNLA_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("lineKey", &T_LNLA_D::lineKey);
        field("typeKey", &T_LNLA_D::typeKey);
    }
};
