#pragma once

#include "contract/unit_types.h"

#include <cstdint>

/// Strip design control data: the one record of its table.
struct T_CSDD_D {
    std::int32_t autoWidth = 1;           ///< 1: the width of column strips is calculated
    std::int32_t widthOption = 0;         ///< 0 L/4, 1 a x h, 2 L/x
    double       factorA = 1.0;           ///< a of "a x h"
    std::int32_t factorX = 4;             ///< x of "L/x"
    std::int32_t widthType = 0;           ///< 0 tapered, 1 average width, 2 smaller width, 3 larger width
    std::int32_t rounding = 0;            ///< 1: the width is rounded
    std::int32_t roundingMode = 0;        ///< 0 off, 1 down, 2 up
    std::int32_t roundingDecimals = 2;    ///< decimal place of the rounding
    std::int32_t forcePositions = 9;      ///< number of positions of strip design forces: 5 or 9
    std::int32_t baseOnClearSpan = 0;     ///< 1: spans are clear spans

    bool operator==(const T_CSDD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("autoWidth", &T_CSDD_D::autoWidth);
        field("widthOption", &T_CSDD_D::widthOption);
        field("factorA", &T_CSDD_D::factorA, Unit::none);
        field("factorX", &T_CSDD_D::factorX);
        field("widthType", &T_CSDD_D::widthType);
        field("rounding", &T_CSDD_D::rounding);
        field("roundingMode", &T_CSDD_D::roundingMode);
        field("roundingDecimals", &T_CSDD_D::roundingDecimals);
        field("forcePositions", &T_CSDD_D::forcePositions);
        field("baseOnClearSpan", &T_CSDD_D::baseOnClearSpan);
    }
};
