#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>
#include <vector>

/// Damping of one mode.
struct T_THLD_BASE {
    std::int32_t mode = 0;         ///< number of the mode, from 1
    double       damping = 0.0;    ///< ratio

    bool operator==(const T_THLD_BASE&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("mode", &T_THLD_BASE::mode);
        field("damping", &T_THLD_BASE::damping, Unit::none);
    }
};

using T_THLD_UNIT = std::array<int, 9>;

/// One time history load case.
struct T_THLD_D {
    CString                  name;                      ///< unique; the address for writes
    CString                  description;
    std::uint32_t            key = 0;                   ///< the table's key of the record
    double                   endTime = 1.0;             ///< [time]
    double                   timeIncrement = 0.1;       ///< [time]
    std::int32_t             outputSteps = 1;           ///< number of output steps
    std::int32_t             analysisType = 1;          ///< 1 transient, 2 periodic
    double                   dampingAllModes = 0.05;    ///< ratio
    std::vector<T_THLD_BASE> modalDamping;              ///< overrides of single modes, in the order of entry

    static constexpr T_THLD_UNIT unit{
        Unit::none, Unit::none, Unit::none,    // name, description, key
        Unit::time, Unit::time,                // end time, time increment
        Unit::none, Unit::none,                // output steps, analysis type
        Unit::none, Unit::none,                // damping
    };

    bool operator==(const T_THLD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_THLD_D::name);
        field("description", &T_THLD_D::description);
        field("key", &T_THLD_D::key);
        field("endTime", &T_THLD_D::endTime, Unit::time);
        field("timeIncrement", &T_THLD_D::timeIncrement, Unit::time);
        field("outputSteps", &T_THLD_D::outputSteps);
        field("analysisType", &T_THLD_D::analysisType);
        field("dampingAllModes", &T_THLD_D::dampingAllModes, Unit::none);
        field("modalDamping", &T_THLD_D::modalDamping);
    }
};
