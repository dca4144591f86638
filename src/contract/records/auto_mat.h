#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <cstdint>
#include <vector>

/// What mat is to be generated.
struct T_AUTOMAT {
    double                     edgeDistance = 0.0;    ///< distance to the edge of the foundation, S3 [length]
    std::int32_t               material = 0;          ///< number of the material
    std::int32_t               thickness = 0;         ///< number of the thickness
    std::int32_t               matType = 0;           ///< 0 pile mat, 1 mat, 2 user
    std::int32_t               createLineGrid = 0;    ///< 1: a line grid is made
    CString                    lineGridName;
    std::vector<std::uint32_t> connectivity;          ///< keys of the points, in order

    bool operator==(const T_AUTOMAT&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("edgeDistance", &T_AUTOMAT::edgeDistance, Unit::length);
        field("material", &T_AUTOMAT::material);
        field("thickness", &T_AUTOMAT::thickness);
        field("matType", &T_AUTOMAT::matType);
        field("createLineGrid", &T_AUTOMAT::createLineGrid);
        field("lineGridName", &T_AUTOMAT::lineGridName);
        field("connectivity", &T_AUTOMAT::connectivity);
    }
};
