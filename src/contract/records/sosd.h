#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_SOSD_UNIT = std::array<int, 5>;

/// One soil support type.
struct T_SOSD_D {
    CString      name;          ///< unique, not empty
    std::int32_t type = 1;      ///< 1 soil stress, 2 value
    double       qa = 0.0;      ///< allowable soil stress [force/length^2]
    double       sdz = 0.0;     ///< subgrade modulus [force/length^3]
    std::int32_t action = 1;    ///< 1 normal, 2 tension only, 3 compression only

    static constexpr T_SOSD_UNIT unit{
        Unit::none, Unit::none,    // name, type
        Unit::areaLoad,            // qa
        Unit::subgrade,            // sdz
        Unit::none,                // action
    };

    bool operator==(const T_SOSD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_SOSD_D::name);
        field("type", &T_SOSD_D::type);
        field("qa", &T_SOSD_D::qa, Unit::areaLoad);
        field("sdz", &T_SOSD_D::sdz, Unit::subgrade);
        field("action", &T_SOSD_D::action);
    }
};
