#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

/// One row of the pile catalogue, in current units.
struct T_PILE_DB {
    double  diameter = 0.0;      ///< [length]
    double  thickness = 0.0;     ///< of the wall [length]
    double  elasticity = 0.0;    ///< elastic modulus [force/length^2]
    double  area = 0.0;          ///< [length^2]
    CString hName;               ///< name of the H section; empty for other shapes

    bool operator==(const T_PILE_DB&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("diameter", &T_PILE_DB::diameter, Unit::length);
        field("thickness", &T_PILE_DB::thickness, Unit::length);
        field("elasticity", &T_PILE_DB::elasticity, Unit::stress);
        field("area", &T_PILE_DB::area, Unit::area);
        field("hName", &T_PILE_DB::hName);
    }
};
