#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_ARLD_UNIT = std::array<int, 5>;

/// An area load type: up to three loads per area, each in a static load case of its own.
struct T_ARLD_D {
    CString       name;                  ///< unique
    CString       description;
    std::uint32_t loadCase1 = 0;         ///< key of a static load case; 0 for none
    std::uint32_t loadCase2 = 0;         ///< key of a static load case; 0 for none
    std::uint32_t loadCase3 = 0;         ///< key of a static load case; 0 for none
    double        load1 = 0.0;           ///< in `loadCase1` [force/length^2]
    double        load2 = 0.0;           ///< in `loadCase2` [force/length^2]
    double        load3 = 0.0;           ///< in `loadCase3` [force/length^2]
    std::int32_t  includeWeight1 = 0;    ///< 1: the weight of the model is included in `load1`
    std::int32_t  includeWeight2 = 0;    ///< 1: the weight of the model is included in `load2`
    std::int32_t  includeWeight3 = 0;    ///< 1: the weight of the model is included in `load3`

    /// Unit types of the form; one entry serves the three load cases, one the three loads and one the three flags.
    static constexpr T_ARLD_UNIT unit{
        Unit::none, Unit::none,    // name, description
        Unit::none,                // every load case
        Unit::areaLoad,            // every load
        Unit::none,                // every weight flag
    };

    bool operator==(const T_ARLD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_ARLD_D::name);
        field("description", &T_ARLD_D::description);
        field("loadCase1", &T_ARLD_D::loadCase1);
        field("loadCase2", &T_ARLD_D::loadCase2);
        field("loadCase3", &T_ARLD_D::loadCase3);
        field("load1", &T_ARLD_D::load1, Unit::areaLoad);
        field("load2", &T_ARLD_D::load2, Unit::areaLoad);
        field("load3", &T_ARLD_D::load3, Unit::areaLoad);
        field("includeWeight1", &T_ARLD_D::includeWeight1);
        field("includeWeight2", &T_ARLD_D::includeWeight2);
        field("includeWeight3", &T_ARLD_D::includeWeight3);
    }
};
