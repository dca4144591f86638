#include "platform/springs/springs.h"

#include "platform/springs/reckoned.h"

#include <cmath>

namespace zel::springs {

namespace {

constexpr int byThickness = 1;
constexpr int byValue = 2;

struct Part {
    double thickness;
    double height;

    [[nodiscard]] bool counts() const { return thickness > 0.0 && height > 0.0; }
};

/// The sum of `stiffness` of the part above and the part below, of those that are there.
template <class Stiffness> Reckoned bothParts(const T_WASD_D& wall, Stiffness&& stiffness)
{
    const Part above{wall.aboveT, wall.aboveH};
    const Part below{wall.belowT, wall.belowH};
    if (above.counts() && below.counts())
        return stiffness(above) + stiffness(below);
    if (above.counts() || below.counts())
        return stiffness(above.counts() ? above : below);
    return Reckoned(0.0);
}

}  // namespace

Springs wallSprings(const T_WASD_D& wall)
{
    if (wall.type == byValue)
        return {Outcome::kept, {}};
    if (wall.type != byThickness)
        return {};
    const Reckoned sdz = bothParts(wall, [&wall](const Part& part) { return Reckoned(wall.elasticity) * Reckoned(part.thickness) / Reckoned(part.height); });
    const bool bends = wall.includeBending != 0 && std::fabs(wall.poisson) < 1.0;
    const Reckoned sr = !bends ? Reckoned(0.0) : bothParts(wall, [&wall](const Part& part) {
        const Reckoned plate = Reckoned(12.0) * Reckoned(1.0 - wall.poisson * wall.poisson);
        return Reckoned(wall.bendingScale) * Reckoned(wall.elasticity) * Reckoned(std::pow(part.thickness, 3)) / plate / Reckoned(part.height);
    });
    if (!std::isfinite(sdz.value()) || !std::isfinite(sr.value()))
        return {};
    return {Outcome::reckoned,
            {{"SDz", Unit::springPerLength, sdz.value(), "E x T / H, above + below", sdz.text()},
             {"SR", Unit::springRotationPerLength, sr.value(), "k x E x T^3 / (12 x (1 - nu^2)) / H, above + below", sr.text()}}};
}

}  // namespace zel::springs
