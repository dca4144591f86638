#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_COSD_UNIT = std::array<int, 13>;

/// One column support type.
struct T_COSD_D {
    CString      name;                  ///< unique, not empty
    std::int32_t type = 1;              ///< 1 solid rectangle, 2 solid round, 3 value
    std::int32_t meshAndLink = 0;       ///< 1: mesh and link at the column boundary; not read for type 3
    double       elasticity = 0.0;      ///< modulus of elasticity [force/length^2]; not read for type 3
    double       poisson = 0.0;         ///< Poisson's ratio; not read for type 3
    double       aboveD = 0.0;          ///< upper column: depth, of a round one its diameter [length]
    double       aboveB = 0.0;          ///< upper column: width of a rectangle [length]
    double       aboveH = 0.0;          ///< upper column: height [length]
    double       belowD = 0.0;          ///< lower column: depth, of a round one its diameter [length]
    double       belowB = 0.0;          ///< lower column: width of a rectangle [length]
    double       belowH = 0.0;          ///< lower column: height [length]
    double       capitalD = 0.0;        ///< capital: depth, of a round one its diameter [length]
    double       capitalB = 0.0;        ///< capital: width of a rectangle [length]
    double       capitalH = 0.0;        ///< capital: height [length]
    double       sdz = 0.0;             ///< spring constant, translation z [force/length]
    double       srx = 0.0;             ///< spring constant, rotation x [force*length/radian]
    double       sry = 0.0;             ///< spring constant, rotation y [force*length/radian]
    std::int32_t fixSdz = 0;            ///< 1: fixed; of type 3, as the next two
    std::int32_t fixSrx = 0;
    std::int32_t fixSry = 0;
    std::int32_t includeBending = 1;    ///< 1: bending stiffness is included
    double       bendingScale = 6.0;    ///< factor on the bending stiffness
    double       betaAngle = 0.0;       ///< one of 0, 45, 90 [degrees]

    /// Unit types of the form; entry 5 serves every length.
    static constexpr T_COSD_UNIT unit{
        Unit::none, Unit::none, Unit::none,    // 0 to 2
        Unit::stress, Unit::none,              // 3 elasticity, 4 Poisson
        Unit::length,                          // 5 every length
        Unit::spring,                          // 6 sdz
        Unit::springRotation,                  // 7 srx
        Unit::springRotation,                  // 8 sry
        Unit::none, Unit::none,                // 9, 10
        Unit::none,                            // 11 bending scale
        Unit::degrees,                         // 12 beta angle
    };

    bool operator==(const T_COSD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_COSD_D::name);
        field("type", &T_COSD_D::type);
        field("meshAndLink", &T_COSD_D::meshAndLink);
        field("elasticity", &T_COSD_D::elasticity, Unit::stress);
        field("poisson", &T_COSD_D::poisson, Unit::none);
        field("aboveD", &T_COSD_D::aboveD, Unit::length);
        field("aboveB", &T_COSD_D::aboveB, Unit::length);
        field("aboveH", &T_COSD_D::aboveH, Unit::length);
        field("belowD", &T_COSD_D::belowD, Unit::length);
        field("belowB", &T_COSD_D::belowB, Unit::length);
        field("belowH", &T_COSD_D::belowH, Unit::length);
        field("capitalD", &T_COSD_D::capitalD, Unit::length);
        field("capitalB", &T_COSD_D::capitalB, Unit::length);
        field("capitalH", &T_COSD_D::capitalH, Unit::length);
        field("sdz", &T_COSD_D::sdz, Unit::spring);
        field("srx", &T_COSD_D::srx, Unit::springRotation);
        field("sry", &T_COSD_D::sry, Unit::springRotation);
        field("fixSdz", &T_COSD_D::fixSdz);
        field("fixSrx", &T_COSD_D::fixSrx);
        field("fixSry", &T_COSD_D::fixSry);
        field("includeBending", &T_COSD_D::includeBending);
        field("bendingScale", &T_COSD_D::bendingScale, Unit::none);
        field("betaAngle", &T_COSD_D::betaAngle, Unit::degrees);
    }
};
