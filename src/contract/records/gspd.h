#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>

using T_GSPD_UNIT = std::array<int, 7>;

/// One general spring type: a symmetric coupled 3 x 3 spring, stored as its upper triangle by rows.
struct T_GSPD_D {
    CString name;            ///< unique, not empty
    double  sdzSdz = 0.0;    ///< [force/length]
    double  sdzSrx = 0.0;    ///< [force/radian]
    double  sdzSry = 0.0;    ///< [force/radian]
    double  srxSrx = 0.0;    ///< [force*length/radian]
    double  srxSry = 0.0;    ///< [force*length/radian]
    double  srySry = 0.0;    ///< [force*length/radian]

    static constexpr T_GSPD_UNIT unit{
        Unit::none,                                                          // name
        Unit::spring, Unit::springCoupled, Unit::springCoupled,              // SDz-SDz, SDz-SRx, SDz-SRy
        Unit::springRotation, Unit::springRotation, Unit::springRotation,    // SRx-SRx, SRx-SRy, SRy-SRy
    };

    bool operator==(const T_GSPD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_GSPD_D::name);
        field("sdzSdz", &T_GSPD_D::sdzSdz, Unit::spring);
        field("sdzSrx", &T_GSPD_D::sdzSrx, Unit::springCoupled);
        field("sdzSry", &T_GSPD_D::sdzSry, Unit::springCoupled);
        field("srxSrx", &T_GSPD_D::srxSrx, Unit::springRotation);
        field("srxSry", &T_GSPD_D::srxSry, Unit::springRotation);
        field("srySry", &T_GSPD_D::srySry, Unit::springRotation);
    }
};
