#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_LNLD_UNIT = std::array<int, 4>;

/// A line load type: up to three loads per length, each in a static load case of its own.
struct T_LNLD_D {
    CString       name;             ///< unique
    CString       description;
    std::uint32_t loadCase1 = 0;    ///< key of a static load case; 0 for none
    std::uint32_t loadCase2 = 0;    ///< key of a static load case; 0 for none
    std::uint32_t loadCase3 = 0;    ///< key of a static load case; 0 for none
    double        load1 = 0.0;      ///< in `loadCase1` [force/length]
    double        load2 = 0.0;      ///< in `loadCase2` [force/length]
    double        load3 = 0.0;      ///< in `loadCase3` [force/length]

    /// Unit types of the form; one entry serves the three load cases and one the three loads.
    static constexpr T_LNLD_UNIT unit{
        Unit::none, Unit::none,    // name, description
        Unit::none,                // every load case
        Unit::lineLoad,            // every load
    };

    bool operator==(const T_LNLD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_LNLD_D::name);
        field("description", &T_LNLD_D::description);
        field("loadCase1", &T_LNLD_D::loadCase1);
        field("loadCase2", &T_LNLD_D::loadCase2);
        field("loadCase3", &T_LNLD_D::loadCase3);
        field("load1", &T_LNLD_D::load1, Unit::lineLoad);
        field("load2", &T_LNLD_D::load2, Unit::lineLoad);
        field("load3", &T_LNLD_D::load3, Unit::lineLoad);
    }
};
