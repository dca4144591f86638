#include "cli/explanation.h"

#include "cli/shortest.h"

#include <algorithm>
#include <ostream>
#include <set>
#include <stdexcept>
#include <vector>

namespace zel::cli {

namespace {

using loadcomb::Choice;
using loadcomb::EarthquakeChoice;
using loadcomb::Generator;
using loadcomb::Origin;
using loadcomb::RowOutcome;
using loadcomb::RowResult;
using loadcomb::RowSource;

/// "1.0" rather than "1": a number that is a factor. Ten digits leave out what the last bit of a product shows.
std::string factorText(double value)
{
    const std::string text = rounded(value, 10);
    return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

std::string trimmed(std::string name)
{
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

std::string rowName(const RowSource& source)
{
    return "row " + (source.block.empty() ? "\"" + source.text + "\"" : source.block) + (source.flag == codes::service ? " (service)" : " (strength)");
}

/// One item of a combination with the numbers that were multiplied.
struct Term {
    std::uint32_t key = 0;
    std::vector<std::pair<double, const char*>> product;
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
                term.product.emplace_back(chosen.coefficient, "100:30 rule");
            term.product.emplace_back(chosen.scale, "scale factor");
            term.product.emplace_back(chosen.overstrength, "over-strength");
            m_terms.push_back(term);
            if (chosen.partner == 0)
                continue;
            term.key = chosen.partner;
            term.note = "accidental eccentricity";
            if (chosen.partnerSign < 0)
                term.product.emplace_back(-1.0, "subtracted");
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

void printFactors(const Generator& run, const Origin& origin, const T_LCOM_D& record, std::ostream& out)
{
    const std::vector<Term> terms = TermsOf(run, origin).list();
    std::vector<std::string> names;
    std::vector<std::string> factors;
    std::size_t nameWidth = 0;
    std::size_t factorWidth = 0;
    for (const T_LCOM_ITEM& item : record.items) {
        names.push_back(caseName(run, item.key));
        factors.push_back(factorText(item.factor));
        nameWidth = std::max(nameWidth, names.back().size());
        factorWidth = std::max(factorWidth, factors.back().size());
    }
    out << "Factors\n";
    for (std::size_t i = 0; i < record.items.size(); ++i) {
        out << "  " << names[i] << std::string(nameWidth - names[i].size() + 2, ' ') << std::string(factorWidth - factors[i].size(), ' ') << factors[i];
        std::string numbers;
        std::string meaning;
        for (const auto& [number, what] : i < terms.size() ? terms[i].product : std::vector<std::pair<double, const char*>>()) {
            numbers += (numbers.empty() ? "" : " x ") + factorText(number);
            meaning += (meaning.empty() ? "" : " x ") + std::string(what);
        }
        out << " = " << numbers << "    (" << meaning << (i < terms.size() && *terms[i].note != '\0' ? std::string("; ") + terms[i].note : "") << ")\n";
    }
}

void printChoices(const Generator& run, const Origin& origin, std::ostream& out)
{
    for (const Choice& choice : origin.choices) {
        if (choice.windEntry >= 0)
            out << "Wind       entry " << choice.windEntry + 1
                << " of the wind sets: " << run.state().windCombinations[static_cast<std::size_t>(choice.windEntry)].description << '\n';
        else if (choice.windCase != 0)
            out << "Wind       case " << caseName(run, choice.windCase) << '\n';
        for (const EarthquakeChoice& chosen : choice.earthquakes) {
            out << "Earthquake " << caseName(run, chosen.key);
            if (choice.earthquakes.size() > 1)
                out << " with " << factorText(chosen.coefficient) << " (100:30 rule)";
            if (chosen.partner != 0)
                out << (chosen.partnerSign < 0 ? ", minus " : ", plus ") << caseName(run, chosen.partner) << " (accidental eccentricity)";
            out << '\n';
        }
    }
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

void explainCombination(const Generator& run, const std::string& code, const std::string& name, std::ostream& out)
{
    const std::vector<T_LCOM_D>& rows = run.rows();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const T_LCOM_D& row) { return trimmed(row.name) == trimmed(name); });
    if (found == rows.end())
        throw std::runtime_error(
            "this run gives no combination \"" + name + "\"" +
            (rows.empty() ? "; it gives none." : "; it gives \"" + trimmed(rows.front().name) + "\" to \"" + trimmed(rows.back().name) + "\"."));
    const Origin& origin = run.origins()[static_cast<std::size_t>(found - rows.begin())];
    const RowOutcome& row = run.outcomes()[origin.row];
    out << trimmed(found->name) << ": " << found->description << '\n'
        << "Code       " << code << ", " << rowName(row.source) << '\n'
        << "Formula    " << row.source.text << '\n';
    printChoices(run, origin, out);
    printFactors(run, origin, *found, out);
    std::set<std::size_t> absorbed(origin.absorbedRows.begin(), origin.absorbedRows.end());
    for (const std::size_t index : absorbed)
        out << "Given again by " << rowName(run.outcomes()[index].source) << ": " << run.outcomes()[index].source.text << '\n';
}

void explainMissing(const Generator& run, const std::string& code, std::ostream& out)
{
    std::size_t silent = 0;
    for (const RowOutcome& row : run.outcomes())
        silent += row.result != RowResult::gave ? 1U : 0U;
    out << silent << " of " << run.outcomes().size() << " rows of " << code << " gave nothing" << (silent != 0 ? ":" : ".") << '\n';
    for (const RowOutcome& row : run.outcomes()) {
        if (row.result == RowResult::gave)
            continue;
        out << "  " << rowName(row.source) << "  " << row.source.text << "\n      " << reason(row.result) << groupList(row.missing) << '\n';
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
    out << (idle.empty() ? "Every load case stands in a combination.\n" : "Load cases in no combination:\n");
    for (const auto& [key, caseText] : idle)
        out << "  " << caseText << '\n';
}

}  // namespace zel::cli
