#include "contract/load_types.h"
#include "loadcomb/generation/cut_text.h"
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
    made.items.push_back({staticCaseItem, key, factor * s * g});
    if (partner == 0) {
        replaceAll(made.text, earthquakeToken, name);
    } else {
        made.items.push_back({staticCaseItem, partner, partnerSign < 0 ? -factor * s * g : factor * s * g});
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
                items.push_back({staticCaseItem, extra, itemFactor});
        }
    };
    take(m_state.undergroundByCase, std::abs(factor) * m_state.underground);
    take(m_state.undergroundByCaseOther, std::abs(factor * g));
    return items;
}

void RowExpansion::orthogonalEarthquakes(const _CCmd_Loadcase& group, double factor)
{
    m_state.orthogonalPairs.prepare(m_state, group.cases);
    const auto& passes = {&m_state.orthogonalPairs.together(), &m_state.orthogonalPairs.apart()};
    Drafts replaced;
    replaced.started = true;
    for (const std::vector<OrthogonalPair>* pairs : passes) {
        replaced.list.reserve(replaced.list.size() + m_drafts.list.size() * pairs->size());
        for (std::size_t from = 0; from < m_drafts.list.size(); ++from)
            addOrthogonal(replaced, from, *pairs, factor);
    }
    m_drafts = std::move(replaced);
}

void RowExpansion::addOrthogonal(Drafts& to, std::size_t from, const std::vector<OrthogonalPair>& pairs, double factor) const
{
    constexpr std::size_t twoEccentricMembers = 4;
    const Draft& base = m_drafts.list[from];
    std::string text = base.text;
    replaceAll(text, "(SUF)", "");
    replaceAll(text, "(OMG)", "");
    const CutText cut(text, earthquakeToken);
    for (const OrthogonalPair& pair : pairs) {
        Draft made = copyOf(base, twoEccentricMembers);
        cut.joinWith(pair.text, made.text);
        pair.appendItems(made.items, factor);
        add(to, std::move(made), from, m_state.tracing ? Choice{0, -1, {pair.major, pair.minor}} : Choice{});
    }
}

}  // namespace zel::loadcomb
