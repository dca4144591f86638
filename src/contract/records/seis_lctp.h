#pragma once

#include <cstdint>

/// One line of a load-case list.
struct T_SEIS_LCTP {
    std::int32_t line = 0;    ///< index of the line
    std::int32_t kind = 0;    ///< kind of its load case; 0 static

    bool operator==(const T_SEIS_LCTP&) const = default;

    void Initialize() { *this = {}; }
};
