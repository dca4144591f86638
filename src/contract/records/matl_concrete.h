#pragma once

#include "contract/unit_types.h"

/// A standard concrete of the material catalogue, in current units.
struct T_MATL_CONCRETE {
    double elasticity = 0.0;    ///< modulus of elasticity [force/length^2]
    double poisson = 0.0;       ///< Poisson's ratio
    double thermal = 0.0;       ///< coefficient of thermal expansion [1/temperature]
    double density = 0.0;       ///< weight density [force/length^3]

    bool operator==(const T_MATL_CONCRETE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("elasticity", &T_MATL_CONCRETE::elasticity, Unit::stress);
        field("poisson", &T_MATL_CONCRETE::poisson, Unit::none);
        field("thermal", &T_MATL_CONCRETE::thermal, Unit::thermal);
        field("density", &T_MATL_CONCRETE::density, Unit::weightDensity);
    }
};
