#pragma once

#include "contract/unit_types.h"

/// Stiffness scale factors of the section that stands under the same key.
struct T_SECF_D {
    double fArea = 1.0;    ///< on the area
    double fAsy = 1.0;     ///< on the shear area in y
    double fAsz = 1.0;     ///< on the shear area in z
    double fIxx = 1.0;     ///< on the torsional constant
    double fIyy = 1.0;     ///< on the moment of inertia about y
    double fIzz = 1.0;     ///< on the moment of inertia about z
    double fWgt = 1.0;     ///< on the area for the weight

    bool operator==(const T_SECF_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("fArea", &T_SECF_D::fArea, Unit::none);
        field("fAsy", &T_SECF_D::fAsy, Unit::none);
        field("fAsz", &T_SECF_D::fAsz, Unit::none);
        field("fIxx", &T_SECF_D::fIxx, Unit::none);
        field("fIyy", &T_SECF_D::fIyy, Unit::none);
        field("fIzz", &T_SECF_D::fIzz, Unit::none);
        field("fWgt", &T_SECF_D::fWgt, Unit::none);
    }
};
