#include "cli/commands.h"

#include "platform/modeldb/model_document.h"

namespace zel::cli {

int newModel(const NewModel& job)
{
    ModelDocument::create(job.model, job.units);
    return succeeded;
}

}  // namespace zel::cli
