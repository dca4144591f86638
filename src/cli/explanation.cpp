#include "cli/explanation.h"

#include "loadcomb/tables/code_registry.h"

#include <algorithm>
#include <set>
#include <utility>

namespace zel::cli {

namespace {

using loadcomb::Choice;
using loadcomb::EarthquakeChoice;
using loadcomb::Generator;
using loadcomb::Origin;
using loadcomb::RowOutcome;
using loadcomb::RowResult;

/// One item of a combination with the numbers that were multiplied.
struct Term {
    std::uint32_t key = 0;
    std::vector<Multiplier> product;
    const char* note = "";
};

class TermsOf {
public:
    TermsOf(const Generator& run, const Origin& origin) : m_run(run), m_origin(origin) {}

    std::vector<Term> list()
    {
        for (const auto& [group, factor] : m_run.outcomes()[m_origin.row].source.factors)
            addGroup(group, factor);
        for (const T_LCOM_ITEM& item : m_origin.extras)
            m_terms.push_back({item.key, {{item.factor, "of the underground set"}}, ""});
        return std::move(m_terms);
    }

private:
    void addGroup(const std::string& name, double factor)
    {
        const auto group = std::find_if(m_run.groups().begin(), m_run.groups().end(), [&](const _CCmd_Loadcase& each) { return each.name == name; });
        if (group == m_run.groups().end() || !group->hasCases())
            return;
        if (name == "WL")
            addWind(nextChoice(), factor);
        else if (name == "EL")
            addEarthquakes(nextChoice(), factor);
        else
            for (const std::uint32_t key : group->cases)
                m_terms.push_back({key, {{factor, "row"}}, ""});
    }

    void addWind(const Choice& choice, double factor)
    {
        if (choice.windEntry < 0) {
            m_terms.push_back({choice.windCase, {{factor, "row"}}, ""});
            return;
        }
        for (const T_LCOM_ITEM& item : m_run.state().windCombinations[static_cast<std::size_t>(choice.windEntry)].items)
            m_terms.push_back({item.key, {{factor, "row"}, {item.factor, "wind set"}}, ""});
    }

    void addEarthquakes(const Choice& choice, double factor)
    {
        const bool orthogonal = choice.earthquakes.size() > 1;
        for (const EarthquakeChoice& chosen : choice.earthquakes) {
            Term term{chosen.key, {{factor, "row"}}, ""};
            if (orthogonal)
                term.product.push_back({chosen.coefficient, "100:30 rule"});
            term.product.push_back({chosen.scale, "scale factor"});
            term.product.push_back({chosen.overstrength, "over-strength"});
            m_terms.push_back(term);
            if (chosen.partner == 0)
                continue;
            term.key = chosen.partner;
            term.note = "accidental eccentricity";
            if (chosen.partnerSign < 0)
                term.product.push_back({-1.0, "subtracted"});
            m_terms.push_back(term);
        }
    }

    const Choice& nextChoice()
    {
        static const Choice none;
        return m_next < m_origin.choices.size() ? m_origin.choices[m_next++] : none;
    }

    const Generator& m_run;
    const Origin& m_origin;
    std::size_t m_next = 0;
    std::vector<Term> m_terms;
};

std::string caseName(const Generator& run, std::uint32_t key)
{
    const auto found = run.state().names.find(key);
    return found != run.state().names.end() ? found->second : "#" + std::to_string(key);
}

ExplainedRow rowOf(const RowOutcome& outcome)
{
    return {outcome.source.block, outcome.source.flag == codes::service, outcome.source.text, outcome.source.clause};
}

std::vector<ExplainedFactor> factorsOf(const Generator& run, const Origin& origin, const T_LCOM_D& record)
{
    const std::vector<Term> terms = TermsOf(run, origin).list();
    std::vector<ExplainedFactor> factors;
    for (std::size_t i = 0; i < record.items.size(); ++i) {
        const T_LCOM_ITEM& item = record.items[i];
        factors.push_back({item.key, caseName(run, item.key), item.factor, {}, {}});
        if (i < terms.size()) {
            factors.back().product = terms[i].product;
            factors.back().note = terms[i].note;
        }
    }
    return factors;
}

std::vector<ExplainedChoice> choicesOf(const Generator& run, const Origin& origin)
{
    std::vector<ExplainedChoice> choices;
    for (const Choice& choice : origin.choices) {
        ExplainedChoice made;
        if (choice.windEntry >= 0) {
            made.windEntry = choice.windEntry + 1;
            made.wind = run.state().windCombinations[static_cast<std::size_t>(choice.windEntry)].description;
        } else if (choice.windCase != 0) {
            made.wind = caseName(run, choice.windCase);
        }
        for (const EarthquakeChoice& chosen : choice.earthquakes)
            made.earthquakes.push_back(
                {caseName(run, chosen.key), chosen.coefficient, chosen.partner != 0 ? caseName(run, chosen.partner) : std::string(), chosen.partnerSign < 0});
        choices.push_back(std::move(made));
    }
    return choices;
}

const char* reason(RowResult result)
{
    switch (result) {
    case RowResult::gave:
        return "gave combinations";
    case RowResult::noFactors:
        return "every factor came out as 0";
    case RowResult::groupWithoutCases:
        return "no load case of";
    case RowResult::setWithoutCases:
        return "no load case of";
    case RowResult::noOrthogonalPair:
        return "no earthquake case has a partner at right angles";
    case RowResult::onlyDuplicates:
        return "rows before it give the same combinations";
    }
    return "";
}

/// "\"EP\" or \"WP\"" of "EP, WP".
std::string groupList(const std::string& groups)
{
    std::string list = groups;
    for (std::size_t comma = list.find(", "); comma != std::string::npos; comma = list.find(", ", comma))
        list.replace(comma, 2, "\" or \"");
    return list.empty() ? list : " \"" + list + "\"";
}

}  // namespace

Explanation explain(const Generator& run, const std::string& code, std::size_t index)
{
    const T_LCOM_D& record = run.rows()[index];
    const Origin& origin = run.origins()[index];
    Explanation made{record.name, record.description, code, std::string(codes::findCode(code)->edition), rowOf(run.outcomes()[origin.row]), choicesOf(run, origin), factorsOf(run, origin, record), {}};
    made.name.erase(made.name.find_last_not_of(' ') + 1);
    for (const std::size_t again : std::set<std::size_t>(origin.absorbedRows.begin(), origin.absorbedRows.end()))
        made.givenAgainBy.push_back(rowOf(run.outcomes()[again]));
    return made;
}

Omissions omissionsOf(const Generator& run, const std::string& code, std::size_t printedRows)
{
    Omissions found{code, printedRows, run.outcomes().size(), {}, {}};
    for (const RowOutcome& row : run.outcomes()) {
        if (row.result != RowResult::gave)
            found.rows.push_back({rowOf(row), reason(row.result) + groupList(row.missing)});
    }
    std::set<std::uint32_t> used;
    for (const T_LCOM_D& record : run.rows()) {
        for (const T_LCOM_ITEM& item : record.items)
            used.insert(item.key);
    }
    std::vector<std::pair<std::uint32_t, std::string>> idle;
    for (const auto& [key, caseText] : run.state().names) {
        if (!used.contains(key))
            idle.emplace_back(key, caseText);
    }
    std::sort(idle.begin(), idle.end());
    for (auto& [key, caseText] : idle)
        found.idleCases.push_back(std::move(caseText));
    return found;
}

}  // namespace zel::cli
