#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_STLD_UNIT = std::array<int, 5>;

/// One static load case. Its key is the table's and no part of the record.
struct T_STLD_D {
    CString       name;                      ///< unique; the address for writes
    std::int32_t  no = 0;                    ///< 1-based place in the table's sequence; the table maintains it
    CString       type = "D";                ///< short code of the load type catalogue: "D", "L", "W", "E", ...
    CString       description;
    double        selfWeightFactor = 0.0;    ///< factor on self weight; 0 leaves it out
    std::int32_t  subLoadCaseCount = 0;      ///< number of sub-load cases; 0 for none
    std::uint32_t combinationType = 0;       ///< of sub-load cases: 0 add, 1 SRSS of absolutes, 2 SRSS with maximum, 3 SRSS with major case
    std::int32_t  majorCase = 0;             ///< 1-based number of the major sub-load case; 0 for none

    /// Unit types of the columns of the load case grid.
    static constexpr T_STLD_UNIT unit{
        Unit::none, Unit::none, Unit::none, Unit::none,    // name, number, type, description
        Unit::none,                                        // self weight factor
    };

    bool operator==(const T_STLD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_STLD_D::name);
        field("no", &T_STLD_D::no);
        field("type", &T_STLD_D::type);
        field("description", &T_STLD_D::description);
        field("selfWeightFactor", &T_STLD_D::selfWeightFactor, Unit::none);
        field("subLoadCaseCount", &T_STLD_D::subLoadCaseCount);
        field("combinationType", &T_STLD_D::combinationType);
        field("majorCase", &T_STLD_D::majorCase);
    }
};
