#include "cli/commands.h"
#include "cli/output.h"

#include "contract/design_kind.h"
#include "contract/table.h"
#include "contract/table_list.h"
#include "platform/modeldb/model_document.h"

namespace zel::cli {

int listCombinations(const ListCombinations& job)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model);
    ITable& table = document->table(Table::LCOM);
    std::vector<RecordPtr> held;  // keeps the records that are printed
    std::vector<PrintedCombination> printed;
    for (int kind = job.kind.value_or(firstDesignKind); kind <= job.kind.value_or(lastDesignKind); ++kind) {
        for (const Key key : table.keys(kind)) {
            held.push_back(table.find(kind, key));
            const auto* record = static_cast<const T_LCOM_D*>(held.back().get());
            printed.push_back({record, kind, record->number});
        }
    }
    Output output(job.out);
    printCombinations(job.format, printed, output.stream());
    output.finish();
    return succeeded;
}

}  // namespace zel::cli
