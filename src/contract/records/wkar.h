#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// One domain: an outlined part of the floor with a direction of its own.
struct T_WKAR_D {
    CString                    name;           ///< unique
    std::uint32_t              key = 0;        ///< the table's key of the record
    double                     angle = 0.0;    ///< direction against the global X axis [degrees]
    std::vector<std::uint32_t> outerPoints;    ///< keys of the points of the outline, in pick order

    bool operator==(const T_WKAR_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_WKAR_D::name);
        field("key", &T_WKAR_D::key);
        field("angle", &T_WKAR_D::angle, Unit::degrees);
        field("outerPoints", &T_WKAR_D::outerPoints);
    }
};
