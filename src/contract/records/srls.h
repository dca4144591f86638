#pragma once

#include <array>
#include <cstdint>

/// Edge releases of one slab.
struct T_SRLS_D {
    std::uint32_t                objectKey = 0;    ///< of the slab's area
    std::array<std::int32_t, 12> flags{};          ///< 1 released

    bool operator==(const T_SRLS_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("objectKey", &T_SRLS_D::objectKey);
        field("flags", &T_SRLS_D::flags);
    }
};
