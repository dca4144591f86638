#include "loadcomb/generation/orthogonal_pairs.h"

#include "loadcomb/generation/expansion.h"
#include "loadcomb/generation/number_token.h"

#include <cmath>

namespace zel::loadcomb {

namespace {

constexpr double minorShare = 0.3;

EarthquakeChoice choiceOf(const ExpansionState& state, std::uint32_t key, double coefficient)
{
    return {key, coefficient, state.scaleOf(key), state.overstrengthOf(key), state.eccentricOf(key), 0};
}

/// As a member stands in the formula: "0.3(1.15)[RX+EX]".
std::string memberText(const ExpansionState& state, const EarthquakeChoice& member)
{
    std::string text = fixedText(std::abs(member.coefficient), 1);
    text.append("(").append(fixedText(member.scale, 2)).append(")");
    if (state.usesOverstrength())
        text.append("(").append(fixedText(member.overstrength, 2)).append(")");
    const std::string& name = state.names.at(member.key);
    if (member.partner == 0)
        text.append(name);
    else
        text.append("[").append(name).append(member.partnerSign < 0 ? "-" : "+").append(state.names.at(member.partner)).append("]");
    return text;
}

/// A pair with its eccentric partners added (+1) or subtracted (-1).
OrthogonalPair pairOf(const ExpansionState& state, EarthquakeChoice major, EarthquakeChoice minor, int majorSign, int minorSign)
{
    major.partnerSign = major.partner == 0 ? 0 : majorSign;
    minor.partnerSign = minor.partner == 0 ? 0 : minorSign;
    return {major, minor, "(" + memberText(state, major) + (minor.coefficient < 0.0 ? "-" : "+") + memberText(state, minor) + ")"};
}

void appendMember(std::vector<T_LCOM_ITEM>& items, const EarthquakeChoice& member, double factor)
{
    const double k = member.coefficient;
    const double s = member.scale;
    const double g = member.overstrength;
    if (member.partner == 0) {
        items.push_back({1, member.key, factor * k * g * s});
        return;
    }
    const double product = k * factor * s * g;
    items.push_back({1, member.key, product});
    items.push_back({1, member.partner, member.partnerSign < 0 ? -product : product});
}

}  // namespace

void OrthogonalPair::appendItems(std::vector<T_LCOM_ITEM>& items, double factor) const
{
    appendMember(items, major, factor);
    appendMember(items, minor, factor);
}

bool OrthogonalPairs::areMadeOf(const ExpansionState& state, const std::vector<std::uint32_t>& cases) const
{
    return m_basis.usesOverstrength == state.usesOverstrength() && m_basis.cases == cases && m_basis.orthoPairs == state.orthoPairs &&
        m_basis.eccentricCases == state.eccentricCases && m_basis.scaleFactors == state.scaleFactors && m_basis.overstrength == state.overstrength;
}

void OrthogonalPairs::prepare(const ExpansionState& state, const std::vector<std::uint32_t>& cases)
{
    if (areMadeOf(state, cases))
        return;
    m_basis = {cases, state.orthoPairs, state.eccentricCases, state.scaleFactors, state.overstrength, state.usesOverstrength()};
    m_together.clear();
    m_apart.clear();
    for (const std::uint32_t key : cases) {
        const std::uint32_t other = state.orthogonalOf(key);
        if (other == 0)
            continue;
        const EarthquakeChoice major = choiceOf(state, key, 1.0);
        for (const double share : {minorShare, -minorShare}) {
            const EarthquakeChoice minor = choiceOf(state, other, share);
            m_together.push_back(pairOf(state, major, minor, +1, +1));
            if (major.partner != 0 || minor.partner != 0)
                m_together.push_back(pairOf(state, major, minor, -1, -1));
            if (major.partner != 0 && minor.partner != 0) {
                m_apart.push_back(pairOf(state, major, minor, +1, -1));
                m_apart.push_back(pairOf(state, major, minor, -1, +1));
            }
        }
    }
}

}  // namespace zel::loadcomb
