#pragma once

#include "contract/unit_types.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// One mass of an object.
struct T_OMAS_D {
    std::int32_t  type = 0;         ///< 1 point mass, 2 line mass, 3 area mass
    std::uint32_t objectKey = 0;    ///< of the point, line or area
    double        value = 0.0;      ///< [mass], [mass/length] or [mass/length^2] by `type`

    bool operator==(const T_OMAS_D&) const = default;

    void Initialize() { *this = {}; }

    /// Unit type of `value`; none for a type outside 1 to 3.
    int unitOf(std::string_view field, std::size_t) const
    {
        if (field != "value")
            return Unit::none;
        switch (type) {
        case 1: return Unit::mass;
        case 2: return Unit::massPerLength;
        case 3: return Unit::massPerArea;
        default: return Unit::none;
        }
    }

    template <class F> static void visit(F& field)
    {
        field("type", &T_OMAS_D::type);
        field("objectKey", &T_OMAS_D::objectKey);
        field("value", &T_OMAS_D::value, Unit::byRecord);
    }
};
