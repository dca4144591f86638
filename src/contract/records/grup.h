#pragma once

#include "contract/text.h"

#include <cstdint>
#include <vector>

/// One named group of model objects.
struct T_GRUP_D {
    CString                    name;      ///< unique
    std::vector<std::uint32_t> points;    ///< keys
    std::vector<std::uint32_t> lines;     ///< keys
    std::vector<std::uint32_t> areas;     ///< keys

    bool operator==(const T_GRUP_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_GRUP_D::name);
        field("points", &T_GRUP_D::points);
        field("lines", &T_GRUP_D::lines);
        field("areas", &T_GRUP_D::areas);
    }
};
