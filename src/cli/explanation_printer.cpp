#include "cli/explanation_printer.h"

#include "cli/shortest.h"
#include "cli/shown_text.h"
#include "platform/modeldb/json_text.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

namespace zel::cli {

namespace {

/// "1.0" rather than "1": a number that is a factor. Ten digits leave out what the last bit of a product shows.
std::string factorText(double value)
{
    const std::string text = rounded(value, 10);
    return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

std::string rowName(const ExplainedRow& row)
{
    return "row " + (row.block.empty() ? "\"" + row.formula + "\"" : row.block) + (row.service ? " (service)" : " (strength)") +
           (row.clause.empty() ? "" : ", clause " + row.clause);
}

void printChoice(const ExplainedChoice& choice, std::ostream& out)
{
    if (choice.windEntry > 0)
        out << "Wind       entry " << choice.windEntry << " of the wind sets: " << shownText(choice.wind) << '\n';
    else if (!choice.wind.empty())
        out << "Wind       case " << shownText(choice.wind) << '\n';
    for (const ExplainedEarthquake& chosen : choice.earthquakes) {
        out << "Earthquake " << shownText(chosen.loadCase);
        if (choice.earthquakes.size() > 1)
            out << " with " << factorText(chosen.coefficient) << " (100:30 rule)";
        if (!chosen.partner.empty())
            out << (chosen.subtracted ? ", minus " : ", plus ") << shownText(chosen.partner) << " (accidental eccentricity)";
        out << '\n';
    }
}

void printFactors(const std::vector<ExplainedFactor>& factors, std::ostream& out)
{
    std::size_t nameWidth = 0;
    std::size_t factorWidth = 0;
    for (const ExplainedFactor& each : factors) {
        nameWidth = std::max(nameWidth, characterCount(shownText(each.loadCase)));
        factorWidth = std::max(factorWidth, factorText(each.factor).size());
    }
    out << "Factors\n";
    for (const ExplainedFactor& each : factors) {
        const std::string name = shownText(each.loadCase);
        const std::string factor = factorText(each.factor);
        out << "  " << name << std::string(nameWidth - characterCount(name) + 2, ' ') << std::string(factorWidth - factor.size(), ' ') << factor;
        std::string numbers;
        std::string meaning;
        for (const Multiplier& multiplier : each.product) {
            numbers += (numbers.empty() ? "" : " x ") + factorText(multiplier.number);
            meaning += (meaning.empty() ? "" : " x ") + std::string(multiplier.what);
        }
        out << " = " << numbers << "    (" << meaning << (each.note.empty() ? "" : "; " + each.note) << ")\n";
    }
}

Json rowJson(const ExplainedRow& row)
{
    Json made{{"block", row.block}, {"flag", row.service ? "service" : "strength"}, {"formula", row.formula}};
    if (!row.clause.empty())
        made["clause"] = row.clause;
    return made;
}

Json choiceJson(const ExplainedChoice& choice)
{
    Json made = Json::object();
    if (choice.windEntry > 0)
        made["windEntry"] = choice.windEntry;
    if (!choice.wind.empty())
        made["wind"] = choice.wind;
    for (const ExplainedEarthquake& chosen : choice.earthquakes) {
        Json earthquake{{"case", chosen.loadCase}, {"coefficient", chosen.coefficient}};
        if (!chosen.partner.empty()) {
            earthquake["partner"] = chosen.partner;
            earthquake["sign"] = chosen.subtracted ? -1 : 1;
        }
        made["earthquakes"].push_back(earthquake);
    }
    return made;
}

Json factorJson(const ExplainedFactor& factor)
{
    Json product = Json::array();
    for (const Multiplier& multiplier : factor.product)
        product.push_back({{"number", multiplier.number}, {"what", multiplier.what}});
    Json made{{"key", factor.key}, {"case", factor.loadCase}, {"factor", factor.factor}, {"product", product}};
    if (!factor.note.empty())
        made["note"] = factor.note;
    return made;
}

Json explanationJson(const Explanation& explanation)
{
    Json choices = Json::array();
    for (const ExplainedChoice& choice : explanation.choices)
        choices.push_back(choiceJson(choice));
    Json factors = Json::array();
    for (const ExplainedFactor& factor : explanation.factors)
        factors.push_back(factorJson(factor));
    Json again = Json::array();
    for (const ExplainedRow& row : explanation.givenAgainBy)
        again.push_back(rowJson(row));
    return {{"name", explanation.name}, {"description", explanation.description},
            {"code", explanation.code}, {"edition", explanation.edition}, {"row", rowJson(explanation.row)},
            {"choices", choices},       {"factors", factors},
            {"givenAgainBy", again}};
}

}  // namespace

void printExplanation(const Explanation& explanation, std::ostream& out)
{
    out << shownText(explanation.name) << ": " << shownText(explanation.description) << '\n'
        << "Code       " << explanation.code << ", " << rowName(explanation.row) << '\n'
        << "Edition    " << explanation.edition << '\n'
        << "Formula    " << explanation.row.formula << '\n';
    for (const ExplainedChoice& choice : explanation.choices)
        printChoice(choice, out);
    printFactors(explanation.factors, out);
    for (const ExplainedRow& row : explanation.givenAgainBy)
        out << "Given again by " << rowName(row) << ": " << row.formula << '\n';
}

void printOmissions(const Omissions& omissions, std::ostream& out)
{
    out << omissions.rows.size() << " of " << omissions.askedRows << " rows of " << omissions.code;
    if (omissions.askedRows < omissions.printedRows)
        out << " that this model and type ask for (of " << omissions.printedRows << ")";
    out << " gave nothing" << (omissions.rows.empty() ? "." : ":") << '\n';
    for (const Omissions::Row& each : omissions.rows)
        out << "  " << rowName(each.row) << "  " << each.row.formula << "\n      " << each.reason << '\n';
    out << (omissions.idleCases.empty() ? "Every load case stands in a combination.\n" : "Load cases in no combination:\n");
    for (const std::string& idle : omissions.idleCases)
        out << "  " << shownText(idle) << '\n';
}

void printExplanationsJson(const std::vector<Explanation>& explanations, std::ostream& out)
{
    Json list = Json::array();
    for (const Explanation& explanation : explanations)
        list.push_back(explanationJson(explanation));
    out << printJson(list) << '\n';
}

void printOmissionsJson(const Omissions& omissions, std::ostream& out)
{
    Json rows = Json::array();
    for (const Omissions::Row& each : omissions.rows) {
        Json row = rowJson(each.row);
        row["reason"] = each.reason;
        rows.push_back(row);
    }
    out << printJson({{"code", omissions.code},
                      {"printedRows", omissions.printedRows},
                      {"askedRows", omissions.askedRows},
                      {"rowsWithoutResult", rows},
                      {"idleCases", omissions.idleCases}})
        << '\n';
}

}  // namespace zel::cli
