#pragma once

#include "contract/unit_types.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// One point load.
struct T_PTLA_D {
    std::uint32_t         pointKey = 0;
    std::uint32_t         loadCaseKey = 0;      ///< of a static load case
    std::int32_t          subLoadCaseNo = 0;    ///< 1-based; 0 when the load case has no sub-load cases
    std::array<double, 6> value{};              ///< Fx, Fy, Fz [force], Mx, My, Mz [force*length]

    bool operator==(const T_PTLA_D&) const = default;

    void Initialize() { *this = {}; }

    /// Unit type of a place of `value`.
    int unitOf(std::string_view field, std::size_t element) const
    {
        if (field != "value")
            return Unit::none;
        return element < 3 ? Unit::force : Unit::moment;
    }

    template <class F> static void visit(F& field)
    {
        field("pointKey", &T_PTLA_D::pointKey);
        field("loadCaseKey", &T_PTLA_D::loadCaseKey);
        field("subLoadCaseNo", &T_PTLA_D::subLoadCaseNo);
        field("value", &T_PTLA_D::value, Unit::byRecord);
    }
};
