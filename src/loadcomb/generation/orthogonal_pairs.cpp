#include "loadcomb/generation/orthogonal_pairs.h"

#include "contract/load_types.h"
#include "loadcomb/generation/expansion.h"
#include "loadcomb/generation/number_token.h"

#include <cmath>

namespace zel::loadcomb {

namespace {

constexpr double minorShare = 0.3;

/// A member of several pairs, which differ in the sign of its partner.
class Member {
public:
    Member(const ExpansionState& state, std::uint32_t key, double coefficient)
        : m_choice{key, coefficient, state.scaleOf(key), state.overstrengthOf(key), state.eccentricOf(key), 0}
    {
        m_front = fixedText(std::abs(coefficient), 1) + "(" + fixedText(m_choice.scale, 2) + ")";
        if (state.usesOverstrength())
            m_front += "(" + fixedText(m_choice.overstrength, 2) + ")";
        m_front += (hasPartner() ? "[" : "") + state.names.at(key);
        if (hasPartner())
            m_back = state.names.at(m_choice.partner) + "]";
    }

    [[nodiscard]] bool hasPartner() const { return m_choice.partner != 0; }

    /// With the partner added (+1) or subtracted (-1).
    [[nodiscard]] EarthquakeChoice choice(int partnerSign) const
    {
        EarthquakeChoice made = m_choice;
        made.partnerSign = hasPartner() ? partnerSign : 0;
        return made;
    }

    /// As it stands in the formula: "0.3(1.15)[RX+EX]".
    void appendTo(std::string& text, int partnerSign) const
    {
        text.append(m_front);
        if (hasPartner())
            text.append(partnerSign < 0 ? "-" : "+").append(m_back);
    }

private:
    EarthquakeChoice m_choice;
    std::string m_front, m_back;  ///< of the partner's sign
};

/// A pair with its eccentric partners added (+1) or subtracted (-1).
OrthogonalPair pairOf(const Member& major, const Member& minor, int majorSign, int minorSign)
{
    OrthogonalPair pair{major.choice(majorSign), minor.choice(minorSign), "("};
    major.appendTo(pair.text, majorSign);
    pair.text += pair.minor.coefficient < 0.0 ? '-' : '+';
    minor.appendTo(pair.text, minorSign);
    pair.text += ')';
    return pair;
}

void appendMember(std::vector<T_LCOM_ITEM>& items, const EarthquakeChoice& member, double factor)
{
    const double k = member.coefficient;
    const double s = member.scale;
    const double g = member.overstrength;
    if (member.partner == 0) {
        items.push_back({staticCaseItem, member.key, factor * k * g * s});
        return;
    }
    const double product = k * factor * s * g;
    items.push_back({staticCaseItem, member.key, product});
    items.push_back({staticCaseItem, member.partner, member.partnerSign < 0 ? -product : product});
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
        const Member major(state, key, 1.0);
        for (const double share : {minorShare, -minorShare}) {
            const Member minor(state, other, share);
            m_together.push_back(pairOf(major, minor, +1, +1));
            if (major.hasPartner() || minor.hasPartner())
                m_together.push_back(pairOf(major, minor, -1, -1));
            if (major.hasPartner() && minor.hasPartner()) {
                m_apart.push_back(pairOf(major, minor, +1, -1));
                m_apart.push_back(pairOf(major, minor, -1, +1));
            }
        }
    }
}

}  // namespace zel::loadcomb
