#pragma once

#include "contract/unit_types.h"

#include <cstdint>

/// One beam on a line.
struct T_BEAM_D {
    std::uint32_t lineKey = 0;
    std::uint32_t materialKey = 0;
    std::uint32_t sectionKey = 0;
    double        betaAngle = 0.0;    ///< turn about the beam's own axis [degrees]

    bool operator==(const T_BEAM_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("lineKey", &T_BEAM_D::lineKey);
        field("materialKey", &T_BEAM_D::materialKey);
        field("sectionKey", &T_BEAM_D::sectionKey);
        field("betaAngle", &T_BEAM_D::betaAngle, Unit::degrees);
    }
};
