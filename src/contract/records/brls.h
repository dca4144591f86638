#pragma once

#include <array>
#include <cstdint>

/// End releases of one beam.
struct T_BRLS_D {
    std::uint32_t                objectKey = 0;    ///< of the beam's line
    std::array<std::int32_t, 12> flags{};          ///< 1 released: Dx, Dy, Dz, Rx, Ry, Rz of the first end, then of the second

    bool operator==(const T_BRLS_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("objectKey", &T_BRLS_D::objectKey);
        field("flags", &T_BRLS_D::flags);
    }
};
