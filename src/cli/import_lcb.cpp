#include "cli/commands.h"
#include "cli/console.h"
#include "cli/input.h"
#include "cli/run_monitor.h"

#include "contract/change_scope.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/editor/lcb_import.h"
#include "platform/modeldb/model_document.h"

#include <iostream>
#include <stdexcept>
#include <utility>

namespace zel::cli {

namespace {

/// The combinations of the file. A line that takes nothing of any load case is a slip of who wrote it, and refused here, where nobody looks at a form.
std::vector<T_LCOM_D> read(Input& input, const Console& console)
{
    std::vector<Key> cases;
    CDataStld().GetKeyList(cases);
    lcb::Contents contents = lcb::read(input.stream(), cases);
    input.check();
    if (contents.fault) {
        AfxMessageBox(contents.fault->text);
        throw std::runtime_error(console.told());
    }
    if (contents.firstIdleLine != 0)
        throw std::runtime_error("All factors in line " + std::to_string(contents.firstIdleLine) + " are 0.");
    return std::move(contents.combinations);
}

}  // namespace

int importLcb(const ImportLcb& job)
{
    const RunMonitor monitor;
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model);
    Input input(job.file);
    const Console console;
    ChangeScope change(*document, "Import load combinations", CDBDoc::NoticeTime::atEnd);
    std::size_t imported = 0;
    try {
        std::vector<T_LCOM_D> combinations = read(input, console);
        imported = combinations.size();
        if (!combinations.empty() && CDataLcom().Add(job.kind, std::move(combinations)) == 0)
            throw std::runtime_error(console.told());
    } catch (const std::runtime_error& fault) {
        monitor.check();
        throw std::runtime_error(input.name() + ": " + fault.what() + " Nothing was imported.");
    }
    std::cout << imported << (imported == 1 ? " load combination" : " load combinations") << " imported\n";
    if (!std::cout.flush())
        throw std::runtime_error("standard output can't be written; is the disk full? Nothing was imported.");
    if (change.end() == 0)
        throw std::runtime_error(console.told() + " Nothing was imported.");
    document->close();
    return succeeded;
}

}  // namespace zel::cli
