#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_WASD_UNIT = std::array<int, 10>;

/// One wall support type.
struct T_WASD_D {
    CString      name;                  ///< unique, not empty
    std::int32_t type = 1;              ///< 1 thickness, 2 value
    double       elasticity = 0.0;      ///< modulus of elasticity [force/length^2]
    double       poisson = 0.0;         ///< Poisson's ratio
    double       aboveT = 0.0;          ///< upper wall: thickness [length]
    double       aboveH = 0.0;          ///< upper wall: height [length]
    double       belowT = 0.0;          ///< lower wall: thickness [length]
    double       belowH = 0.0;          ///< lower wall: height [length]
    double       sdz = 0.0;             ///< spring constant, translation z, per length of wall [force/length^2]
    double       sr = 0.0;              ///< spring constant, rotation, per length of wall [force/radian]
    std::int32_t fixSdz = 0;            ///< 1: fixed; of type 2, as the next
    std::int32_t fixSr = 0;
    std::int32_t includeBending = 1;    ///< 1: bending stiffness is included
    double       bendingScale = 6.0;    ///< factor on the bending stiffness

    /// Unit types of the form; entry 4 serves every length.
    static constexpr T_WASD_UNIT unit{
        Unit::none, Unit::none,           // 0, 1
        Unit::stress, Unit::none,         // 2 elasticity, 3 Poisson
        Unit::length,                     // 4 every length
        Unit::springPerLength,            // 5 sdz
        Unit::springRotationPerLength,    // 6 sr
        Unit::none, Unit::none,           // 7, 8
        Unit::none,                       // 9 bending scale
    };

    bool operator==(const T_WASD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_WASD_D::name);
        field("type", &T_WASD_D::type);
        field("elasticity", &T_WASD_D::elasticity, Unit::stress);
        field("poisson", &T_WASD_D::poisson, Unit::none);
        field("aboveT", &T_WASD_D::aboveT, Unit::length);
        field("aboveH", &T_WASD_D::aboveH, Unit::length);
        field("belowT", &T_WASD_D::belowT, Unit::length);
        field("belowH", &T_WASD_D::belowH, Unit::length);
        field("sdz", &T_WASD_D::sdz, Unit::springPerLength);
        field("sr", &T_WASD_D::sr, Unit::springRotationPerLength);
        field("fixSdz", &T_WASD_D::fixSdz);
        field("fixSr", &T_WASD_D::fixSr);
        field("includeBending", &T_WASD_D::includeBending);
        field("bendingScale", &T_WASD_D::bendingScale, Unit::none);
    }
};
