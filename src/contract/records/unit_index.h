#pragma once

#include <cstdint>

/// A unit system: one unit of length and one of force. Time is always in seconds.
struct T_UNIT_INDEX {
    enum Length : std::int32_t { MM, CM, M, INCH, FEET };
    enum Force : std::int32_t { KG, TON, N, KN, LBF, KIP };

    std::int32_t length = MM;    ///< a `Length`
    std::int32_t force = KN;     ///< a `Force`

    bool operator==(const T_UNIT_INDEX&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("length", &T_UNIT_INDEX::length);
        field("force", &T_UNIT_INDEX::force);
    }
};
