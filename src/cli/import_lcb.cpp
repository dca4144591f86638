#include "cli/commands.h"
#include "cli/console.h"
#include "cli/input.h"

#include "contract/tables/load_combination_table.h"
#include "loadcomb/editor/lcb_import.h"
#include "platform/modeldb/model_document.h"

#include <iostream>
#include <stdexcept>

namespace zel::cli {

int importLcb(const ImportLcb& job)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model);
    Input input(job.file);
    const Console console;
    const int before = CDataLcom().GetCount(job.kind);
    if (lcb::importFile(job.kind, input.stream()) == 0)
        throw std::runtime_error(input.name() + ": " + console.told() + " Nothing was imported.");
    const int imported = CDataLcom().GetCount(job.kind) - before;
    std::cout << imported << (imported == 1 ? " load combination" : " load combinations") << " imported\n";
    return succeeded;
}

}  // namespace zel::cli
