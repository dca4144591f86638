#include "cli/commands.h"
#include "cli/output.h"
#include "cli/run_monitor.h"

#include "contract/design_kind.h"
#include "contract/table.h"
#include "contract/table_list.h"
#include "platform/modeldb/model_document.h"

namespace zel::cli {

int listCombinations(const ListCombinations& job)
{
    const RunMonitor monitor;
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model, ModelFile::Access::readOnly);
    ITable& table = document->table(Table::LCOM);
    const EachCombination stored = [&](const std::function<void(const PrintedCombination&)>& take) {
        for (int kind = job.kind.value_or(firstDesignKind); kind <= job.kind.value_or(lastDesignKind); ++kind) {
            for (const Key key : table.keys(kind)) {
                const RecordPtr held = table.find(kind, key);
                const auto& record = *static_cast<const T_LCOM_D*>(held.get());
                take({&record, kind, record.number});
            }
        }
    };
    Output output(job.out);
    printCombinations(job.format, stored, output.stream());
    output.finish();
    return succeeded;
}

}  // namespace zel::cli
