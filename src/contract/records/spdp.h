#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// One specified displacement of a point.
struct T_SPDP_D {
    std::uint32_t         pointKey = 0;
    std::uint32_t         loadCaseKey = 0;      ///< of a static load case
    std::int32_t          subLoadCaseNo = 0;    ///< 1-based; 0 when the load case has no sub-load cases
    CString               dofFlags;             ///< six characters for Dx to Rz: "1" prescribed, "0" free
    std::array<double, 6> value{};              ///< Dx, Dy, Dz [length], Rx, Ry, Rz [radians]

    bool operator==(const T_SPDP_D&) const = default;

    void Initialize() { *this = {}; }

    /// Unit type of a place of `value`.
    int unitOf(std::string_view field, std::size_t element) const
    {
        if (field != "value")
            return Unit::none;
        return element < 3 ? Unit::length : Unit::radians;
    }

    template <class F> static void visit(F& field)
    {
        field("pointKey", &T_SPDP_D::pointKey);
        field("loadCaseKey", &T_SPDP_D::loadCaseKey);
        field("subLoadCaseNo", &T_SPDP_D::subLoadCaseNo);
        field("dofFlags", &T_SPDP_D::dofFlags);
        field("value", &T_SPDP_D::value, Unit::byRecord);
    }
};
