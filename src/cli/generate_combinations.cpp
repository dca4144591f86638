#include "cli/commands.h"
#include "cli/console.h"
#include "cli/job_checks.h"
#include "cli/output.h"
#include "cli/question.h"
#include "cli/run_monitor.h"
#include "cli/scale_option.h"

#include "contract/change_scope.h"
#include "contract/tables/load_combination_table.h"
#include "loadcomb/generation/load_comb_ctrl.h"
#include "platform/modeldb/model_document.h"

#include <stdexcept>

namespace zel::cli {

namespace {

void setOptions(const GenerateCombinations& job, CLoadCombCtrl& control)
{
    const ScaleOptions scales = readScales(job.scales);
    control.SetKind(job.kind);
    control.SetScaleFactors(scales.factors);
    control.SetEccentricCases(scales.partners);
    control.SetOrthoOption(job.orthogonal ? 1 : 0);
    control.SetCombType(static_cast<codes::CombType>(job.combType));
    control.SetAlphaH(job.alphaH);
}

void print(const GenerateCombinations& job, const CLoadCombCtrl& control, bool ok, const Console& console, int before, Output& output)
{
    const EachCombination rows = [&](const std::function<void(const PrintedCombination&)>& take) {
        int number = before;
        for (const T_LCOM_D& row : control.rows())
            take({&row, job.kind, ++number});
    };
    if (job.format == Format::json)
        printResultJson(ok, console.keys(), rows, output.stream());
    else if (ok)
        printCombinations(job.format, rows, output.stream());
    if (!output.stream().flush())
        output.finish();  // it tells what is wrong
}

[[noreturn]] void refuse(const GenerateCombinations& job, const Console& console)
{
    const std::string told = console.told();
    throw std::runtime_error("\"" + job.model.string() + "\": no combination was stored. " + (told.empty() ? "The model gave no reason." : told) +
                             (job.kind != 1 ? " Only kind 1 has design codes." : " \"--why-not\" tells what each row of the code lacks."));
}

}  // namespace

// The combinations are stored only once the result has been written: who is told of a failure can simply run the job again.
int generateCombinations(const GenerateCombinations& job)
{
    requireCode(job.code);
    requireAlphaH(job.alphaH);
    const RunMonitor monitor;
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model, job.dryRun ? ModelFile::Access::readOnly : ModelFile::Access::write);
    Output output(job.out);
    Console console;
    CLoadCombCtrl control;
    setOptions(job, control);
    if (!job.explain.empty() || job.whyNot) {
        answerQuestion(job, control, console, output.stream());
        monitor.check();
        output.finish();
        return succeeded;
    }
    ChangeScope change(*document, "Generate load combinations", CDBDoc::NoticeTime::atEnd);
    const int before = job.replace ? 0 : CDataLcom().GetCount(job.kind);
    const bool ok = control.Generate(job.replace ? CLoadCombCtrl::replaceMode : CLoadCombCtrl::addMode, job.code, job.dryRun ? CLoadCombCtrl::Storing::dryRun : CLoadCombCtrl::Storing::storeAndKeep) != 0;
    monitor.check();
    console.throwFailures();
    print(job, control, ok, console, before, output);
    if (!ok) {
        if (job.format == Format::json)
            output.finish();
        refuse(job, console);
    }
    if (change.end() == 0)
        refuse(job, console);
    try {
        output.finish();
    } catch (const std::exception& fault) {
        throw std::runtime_error(std::string(fault.what()) + (job.dryRun ? "" : " The model holds the combinations."));
    }
    return succeeded;
}

}  // namespace zel::cli
