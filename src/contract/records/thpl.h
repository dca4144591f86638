#pragma once

#include "contract/unit_types.h"

#include <cstdint>

/// One dynamic point load.
struct T_THPL_D {
    std::uint32_t pointKey = 0;
    std::uint32_t timeHistoryKey = 0;    ///< of a time history load case
    std::uint32_t functionKey = 0;       ///< of a time history function
    std::int32_t  direction = 0;         ///< degree of freedom that it acts in
    double        scale = 0.0;           ///< factor on the function
    double        arrivalTime = 0.0;     ///< [time]

    bool operator==(const T_THPL_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("pointKey", &T_THPL_D::pointKey);
        field("timeHistoryKey", &T_THPL_D::timeHistoryKey);
        field("functionKey", &T_THPL_D::functionKey);
        field("direction", &T_THPL_D::direction);
        field("scale", &T_THPL_D::scale, Unit::none);
        field("arrivalTime", &T_THPL_D::arrivalTime, Unit::time);
    }
};
