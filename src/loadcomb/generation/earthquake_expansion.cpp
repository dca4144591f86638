#include "loadcomb/generation/cut_text.h"
#include "loadcomb/generation/expansion.h"
#include "loadcomb/generation/number_token.h"
#include "loadcomb/generation/replace_each.h"

#include <cmath>

// The earthquake form of the expansion. In all variants f is the row's factor, s the scale factor and g the over-strength factor of a case.
namespace zel::loadcomb {

namespace {

constexpr std::string_view earthquakeToken = "EL";

// The 100:30 rule: one case in full with a share of the case at right angles.
constexpr double minorShare = 0.3;
constexpr std::string_view minorText = "0.3";
constexpr std::string_view majorText = "1.0";

std::string_view signText(double value)
{
    return value < 0.0 ? "-" : "+";
}

}  // namespace

/// An earthquake case with what it brings into every pair that it is a member of.
struct RowExpansion::EarthquakeCase {
    std::uint32_t key = 0;
    std::uint32_t partner = 0;  ///< the eccentric case, 0 for none
    double s = 1.0;
    double g = 1.0;
    std::string numbers;  ///< "(1.10)", with the over-strength factor behind it where it applies
    std::string_view name;
    std::string_view partnerName;
};

/// One of the two cases at right angles.
struct RowExpansion::Member {
    const EarthquakeCase& earthquake;
    double coefficient;        ///< k: 1.0 of the first member, 0.3 or -0.3 of the second
    double partnerSign = 1.0;  ///< with which the partner is added

    void appendTo(std::string& text) const
    {
        text.append(std::abs(coefficient) == minorShare ? minorText : majorText).append(earthquake.numbers);
        if (earthquake.partner == 0)
            text.append(earthquake.name);
        else
            text.append("[").append(earthquake.name).append(signText(partnerSign)).append(earthquake.partnerName).append("]");
    }

    void appendTo(std::vector<T_LCOM_ITEM>& items, double factor) const
    {
        const auto& [key, partner, s, g, numbers, name, partnerName] = earthquake;
        if (partner == 0) {
            items.push_back({1, key, factor * coefficient * g * s});
            return;
        }
        const double product = coefficient * factor * s * g;
        items.push_back({1, key, product});
        items.push_back({1, partner, partnerSign * product});
    }

    [[nodiscard]] EarthquakeChoice choice() const
    {
        return {earthquake.key, coefficient, earthquake.s, earthquake.g, earthquake.partner, earthquake.partner == 0 ? 0 : static_cast<int>(partnerSign)};
    }
};

/// Two cases at right angles as they stand in a combination.
struct RowExpansion::OrthogonalPair {
    std::string text;  ///< "(1.0(1.10)RX+0.3(1.15)RY)"
    std::vector<T_LCOM_ITEM> items;
    Choice choice;
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

RowExpansion::EarthquakeCase RowExpansion::earthquakeCase(std::uint32_t key, bool eccentric) const
{
    EarthquakeCase made;
    made.key = key;
    made.partner = eccentric ? m_state.eccentricOf(key) : 0;
    made.s = m_state.scaleOf(key);
    made.g = m_state.overstrengthOf(key);
    made.numbers = "(" + fixedText(made.s, 2) + ")";
    if (m_state.usesOverstrength())
        made.numbers += "(" + fixedText(made.g, 2) + ")";
    made.name = m_state.names.at(key);
    if (made.partner != 0)
        made.partnerName = m_state.names.at(made.partner);
    return made;
}

RowExpansion::OrthogonalPair RowExpansion::orthogonalPair(const Member& first, const Member& second, double factor)
{
    OrthogonalPair made;
    made.text = "(";
    first.appendTo(made.text);
    made.text += signText(second.coefficient);
    second.appendTo(made.text);
    made.text += ")";
    made.items.reserve(4);
    first.appendTo(made.items, factor);
    second.appendTo(made.items, factor);
    made.choice.earthquakes = {first.choice(), second.choice()};
    return made;
}

void RowExpansion::orthogonalEarthquakes(const _CCmd_Loadcase& group, double factor)
{
    const bool eccentric = !m_state.eccentricCases.empty();
    std::vector<OrthogonalPair> together;  // eccentric partners of both members added, or of both subtracted
    std::vector<OrthogonalPair> apart;     // one added, the other subtracted
    for (const std::uint32_t key : group.cases) {
        const std::uint32_t other = m_state.orthogonalOf(key);
        if (other == 0)
            continue;
        const EarthquakeCase major = earthquakeCase(key, eccentric);
        const EarthquakeCase minor = earthquakeCase(other, eccentric);
        for (const double share : {minorShare, -minorShare}) {
            const auto pair = [&](double majorSign, double minorSign) { return orthogonalPair({major, 1.0, majorSign}, {minor, share, minorSign}, factor); };
            together.push_back(pair(1.0, 1.0));
            if (major.partner != 0 || minor.partner != 0)
                together.push_back(pair(-1.0, -1.0));
            if (major.partner != 0 && minor.partner != 0) {
                apart.push_back(pair(1.0, -1.0));
                apart.push_back(pair(-1.0, 1.0));
            }
        }
    }

    Drafts replaced;
    replaced.started = true;
    replaced.list.reserve(m_drafts.list.size() * (together.size() + apart.size()));
    for (const std::vector<OrthogonalPair>* pairs : {&together, &apart}) {
        for (std::size_t from = 0; from < m_drafts.list.size(); ++from)
            addOrthogonal(replaced, from, *pairs);
    }
    m_drafts = std::move(replaced);
}

void RowExpansion::addOrthogonal(Drafts& to, std::size_t from, const std::vector<OrthogonalPair>& pairs) const
{
    const Draft& base = m_drafts.list[from];
    std::string text = base.text;
    replaceAll(text, "(SUF)", "");
    replaceAll(text, "(OMG)", "");
    const CutText cut(text, earthquakeToken);
    for (const OrthogonalPair& pair : pairs) {
        Draft made = copyOf(base, pair.items.size());
        cut.joinWith(pair.text, made.text);
        made.items.insert(made.items.end(), pair.items.begin(), pair.items.end());
        add(to, std::move(made), from, m_state.tracing ? pair.choice : Choice{});
    }
}

}  // namespace zel::loadcomb
