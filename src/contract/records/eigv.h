#pragma once

#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_EIGV_UNIT = std::array<int, 7>;

/// Eigenvalue analysis control: the one record of its table.
struct T_EIGV_D {
    std::int32_t frequencies = 10;         ///< number of frequencies to find
    double       lowerLimit = 0.0;         ///< lower cut-off frequency [cycles per second]
    double       upperLimit = 0.0;         ///< upper cut-off frequency [cycles per second]
    std::int32_t iterations = 20;          ///< number of iterations
    std::int32_t subspaceDimension = 0;
    double       tolerance = 1e-6;         ///< of convergence
    double       frequencyShift = 0.0;     ///< [cycles per second]

    static constexpr T_EIGV_UNIT unit{
        Unit::none,                          // frequencies
        Unit::frequency, Unit::frequency,    // lower, upper limit
        Unit::none, Unit::none,              // iterations, subspace dimension
        Unit::none,                          // tolerance
        Unit::frequency,                     // frequency shift
    };

    bool operator==(const T_EIGV_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("frequencies", &T_EIGV_D::frequencies);
        field("lowerLimit", &T_EIGV_D::lowerLimit, Unit::frequency);
        field("upperLimit", &T_EIGV_D::upperLimit, Unit::frequency);
        field("iterations", &T_EIGV_D::iterations);
        field("subspaceDimension", &T_EIGV_D::subspaceDimension);
        field("tolerance", &T_EIGV_D::tolerance, Unit::none);
        field("frequencyShift", &T_EIGV_D::frequencyShift, Unit::frequency);
    }
};
