#include "loadcomb/generation/expansion.h"

#include "contract/load_types.h"
#include "loadcomb/generation/cut_text.h"
#include "loadcomb/generation/number_token.h"
#include "loadcomb/generation/replace_each.h"

namespace zel::loadcomb {

namespace {

constexpr std::string_view windToken = "WL";

double factorOf(const KeyFactors& factors, std::uint32_t key)
{
    const auto found = factors.find(key);
    return found == factors.end() ? 1.0 : found->second;
}

std::uint32_t partnerOf(const KeyPairs& pairs, std::uint32_t key)
{
    const auto found = pairs.find(key);
    return found == pairs.end() ? 0 : found->second;
}

}  // namespace

double ExpansionState::scaleOf(std::uint32_t key) const
{
    return factorOf(scaleFactors, key);
}

double ExpansionState::overstrengthOf(std::uint32_t key) const
{
    return usesOverstrength() ? factorOf(overstrength, key) : 1.0;
}

std::uint32_t ExpansionState::eccentricOf(std::uint32_t key) const
{
    const std::uint32_t partner = partnerOf(eccentricCases, key);
    return exists(partner) ? partner : 0;
}

std::uint32_t ExpansionState::orthogonalOf(std::uint32_t key) const
{
    const std::uint32_t partner = partnerOf(orthoPairs, key);
    return exists(partner) ? partner : 0;
}

void RowExpansion::start()
{
    if (m_drafts.started)
        return;
    m_drafts.started = true;
    m_drafts.list.push_back({m_text, {}, 0});
    m_drafts.list.back().items.reserve(m_expectedItems);
    if (m_state.tracing)
        m_drafts.choices.emplace_back();
}

Draft RowExpansion::copyOf(const Draft& draft, std::size_t moreItems) const
{
    Draft copy;
    copy.items.reserve(std::max(m_expectedItems, draft.items.size() + moreItems));
    copy.items.assign(draft.items.begin(), draft.items.end());
    copy.number = draft.number;
    return copy;
}

void RowExpansion::add(Drafts& to, Draft draft, std::size_t from, Choice choice) const
{
    to.list.push_back(std::move(draft));
    if (!m_state.tracing)
        return;
    to.choices.push_back(m_drafts.choices[from]);
    to.choices.back().push_back(std::move(choice));
}

void RowExpansion::extend(const _CCmd_Loadcase& group, double factor)
{
    if (!group.hasCases())
        return;
    if (group.name == "WLCB")
        combinationForm(factor);
    else if (group.name == "WL")
        windForm(group, factor);
    else if (group.name == "EL")
        earthquakeForm(group, factor);
    else
        plainForm(group, factor);
}

void RowExpansion::plainForm(const _CCmd_Loadcase& group, double factor)
{
    start();
    for (Draft& draft : m_drafts.list) {
        for (const std::uint32_t key : group.cases)
            draft.items.push_back({staticCaseItem, key, factor});
        if (group.name == "DL") {
            if (m_state.isSpecial()) {
                // Meant so: the token of the period coefficient shows where the vertical factor is expected, and the other way round.
                replaceAll(draft.text, "ZEL", tokenNumber(m_state.shortPeriodCoefficient));
                replaceAll(draft.text, "SPC", tokenNumber(m_state.verticalLoadFactor));
            }
            if (m_state.combType == CombType::vertical)
                replaceAll(draft.text, "VER", tokenNumber(factor));
        }
        if (group.name == "EV")
            replaceAll(draft.text, "APH", tokenNumber(m_state.alphaH));
    }
}

void RowExpansion::windForm(const _CCmd_Loadcase& group, double factor)
{
    start();
    replaceEach(group.cases.size(), [&](const Draft& draft, std::size_t from, Drafts& to) {
        const CutText text(draft.text, windToken);
        for (const std::uint32_t key : group.cases) {
            Draft made = copyOf(draft, 1);
            text.joinWith(m_state.names.at(key), made.text);
            made.items.push_back({staticCaseItem, key, factor});
            add(to, std::move(made), from, m_state.tracing ? Choice{key, -1, {}} : Choice{});
        }
    });
}

void RowExpansion::combinationForm(double factor)
{
    start();
    replaceEach(m_state.windCombinations.size(), [&](const Draft& draft, std::size_t from, Drafts& to) {
        const CutText text(draft.text, windToken);
        std::string shown;
        for (std::size_t entry = 0; entry < m_state.windCombinations.size(); ++entry) {
            const T_LCOM_D& wind = m_state.windCombinations[entry];
            Draft made = copyOf(draft, wind.items.size());
            shown.assign("(").append(wind.description).append(")");
            text.joinWith(shown, made.text);
            for (const T_LCOM_ITEM& item : wind.items)
                made.items.push_back({item.type, item.key, item.factor * factor});
            add(to, std::move(made), from, m_state.tracing ? Choice{0, static_cast<int>(entry), {}} : Choice{});
        }
    });
}

}  // namespace zel::loadcomb
