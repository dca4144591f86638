#include "loadcomb/generation/generator.h"

#include "contract/design_kind.h"
#include "contract/long_run.h"
#include "loadcomb/generation/number_token.h"
#include "loadcomb/generation/row_text.h"
#include "loadcomb/generation/wind_combinations.h"
#include "loadcomb/tables/code_registry.h"

#include <algorithm>
#include <cmath>

namespace zel::loadcomb {

namespace {

constexpr int flagWithTens = 11;

/// The row's own copies of the groups that have a factor other than 0, with their factors.
struct RowGroups {
    std::vector<_CCmd_Loadcase> groups;
    std::vector<double> factors;

    explicit RowGroups(std::span<const RowFactor> pairs)
    {
        groups.reserve(pairs.size());
        factors.reserve(pairs.size());
        for (const RowFactor& pair : pairs) {
            if (pair.factor == 0.0 || pair.group == nullptr)
                continue;
            groups.push_back(*pair.group);
            factors.push_back(pair.factor);
        }
    }

    /// The factor of the last group of that name; 0 if there is none.
    [[nodiscard]] double factorOf(std::string_view name) const
    {
        double found = 0.0;
        for (std::size_t i = 0; i < groups.size(); ++i) {
            if (groups[i].name == name)
                found = factors[i];
        }
        return found;
    }
};

/// |LL factor / EL factor|, or 1.0 if one of them is 0.
double undergroundRatio(const RowGroups& row)
{
    const double live = row.factorOf("LL");
    const double earthquake = row.factorOf("EL");
    return std::abs(live * earthquake) > 0.0 ? std::abs(live / earthquake) : 1.0;
}

/// Items that a record of the row holds at most before the underground extras.
std::size_t expectedItems(const RowGroups& row, const ExpansionState& state)
{
    constexpr std::size_t twoEccentricMembers = 4;
    std::size_t count = 0;
    for (const _CCmd_Loadcase& group : row.groups) {
        if (group.name == "WLCB") {
            std::size_t longest = 0;
            for (const T_LCOM_D& wind : state.windCombinations)
                longest = std::max(longest, wind.items.size());
            count += longest;
        } else if (group.name == "EL" && group.hasCases()) {
            count += state.orthoOption ? (state.eccentricCases.empty() ? 2 : twoEccentricMembers) : (state.eccentricCases.empty() ? 1 : 2);
        } else {
            count += group.name == "WL" ? 1 : group.cases.size();
        }
    }
    return count;
}

std::string groupsOfLevel(const std::vector<_CCmd_Loadcase>& groups, int level)
{
    std::string names;
    for (const _CCmd_Loadcase& group : groups) {
        if (group.isInLevel(level))
            names.append(names.empty() ? "" : ", ").append(group.name);
    }
    return names;
}

template <class Entry> KeyFactors overstrengthOf(const std::vector<Entry>& entries)
{
    KeyFactors factors;
    for (const Entry& entry : entries)
        factors[entry.loadCaseKey] = entry.factor;
    return factors;
}

}  // namespace

Generator::Generator(GeneratorModel model, GeneratorOptions options) : m_model(std::move(model)), m_kind(options.kind), m_loadCode(options.loadCode)
{
    m_state.orthoOption = options.orthoOption;
    m_state.combType = options.combType;
    m_state.alphaH = options.alphaH;
    m_state.scaleFactors = std::move(options.scaleFactors);
    for (const auto& [key, partner] : options.eccentricCases) {
        if (partner != 0)
            m_state.eccentricCases.emplace(key, partner);
    }
    for (const LoadCase& loadCase : m_model.cases)
        m_state.names.emplace(loadCase.key, loadCase.name);
    m_groups = sortIntoGroups(m_model.cases);
    start(0, 0);
}

void Generator::start(int rowCount, std::int64_t lastNumber)
{
    m_list.reset(m_kind, rowCount, lastNumber);
    m_origins.clear();
    m_outcomes.clear();
}

bool Generator::dispatch(std::string_view codeName)
{
    if (m_model.cases.empty())
        return false;
    readOrthogonalPairs();
    const codes::CodeEntry* code = m_kind == static_cast<int>(DesignKind::general) ? codes::findCode(codeName) : nullptr;
    if (code != nullptr)
        runTable(m_loadCode == 0 && code->tableOfLoadCode0 != nullptr ? *code->tableOfLoadCode0 : *code->table);
    return true;
}

void Generator::runTable(const codes::CodeTable& table)
{
    for (const codes::Part& part : table.parts) {
        if (codes::reads(part.reads, codes::Reads::windSets))
            readWindSets();
        if (codes::reads(part.reads, codes::Reads::undergroundSets))
            readUndergroundSets();
        if (codes::reads(part.reads, codes::Reads::seismicFactors))
            readSeismicFactors();

        const codes::Facts facts = factsOf(m_groups) | typeFact(m_state.combType);
        if (!part.when.met(facts))
            continue;
        const RowValues values{m_state.alphaH, m_state.shortPeriodCoefficient, m_state.verticalLoadFactor, m_state.verticalForceFactor};
        std::vector<RowFactor> pairs;
        writeRows(part, table.wind, facts, values, [&](const WrittenRow& row) {
            pairs.clear();
            for (const WrittenRow::Factor& factor : row.factors)
                pairs.push_back({factor.factor, factor.group.empty() ? nullptr : &m_groups[static_cast<std::size_t>(codes::wordOf(factor.group))]});
            addRow(row.flag, row.text, pairs, {row.block, row.clause});
        });
    }
}

void Generator::readOrthogonalPairs()
{
    m_state.orthoPairs.clear();
    if (!m_model.orthogonal)
        return;
    for (const T_LCOE_BASE& pair : m_model.orthogonal->pairs) {
        m_state.orthoPairs[pair.case1] = pair.case2;
        m_state.orthoPairs[pair.case2] = pair.case1;
    }
}

void Generator::readWindSets()
{
    m_state.windCombinations = m_model.windSets ? makeWindCombinations(*m_model.windSets, m_model.cases, m_kind) : std::vector<T_LCOM_D>();
}

void Generator::readUndergroundSets()
{
    if (!m_state.isUnderground())
        return;
    m_state.scaleFactors.clear();
    m_state.eccentricCases.clear();
    if (!m_model.underground)
        return;
    for (const T_LCUG_SF& entry : m_model.underground->scaleUps) {
        m_state.scaleFactors[entry.loadCaseKey] = entry.factor;
        if (m_state.exists(entry.eccentricKey))
            m_state.eccentricCases[entry.loadCaseKey] = entry.eccentricKey;
    }
    for (const T_LCUG_SEIS& entry : m_model.underground->groups) {
        const std::pair place{entry.loadCaseKey, entry.direction == 0 ? 1 : -1};
        if (!entry.staticKeys.empty())
            m_state.undergroundByCase[place].insert(entry.staticKeys.begin(), entry.staticKeys.end());
        if (!entry.seismicKeys.empty())
            m_state.undergroundByCaseOther[place].insert(entry.seismicKeys.begin(), entry.seismicKeys.end());
    }
}

void Generator::readSeismicFactors()
{
    CombType& type = m_state.combType;
    if ((type == CombType::special || type == CombType::vertical) && m_model.seismic) {
        m_state.shortPeriodCoefficient = m_model.seismic->shortPeriodCoefficient;
        m_state.verticalLoadFactor = m_model.seismic->verticalLoadFactor;
        m_state.verticalForceFactor = m_model.seismic->verticalForceFactor;
        m_state.overstrength = overstrengthOf(m_model.seismic->overStrengthFactors);
    }
    if (type == CombType::undergroundSpecial && m_model.undergroundSeismic) {
        m_state.shortPeriodCoefficient = m_model.undergroundSeismic->shortPeriodCoefficient;
        m_state.verticalLoadFactor = m_model.undergroundSeismic->verticalLoadFactor;
        m_state.overstrength = overstrengthOf(m_model.undergroundSeismic->overStrengthFactors);
    }
    const bool noSpectrum = m_state.shortPeriodCoefficient * m_state.verticalLoadFactor == 0.0;
    if (type == CombType::special && noSpectrum)
        type = CombType::strength;
    else if (type == CombType::vertical && m_state.verticalForceFactor == 0.0)
        type = CombType::strength;
    else if (type == CombType::undergroundSpecial && noSpectrum)
        type = CombType::underground;
}

void Generator::noteOutcome(RowResult result, std::string missing)
{
    m_outcomes.back().result = result;
    m_outcomes.back().missing = std::move(missing);
}

void Generator::addRow(int serviceOrStrength, std::string_view rowText, std::span<const RowFactor> pairs)
{
    std::string text(rowText);
    int flag = serviceOrStrength;
    if (flag >= flagWithTens) {
        const int tens = flag / 10 % 10;
        if (tens == 1 || tens == 3)
            replaceAll(text, "LR", "SL");
        flag %= 10;
    }
    addRow(flag == 0 ? codes::service : codes::strength, text, pairs);
}

void Generator::addRow(codes::Flag flag, std::string_view rowText, std::span<const RowFactor> pairs, const RowPlace& place)
{
    RowGroups row(pairs);
    m_state.serviceRow = flag == codes::service;
    RowOutcome& outcome = m_outcomes.emplace_back();
    outcome.source = {std::string(place.block), std::string(place.clause), std::string(rowText), flag, {}};
    outcome.source.factors.reserve(row.groups.size());
    for (std::size_t i = 0; i < row.groups.size(); ++i)
        outcome.source.factors.emplace_back(row.groups[i].name, row.factors[i]);
    if (row.groups.empty())
        return noteOutcome(RowResult::noFactors);

    std::string text(rowText);
    m_state.extraItems.clear();
    m_state.underground = m_state.isUnderground() ? undergroundRatio(row) : 1.0;

    const int level = analyseText(text, row.groups);
    const Feasibility feasibility = testFeasibility(text, row.groups, level);
    if (!feasibility.feasible) {
        if (feasibility.missing != nullptr)
            return noteOutcome(RowResult::groupWithoutCases, feasibility.missing->name);
        return noteOutcome(RowResult::setWithoutCases, groupsOfLevel(row.groups, feasibility.emptyLevel));
    }

    if (!m_state.windCombinations.empty()) {
        for (_CCmd_Loadcase& group : row.groups) {
            if (group.name == "WL")
                group.name = "WLCB";
        }
    }
    RowExpansion expansion(m_state, std::move(text));
    expansion.expectItems(expectedItems(row, m_state));
    for (std::size_t i = 0; i < row.groups.size(); ++i)
        expansion.extend(row.groups[i], row.factors[i]);

    Drafts& drafts = expansion.drafts();
    if (drafts.list.empty())
        return noteOutcome(drafts.started ? RowResult::noOrthogonalPair : RowResult::setWithoutCases);
    const SharedRewriting rewriting(drafts.list.front().text, drafts.list.back().text);
    for (std::size_t i = 0; i < drafts.list.size(); ++i)
        finish(std::move(drafts.list[i]), flag == codes::strength, m_state.tracing ? std::move(drafts.choices[i]) : Choices(), rewriting);
    if (m_outcomes.back().combinations == 0)
        noteOutcome(RowResult::onlyDuplicates);
}

void Generator::finish(Draft&& draft, bool strength, Choices choices, const SharedRewriting& rewriting)
{
    T_LCOM_D record;
    record.number = draft.number;
    record.active = strength ? 1 : 0;
    record.description = std::move(draft.text);
    record.items = std::move(draft.items);
    rewriting.rewrite(record.description);
    if (draft.number != 0)
        appendExtras(record);

    reportRun(RunPhase::generating, rows().size() + 1);
    const std::size_t row = m_outcomes.size() - 1;
    const std::size_t extras = draft.number != 0 ? m_state.extraItems.at(draft.number).size() : 0;
    const std::size_t repeated = m_list.store(std::move(record));
    ++(repeated == CombinationList::stored ? m_outcomes.back().combinations : m_outcomes.back().duplicates);
    if (!m_state.tracing)
        return;
    if (repeated != CombinationList::stored) {
        m_origins[repeated].absorbedRows.push_back(row);
        return;
    }
    const std::vector<T_LCOM_ITEM>& items = rows().back().items;
    m_origins.push_back({row, std::move(choices), {items.end() - static_cast<std::ptrdiff_t>(extras), items.end()}, {}});
}

void Generator::appendExtras(T_LCOM_D& record) const
{
    for (const T_LCOM_ITEM& item : m_state.extraItems.at(record.number)) {
        record.items.push_back(item);
        record.description.append(" + ").append(generalText(item.factor)).append(m_state.names.at(item.key));  // no factor of them is below 0
    }
}

}  // namespace zel::loadcomb
