#include "cli/commands.h"
#include "cli/run_monitor.h"

#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"

#include <iostream>
#include <stdexcept>

namespace zel::cli {

int dumpModel(const DumpModel& job)
{
    const RunMonitor monitor;
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model, ModelFile::Access::readOnly);
    printModelJson(*document, std::cout);
    if (!std::cout.flush())
        throw std::runtime_error("standard output can't be written; is the disk full?");
    return succeeded;
}

}  // namespace zel::cli
