#include "cli/commands.h"
#include "cli/console.h"
#include "cli/explanation.h"
#include "cli/output.h"
#include "cli/scale_option.h"

#include "contract/nearest.h"
#include "contract/tables/load_combination_table.h"
#include "loadcomb/generation/load_comb_ctrl.h"
#include "loadcomb/tables/code_registry.h"
#include "platform/modeldb/model_document.h"
#include "platform/os/terminal.h"

#include <chrono>
#include <iostream>
#include <map>
#include <stdexcept>

namespace zel::cli {

namespace {

/// Shows the last line of the history on a terminal, once a run takes long.
class ProgressConsole final : public Console {
public:
    ~ProgressConsole() override
    {
        if (m_shown)
            std::cerr << '\r' << std::string(m_width, ' ') << '\r' << std::flush;
    }

    void history(const CString& line) override
    {
        if (!m_terminal || std::chrono::steady_clock::now() < m_next)
            return;
        m_next = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
        const std::size_t key = line.starts_with('[') ? line.find(']') + 1 : 0;
        const std::string text = line.substr(key, 79);
        m_width = std::max(m_width, text.size());
        m_shown = true;
        std::cerr << '\r' << text << std::string(m_width - text.size(), ' ') << std::flush;
    }

private:
    bool m_terminal = os::isErrorTerminal();
    bool m_shown = false;
    std::size_t m_width = 0;
    std::chrono::steady_clock::time_point m_next = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
};

void checkCode(const std::string& code)
{
    if (codes::findCode(code) != nullptr)
        return;
    std::vector<std::string_view> names;
    for (const codes::CodeEntry& entry : codes::codeRegistry)
        names.push_back(entry.name);
    throw std::runtime_error("there is no design code \"" + code + "\". The nearest are " + quotedList(nearestNames(code, names, 3)) +
                             "; \"zel codes\" lists all.");
}

void setOptions(const GenerateCombinations& job, CLoadCombCtrl& control)
{
    std::map<std::uint32_t, double> factors;
    std::map<std::uint32_t, std::uint32_t> partners;
    for (const std::string& text : job.scales) {
        const ScaleOption scale = readScale(text);
        factors[scale.loadCase] = scale.factor;
        partners[scale.loadCase] = scale.partner;
    }
    control.SetKind(job.kind);
    control.SetScaleFactors(factors);
    control.SetEccentricCases(partners);
    control.SetOrthoOption(job.orthogonal ? 1 : 0);
    control.SetCombType(static_cast<codes::CombType>(job.combType));
    control.SetAlphaH(job.alphaH);
}

std::vector<PrintedCombination> numbered(const std::vector<T_LCOM_D>& rows, int kind, int before)
{
    std::vector<PrintedCombination> printed;
    printed.reserve(rows.size());
    int number = before;
    for (const T_LCOM_D& row : rows)
        printed.push_back({&row, kind, ++number});
    return printed;
}

void print(const GenerateCombinations& job, const CLoadCombCtrl& control, bool ok, const Console& console, int before, std::ostream& out)
{
    if (!job.explain.empty())
        explainCombination(*control.run(), job.code, job.explain, out);
    if (job.whyNot)
        explainMissing(*control.run(), job.code, out);
    if (!job.explain.empty() || job.whyNot)
        return;
    const std::vector<PrintedCombination> rows = numbered(control.rows(), job.kind, before);
    if (job.format == Format::json)
        printResultJson(ok, console.keys(), rows, out);
    else if (ok)
        printCombinations(job.format, rows, out);
}

}  // namespace

int generateCombinations(const GenerateCombinations& job)
{
    checkCode(job.code);
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model);
    Output output(job.out);
    ProgressConsole console;
    CLoadCombCtrl control;
    setOptions(job, control);
    if (!job.explain.empty() || job.whyNot)
        control.Trace();
    const int before = job.replace ? 0 : CDataLcom().GetCount(job.kind);
    const bool ok = control.Generate(job.replace ? CLoadCombCtrl::replaceMode : CLoadCombCtrl::addMode, job.code,
                                     job.dryRun ? CLoadCombCtrl::Storing::dryRun : CLoadCombCtrl::Storing::storeAndKeep) != 0;
    print(job, control, ok, console, before, output.stream());
    if (ok || job.format == Format::json || job.whyNot)
        output.finish();
    if (ok || job.whyNot)
        return succeeded;
    const std::string told = console.told();
    throw std::runtime_error("\"" + job.model.string() + "\": no combination was stored. " + (told.empty() ? "The model gave no reason." : told) +
                             (job.kind != 1 ? " Only kind 1 has design codes." : " \"--why-not\" tells what each row of the code lacks."));
}

}  // namespace zel::cli
