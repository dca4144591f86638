#include "cli/commands.h"

#include "platform/modeldb/model_file.h"

namespace zel::cli {

int newModel(const NewModel& job)
{
    ModelFile::create(job.model, job.units, {}, false);
    return succeeded;
}

}  // namespace zel::cli
