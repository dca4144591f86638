#pragma once

#include <cstdint>

/// A wall with a major direction. The wall is the line whose key is the record's; the record itself tells nothing more.
struct T_WDIR_D {
    std::int32_t reserved = 0;    ///< written as 0 and never read

    bool operator==(const T_WDIR_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("reserved", &T_WDIR_D::reserved);
    }
};
