#pragma once

#include "contract/unit_types.h"

#include <array>

using T_SECT_STIFFNESS_UNIT = std::array<int, 12>;

/// Computed properties of a section about its centroid.
struct T_SECT_STIFFNESS {
    double area = 0.0;          ///< [length^2]
    double asy = 0.0;           ///< shear area in y [length^2]
    double asz = 0.0;           ///< shear area in z [length^2]
    double ixx = 0.0;           ///< torsional constant [length^4]
    double iyy = 0.0;           ///< moment of inertia about y [length^4]
    double izz = 0.0;           ///< moment of inertia about z [length^4]
    double cyp = 0.0;           ///< distance of the extreme fibre, +y [length]
    double cym = 0.0;           ///< distance of the extreme fibre, -y [length]
    double czp = 0.0;           ///< distance of the extreme fibre, +z [length]
    double czm = 0.0;           ///< distance of the extreme fibre, -z [length]
    double qyb = 0.0;           ///< first moment of area for shear in y [length^3]
    double qzb = 0.0;           ///< first moment of area for shear in z [length^3]
    double weightArea = 0.0;    ///< area that counts for the weight [length^2]; a form sets it to `area`, scale factors scale it apart

    /// Unit types of the twelve rows that forms show; the area for the weight is not one of them.
    static constexpr T_SECT_STIFFNESS_UNIT unit{
        Unit::area, Unit::area, Unit::area,                        // area, asy, asz
        Unit::inertia, Unit::inertia, Unit::inertia,               // ixx, iyy, izz
        Unit::length, Unit::length, Unit::length, Unit::length,    // cyp, cym, czp, czm
        Unit::firstMoment, Unit::firstMoment,                      // qyb, qzb
    };

    bool operator==(const T_SECT_STIFFNESS&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("area", &T_SECT_STIFFNESS::area, Unit::area);
        field("asy", &T_SECT_STIFFNESS::asy, Unit::area);
        field("asz", &T_SECT_STIFFNESS::asz, Unit::area);
        field("ixx", &T_SECT_STIFFNESS::ixx, Unit::inertia);
        field("iyy", &T_SECT_STIFFNESS::iyy, Unit::inertia);
        field("izz", &T_SECT_STIFFNESS::izz, Unit::inertia);
        field("cyp", &T_SECT_STIFFNESS::cyp, Unit::length);
        field("cym", &T_SECT_STIFFNESS::cym, Unit::length);
        field("czp", &T_SECT_STIFFNESS::czp, Unit::length);
        field("czm", &T_SECT_STIFFNESS::czm, Unit::length);
        field("qyb", &T_SECT_STIFFNESS::qyb, Unit::firstMoment);
        field("qzb", &T_SECT_STIFFNESS::qzb, Unit::firstMoment);
        field("weightArea", &T_SECT_STIFFNESS::weightArea, Unit::area);
    }
};
