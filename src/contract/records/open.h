#pragma once

#include <cstdint>

/// One opening.
struct T_OPEN_D {
    std::uint32_t areaKey = 0;    ///< of the area that is open

    bool operator==(const T_OPEN_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("areaKey", &T_OPEN_D::areaKey);
    }
};
