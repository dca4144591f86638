#include "cli/question.h"

#include "cli/explanation_printer.h"
#include "contract/letter_case.h"
#include "contract/tables/load_combination_table.h"
#include "loadcomb/generation/code_rows.h"
#include "loadcomb/tables/code_registry.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace zel::cli {

namespace {

std::string_view trimmed(std::string_view name)
{
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

bool sameName(std::string_view left, std::string_view right)
{
    return equalIgnoringCase(trimmed(left), trimmed(right));
}

/// The stored combination of that name.
std::optional<T_LCOM_D> storedNamed(int kind, const std::string& name)
{
    std::vector<Key> keys;
    std::vector<T_LCOM_D> records;
    CDataLcom().GetList(kind, keys, records);
    const auto found = std::find_if(records.begin(), records.end(), [&](const T_LCOM_D& record) { return sameName(record.name, name); });
    return found == records.end() ? std::nullopt : std::optional(*found);
}

[[noreturn]] void refuseName(const std::string& name, const std::vector<T_LCOM_D>& rows)
{
    std::vector<std::string_view> names;
    for (const T_LCOM_D& row : rows)
        names.push_back(trimmed(row.name));
    std::string sentence = "this run gives no combination \"" + name + "\"";
    if (rows.empty())
        throw std::runtime_error(sentence + "; it gives none.");
    throw std::runtime_error(sentence + "; it gives \"" + std::string(names.front()) + "\" to \"" + std::string(names.back()) + "\".");
}

Explanation explainNamed(const GenerateCombinations& job, const CLoadCombCtrl& control, const std::string& name)
{
    const std::vector<T_LCOM_D>& rows = control.rows();
    const auto explained = [&](auto row) { return explain(*control.run(), job.code, static_cast<std::size_t>(row - rows.begin())); };
    const auto named = std::find_if(rows.begin(), rows.end(), [&](const T_LCOM_D& row) { return sameName(row.name, name); });
    if (named != rows.end())
        return explained(named);
    const std::optional<T_LCOM_D> stored = job.replace ? std::nullopt : storedNamed(job.kind, name);
    if (!stored)
        refuseName(name, rows);
    const auto same = std::find_if(rows.begin(), rows.end(), [&](const T_LCOM_D& row) {
        return row.active == stored->active && row.items == stored->items && row.description == stored->description;
    });
    if (same == rows.end())
        throw std::runtime_error("\"" + name +
                                 "\" is stored, and this code with these options gives no combination like it: where it comes from is not known. "
                                 "With --replace it is told what a new run would store under that name.");
    Explanation made = explained(same);
    made.name = trimmed(stored->name);
    return made;
}

/// A name, or several with commas between them where none is a name as a whole.
std::vector<Explanation> explainAll(const GenerateCombinations& job, const CLoadCombCtrl& control)
{
    std::vector<Explanation> explanations;
    for (const std::string& text : job.explain) {
        const auto isText = [&](const T_LCOM_D& row) { return sameName(row.name, text); };
        const bool isName = std::any_of(control.rows().begin(), control.rows().end(), isText) || storedNamed(job.kind, text);
        for (std::size_t begin = 0; begin <= text.size();) {
            const std::size_t end = isName ? text.size() : std::min(text.find(',', begin), text.size());
            explanations.push_back(explainNamed(job, control, text.substr(begin, end - begin)));
            begin = end + 1;
        }
    }
    return explanations;
}

}  // namespace

void answerQuestion(const GenerateCombinations& job, CLoadCombCtrl& control, const Console& console, std::ostream& out)
{
    if (job.format != Format::table && job.format != Format::json)
        throw std::runtime_error("\"--explain\" and \"--why-not\" are answered as text or as --format json.");
    control.Trace();
    const bool any = control.Generate(job.replace ? CLoadCombCtrl::replaceMode : CLoadCombCtrl::addMode, job.code, CLoadCombCtrl::Storing::dryRun) != 0;
    console.throwFailures();
    if (!job.explain.empty()) {
        if (!any)
            throw std::runtime_error("\"" + job.model.string() + "\": this run gives no combination. " + console.told());
        const std::vector<Explanation> explanations = explainAll(job, control);
        if (job.format == Format::json)
            printExplanationsJson(explanations, out);
        for (std::size_t i = 0; job.format == Format::table && i < explanations.size(); ++i) {
            out << (i > 0 ? "\n" : "");
            printExplanation(explanations[i], out);
        }
    }
    if (!job.whyNot)
        return;
    const Omissions omissions = omissionsOf(*control.run(), job.code, static_cast<std::size_t>(loadcomb::countRows(*codes::findCode(job.code)->table)));
    if (job.format == Format::json)
        printOmissionsJson(omissions, out);
    else
        printOmissions(omissions, out);
}

}  // namespace zel::cli
