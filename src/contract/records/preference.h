#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

/// What the user prefers for new data. The host keeps it in its settings, not in the model.
struct T_PREFERENCE {
    CString sectionDbName;                    ///< section database of a new section; empty: user-defined
    CString steelStandard;                    ///< standard of a new steel; the host starts with the material catalogue's steel standard
    CString concreteStandard = "KS01(RC)";    ///< standard of a new concrete
    CString concreteCode;                     ///< its sub-code; the host starts with the first one of the material catalogue
    double  minPileSpaceFactor = 2.5;         ///< minimum pile space as a multiple of the diameter
    double  standardPileSpaceFactor = 2.5;    ///< standard pile space as a multiple of the diameter

    bool operator==(const T_PREFERENCE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("sectionDbName", &T_PREFERENCE::sectionDbName);
        field("steelStandard", &T_PREFERENCE::steelStandard);
        field("concreteStandard", &T_PREFERENCE::concreteStandard);
        field("concreteCode", &T_PREFERENCE::concreteCode);
        field("minPileSpaceFactor", &T_PREFERENCE::minPileSpaceFactor, Unit::none);
        field("standardPileSpaceFactor", &T_PREFERENCE::standardPileSpaceFactor, Unit::none);
    }
};
