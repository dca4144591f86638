#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// One point of a time history curve.
struct T_THFC_BASE {
    double time = 0.0;     ///< [time]
    double value = 0.0;    ///< quantity by the `dataType` of the function

    bool operator==(const T_THFC_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("time", &T_THFC_BASE::time, Unit::time);
        field("value", &T_THFC_BASE::value, Unit::byRecord);
    }
};

using T_THFC_UNIT = std::array<int, 22>;

/// One time history function: a curve, or a sinusoid A, C, f, D, PA.
struct T_THFC_D {
    CString                  name;                   ///< unique; the address for writes
    std::int32_t             functionType = 1;       ///< 1 time function, 2 sinusoidal; what is not 1 counts as sinusoidal
    std::int32_t             dataType = 0;           ///< 1 normal, 2 acceleration, 3 force, 4 moment; 0 until a form sets it
    double                   scaleFactor = 1.0;      ///< multiplier of the function
    double                   gravity = 0.0;          ///< [acceleration]
    std::int32_t             reservedInt = 0;        ///< copied with the record, never read
    double                   sinA = 1.0;             ///< coefficient A of the sinusoid; quantity by `dataType`
    double                   sinC = 0.0;             ///< coefficient C of the sinusoid; that quantity per time
    double                   sinFrequency = 1.0;     ///< frequency f [cycles per second]
    double                   sinDamping = 0.0;       ///< damping factor D
    double                   sinPhaseAngle = 0.0;    ///< phase angle PA [degrees]
    std::vector<T_THFC_BASE> points;                 ///< as edited strictly ascending in `time`; imported and generated ones as produced

    /// Unit types of the form. Where the quantity depends on the data type, four entries stand for the types 1 to 4.
    static constexpr T_THFC_UNIT unit{
        Unit::none, Unit::none, Unit::none, Unit::none, Unit::none, Unit::none,    // 0 to 5: not shown
        Unit::none, Unit::none, Unit::force, Unit::moment,                         // 6 to 9: coefficient A by data type
        Unit::none, Unit::none, Unit::forceRate, Unit::momentRate,                 // 10 to 13: coefficient C by data type
        Unit::frequency,                                                           // 14: frequency f
        Unit::none,                                                                // 15: damping factor D
        Unit::degrees,                                                             // 16: phase angle PA
        Unit::time,                                                                // 17: time of a point
        Unit::none, Unit::none, Unit::force, Unit::moment,                         // 18 to 21: value of a point by data type
    };

    bool operator==(const T_THFC_D&) const = default;

    void Initialize() { *this = {}; }

    /// Unit type of `sinA`, `sinC` and a point's `value`; none for a data type outside 1 to 4.
    int unitOf(std::string_view field, std::size_t) const
    {
        if (dataType < 1 || dataType > 4)
            return Unit::none;
        const std::size_t place = static_cast<std::size_t>(dataType - 1);
        if (field == "sinA")
            return unit[6 + place];
        if (field == "sinC")
            return unit[10 + place];
        return field == "value" ? unit[18 + place] : Unit::none;
    }

    template <class F> static void visit(F& field)
    {
        field("name", &T_THFC_D::name);
        field("functionType", &T_THFC_D::functionType);
        field("dataType", &T_THFC_D::dataType);
        field("scaleFactor", &T_THFC_D::scaleFactor, Unit::none);
        field("gravity", &T_THFC_D::gravity, Unit::acceleration);
        field("reservedInt", &T_THFC_D::reservedInt);
        field("sinA", &T_THFC_D::sinA, Unit::byRecord);
        field("sinC", &T_THFC_D::sinC, Unit::byRecord);
        field("sinFrequency", &T_THFC_D::sinFrequency, Unit::frequency);
        field("sinDamping", &T_THFC_D::sinDamping, Unit::none);
        field("sinPhaseAngle", &T_THFC_D::sinPhaseAngle, Unit::degrees);
        field("points", &T_THFC_D::points);
    }
};
