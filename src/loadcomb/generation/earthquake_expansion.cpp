#include "loadcomb/generation/expansion.h"
#include "loadcomb/generation/number_token.h"
#include "loadcomb/generation/replace_each.h"

#include <cmath>

// The earthquake form of the expansion. In all variants f is the row's factor, s the scale factor and g the over-strength factor of a case.
namespace zel::loadcomb {

namespace {

constexpr std::string_view earthquakeToken = "EL";

std::string_view signText(double value)
{
    return value < 0.0 ? "-" : "+";
}

}  // namespace

/// One of the two cases at right angles.
struct RowExpansion::Member {
    std::uint32_t key = 0;
    double coefficient = 1.0;   ///< k: 1.0 of the first member, 0.3 or -0.3 of the second
    std::uint32_t partner = 0;  ///< the eccentric case, 0 for none
    double partnerSign = 1.0;   ///< with which the partner is added
};

void RowExpansion::earthquakeForm(const _CCmd_Loadcase& group, double factor)
{
    start();
    if (m_state.orthoOption)
        orthogonalEarthquakes(group, factor);
    else
        separateEarthquakes(group, factor);
}

void RowExpansion::separateEarthquakes(const _CCmd_Loadcase& group, double factor)
{
    replaceEach(group.cases.size() * 2, [&](const Draft&, std::size_t from, Drafts& to) {
        for (const std::uint32_t key : group.cases) {
            const std::uint32_t partner = m_state.eccentricOf(key);
            if (partner == 0) {
                addSeparate(to, from, key, 0, 0, factor);
            } else {
                addSeparate(to, from, key, partner, +1, factor);
                addSeparate(to, from, key, partner, -1, factor);
            }
        }
    });
}

void RowExpansion::addSeparate(Drafts& to, std::size_t from, std::uint32_t key, std::uint32_t partner, int partnerSign, double factor)
{
    const Draft& base = m_drafts.list[from];
    const double s = m_state.scaleOf(key);
    const double g = m_state.overstrengthOf(key);
    std::vector<T_LCOM_ITEM> extras = undergroundItems(key, factor, g);

    Draft made = copyOf(base, 2 + extras.size());
    made.text = base.text;
    if (m_state.usesOverstrength())
        replaceAll(made.text, "OMG", tokenNumber(g));
    if (m_state.scaleFactors.count(key) != 0)
        replaceAll(made.text, "SUF", tokenNumber(s));
    else
        replaceAll(made.text, "(SUF)", "");

    const std::string& name = m_state.names.at(key);
    made.items.push_back({1, key, factor * s * g});
    if (partner == 0) {
        replaceAll(made.text, earthquakeToken, name);
    } else {
        made.items.push_back({1, partner, partnerSign < 0 ? -factor * s * g : factor * s * g});
        replaceAll(made.text, earthquakeToken, "[" + name + std::string(signText(partnerSign)) + m_state.names.at(partner) + "]");
    }
    if (!extras.empty()) {
        made.number = static_cast<int>(to.list.size()) + 1;
        m_state.extraItems[made.number] = std::move(extras);
    }
    add(to, std::move(made), from, m_state.tracing ? Choice{0, -1, {{key, 1.0, s, g, partner, partnerSign}}} : Choice{});
}

std::vector<T_LCOM_ITEM> RowExpansion::undergroundItems(std::uint32_t key, double factor, double g) const
{
    std::vector<T_LCOM_ITEM> items;
    const std::pair place{key, factor * g < 0.0 ? -1 : 1};
    const auto take = [&](const UndergroundSets& sets, double itemFactor) {
        const auto found = sets.find(place);
        if (found == sets.end())
            return;
        for (const std::uint32_t extra : found->second) {
            if (m_state.exists(extra))
                items.push_back({1, extra, itemFactor});
        }
    };
    take(m_state.undergroundByCase, std::abs(factor) * m_state.underground);
    take(m_state.undergroundByCaseOther, std::abs(factor * g));
    return items;
}

void RowExpansion::orthogonalEarthquakes(const _CCmd_Loadcase& group, double factor)
{
    constexpr double minorShare = 0.3;
    const bool eccentric = !m_state.eccentricCases.empty();
    const auto eachPair = [&](const auto& use) {
        for (const std::uint32_t key : group.cases) {
            const std::uint32_t other = m_state.orthogonalOf(key);
            if (other == 0)
                continue;
            const std::uint32_t partner = eccentric ? m_state.eccentricOf(key) : 0;
            const std::uint32_t otherPartner = eccentric ? m_state.eccentricOf(other) : 0;
            for (const double share : {minorShare, -minorShare})
                use(Member{key, 1.0, partner}, Member{other, share, otherPartner});
        }
    };

    Drafts replaced;
    replaced.started = true;
    for (std::size_t from = 0; from < m_drafts.list.size(); ++from) {
        eachPair([&](Member first, Member second) {
            addOrthogonal(replaced, from, first, second, factor);  // eccentric partners added
            if (first.partner == 0 && second.partner == 0)
                return;
            first.partnerSign = second.partnerSign = -1.0;  // subtracted
            addOrthogonal(replaced, from, first, second, factor);
        });
    }
    for (std::size_t from = 0; eccentric && from < m_drafts.list.size(); ++from) {
        eachPair([&](Member first, Member second) {
            if (first.partner == 0 || second.partner == 0)
                return;
            second.partnerSign = -1.0;  // one added, the other subtracted
            addOrthogonal(replaced, from, first, second, factor);
            std::swap(first.partnerSign, second.partnerSign);
            addOrthogonal(replaced, from, first, second, factor);
        });
    }
    m_drafts = std::move(replaced);
}

void RowExpansion::addOrthogonal(Drafts& to, std::size_t from, const Member& first, const Member& second, double factor)
{
    const Draft& base = m_drafts.list[from];
    Draft made = copyOf(base, 4);
    made.text = base.text;
    replaceAll(made.text, "(SUF)", "");
    replaceAll(made.text, "(OMG)", "");

    std::string both = "(";
    addMember(made, both, first, factor);
    both += signText(second.coefficient);
    addMember(made, both, second, factor);
    replaceAll(made.text, earthquakeToken, both + ")");

    Choice choice;
    if (m_state.tracing) {
        for (const Member& member : {first, second}) {
            const int sign = member.partner == 0 ? 0 : static_cast<int>(member.partnerSign);
            choice.earthquakes.push_back(
                {member.key, member.coefficient, m_state.scaleOf(member.key), m_state.overstrengthOf(member.key), member.partner, sign});
        }
    }
    add(to, std::move(made), from, std::move(choice));
}

void RowExpansion::addMember(Draft& draft, std::string& text, const Member& member, double factor) const
{
    const double k = member.coefficient;
    const double s = m_state.scaleOf(member.key);
    const double g = m_state.overstrengthOf(member.key);
    const std::string& name = m_state.names.at(member.key);

    text += fixedText(std::abs(k), 1);
    text += "(" + fixedText(s, 2) + ")";
    if (m_state.usesOverstrength())
        text += "(" + fixedText(g, 2) + ")";
    if (member.partner == 0) {
        draft.items.push_back({1, member.key, factor * k * g * s});
        text += name;
    } else {
        const double product = k * factor * s * g;
        draft.items.push_back({1, member.key, product});
        draft.items.push_back({1, member.partner, member.partnerSign * product});
        text.append("[").append(name).append(signText(member.partnerSign)).append(m_state.names.at(member.partner)).append("]");
    }
}

}  // namespace zel::loadcomb
