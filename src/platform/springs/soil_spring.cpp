#include "platform/springs/springs.h"

#include "platform/springs/reckoned.h"

#include <cmath>

namespace zel::springs {

namespace {

constexpr int bySoilStress = 1;
constexpr int byValue = 2;

constexpr double safetyFactor = 3.0;
constexpr double perMetre = 40.0;  ///< 1 m over the settlement of 25 mm

}  // namespace

Springs soilSprings(const T_SOSD_D& soil, double metre)
{
    if (soil.type == byValue)
        return {Outcome::kept, {}};
    if (soil.type != bySoilStress || !(soil.qa >= 0.0))
        return {};
    const Reckoned sdz = Reckoned(perMetre) * Reckoned(safetyFactor) * Reckoned(soil.qa) / Reckoned(metre);
    if (!std::isfinite(sdz.value()))
        return {};
    return {Outcome::reckoned, {{"SDz", Unit::subgrade, sdz.value(), "40 x SF x qa / 1 m", sdz.text()}}};
}

}  // namespace zel::springs
