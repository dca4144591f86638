#include "platform/springs/springs.h"

#include "platform/springs/reckoned.h"

#include <cmath>

namespace zel::springs {

namespace {

/// a = slope * (L/D) + offset.
struct Line {
    double slope;
    double offset;

    [[nodiscard]] double at(double ratio) const { return slope * ratio + offset; }
};

struct Row {
    Line driven;
    Line augered;
};

// clang-format off
constexpr Row spun       {{0.013,  0.61}, {0.011,  0.36}};
constexpr Row steel      {{0.014,  0.78}, {0.009,  0.39}};
constexpr Row castInPlace{{0.031, -0.15}, {0.031, -0.15}};
constexpr Line special   {0.011,  0.36};
// clang-format on

constexpr int byDatabase = 1;  ///< support type
constexpr int byValue = 2;
constexpr int driven = 1;        ///< construction
constexpr int ownStiffness = 4;  ///< special type SAP

/// The row of a code type; null for an unknown one. Database 2 has PC, steel and cast in place, the others PC, PHC, steel and cast in place.
const Row* rowOf(int dbCode, int pileType)
{
    constexpr const Row* three[]{&spun, &steel, &castInPlace};
    constexpr const Row* four[]{&spun, &spun, &steel, &castInPlace};
    if (dbCode == 2)
        return pileType >= 1 && pileType <= 3 ? three[pileType - 1] : nullptr;
    return (dbCode == 1 || dbCode == 3) && pileType >= 1 && pileType <= 4 ? four[pileType - 1] : nullptr;
}

}  // namespace

std::optional<double> pileCoefficient(const T_PISD_D& pile)
{
    const double ratio = pile.length / pile.diameter;
    if (pile.isSpecial == 1)
        return pile.pileType >= 1 && pile.pileType < ownStiffness ? std::optional(special.at(ratio)) : std::nullopt;
    const Row* const row = rowOf(pile.dbCode, pile.pileType);
    if (row == nullptr || pile.construction < 1 || pile.construction > 3)
        return std::nullopt;
    if (pile.dbCode == 3)
        return pile.coefficient;
    return (pile.construction == driven ? row->driven : row->augered).at(ratio);
}

Springs pileSprings(const T_PISD_D& pile)
{
    if (pile.supportType == byValue || (pile.isSpecial == 1 && pile.pileType == ownStiffness))
        return {Outcome::kept, {}};
    if (pile.supportType != byDatabase || !(pile.length > 0.0 && pile.diameter > 0.0 && pile.area > 0.0 && pile.elasticity > 0.0))
        return {};
    const std::optional<double> a = pileCoefficient(pile);
    if (!a || !(*a > 0.0))
        return {};
    const Reckoned kv = Reckoned::coefficient(*a) * Reckoned(pile.area) * Reckoned(pile.elasticity) / Reckoned(pile.length);
    if (!std::isfinite(kv.value()))
        return {};
    return {Outcome::reckoned, {{"Kv", Unit::spring, kv.value(), "a x Ap x Ep / L", kv.text()}}};
}

}  // namespace zel::springs
