#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// The displacements prescribed at one position of an interpolation line.
struct T_SPDI_BASE {
    double                x = 0.0;    ///< position along the line as a ratio, 0 to 1, both included
    std::array<double, 6> value{};    ///< Dx, Dy, Dz [length], Rx, Ry, Rz [radians]

    bool operator==(const T_SPDI_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("x", &T_SPDI_BASE::x, Unit::none);
        field("value", &T_SPDI_BASE::value, Unit::byRecord);
    }
};

using T_SPDI_UNIT = std::array<int, 6>;

/// One specified displacement interpolation: displacements prescribed along the line between two points.
struct T_SPDI_D {
    std::uint32_t            loadCaseKey = 0;        ///< of a static load case
    std::int32_t             subLoadCaseNo = 0;      ///< 1-based; 0 when the load case has no sub-load cases
    std::uint32_t            point1 = 0;             ///< key of the first end point
    std::uint32_t            point2 = 0;             ///< key of the second end point
    CString                  dofFlags = "111111";    ///< six characters for Dx to Rz: "1" prescribed, "0" free
    std::vector<T_SPDI_BASE> rows;                   ///< ascending in `x`

    static constexpr T_SPDI_UNIT unit{
        Unit::length,  Unit::length,  Unit::length,     // Dx, Dy, Dz
        Unit::radians, Unit::radians, Unit::radians,    // Rx, Ry, Rz
    };

    bool operator==(const T_SPDI_D&) const = default;

    void Initialize() { *this = {}; }

    /// Unit type of a place of `value` in a row.
    int unitOf(std::string_view field, std::size_t element) const { return field == "value" ? unit[element] : Unit::none; }

    template <class F> static void visit(F& field)
    {
        field("loadCaseKey", &T_SPDI_D::loadCaseKey);
        field("subLoadCaseNo", &T_SPDI_D::subLoadCaseNo);
        field("point1", &T_SPDI_D::point1);
        field("point2", &T_SPDI_D::point2);
        field("dofFlags", &T_SPDI_D::dofFlags);
        field("rows", &T_SPDI_D::rows);
    }
};
