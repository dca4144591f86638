#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>

/// One material of a record: from a standard, or typed in.
struct MatlData {
    CString standard;            ///< design standard; empty for typed values
    CString code;                ///< sub-code of a concrete standard; empty otherwise
    CString dbName;              ///< name of the material in the standard
    double  elasticity = 0.0;    ///< modulus of elasticity [force/length^2]
    double  poisson = 0.0;       ///< Poisson's ratio
    double  thermal = 0.0;       ///< coefficient of thermal expansion [1/temperature]
    double  density = 0.0;       ///< weight density [force/length^3]

    bool operator==(const MatlData&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("standard", &MatlData::standard);
        field("code", &MatlData::code);
        field("dbName", &MatlData::dbName);
        field("elasticity", &MatlData::elasticity, Unit::stress);
        field("poisson", &MatlData::poisson, Unit::none);
        field("thermal", &MatlData::thermal, Unit::thermal);
        field("density", &MatlData::density, Unit::weightDensity);
    }
};

using T_MATL_UNIT = std::array<int, 16>;

/// One material.
struct T_MATL_D {
    CString  name;          ///< not empty when saved
    CString  type = "C";    ///< "S" steel, "C" concrete, "U" user defined, "SRC" composite
    MatlData primary;       ///< the material; of "SRC" its steel
    MatlData secondary;     ///< the concrete of "SRC"; unused by other types

    /// Unit types of the form, counted through both blocks.
    static constexpr T_MATL_UNIT unit{
        Unit::none, Unit::none,                                          // name, type
        Unit::none, Unit::none, Unit::none,                              // 2 to 4: texts of the primary
        Unit::stress, Unit::none, Unit::thermal, Unit::weightDensity,    // 5 to 8: elasticity, Poisson, thermal, density
        Unit::none, Unit::none, Unit::none,                              // 9 to 11: texts of the secondary
        Unit::stress, Unit::none, Unit::thermal, Unit::weightDensity,    // 12 to 15: as 5 to 8
    };

    bool operator==(const T_MATL_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_MATL_D::name);
        field("type", &T_MATL_D::type);
        field("primary", &T_MATL_D::primary);
        field("secondary", &T_MATL_D::secondary);
    }
};
