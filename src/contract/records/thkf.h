#pragma once

#include "contract/unit_types.h"

/// Stiffness scale factors of the thickness that stands under the same key.
struct T_THKF_D {
    double fInPlane = 1.0;
    double fOutOfPlaneShear = 1.0;
    double fOutOfPlaneBending = 1.0;

    bool operator==(const T_THKF_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("fInPlane", &T_THKF_D::fInPlane, Unit::none);
        field("fOutOfPlaneShear", &T_THKF_D::fOutOfPlaneShear, Unit::none);
        field("fOutOfPlaneBending", &T_THKF_D::fOutOfPlaneBending, Unit::none);
    }
};
