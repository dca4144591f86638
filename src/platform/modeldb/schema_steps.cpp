#include "platform/modeldb/schema_steps.h"

#include "platform/modeldb/file_format.h"
#include "platform/modeldb/schema/steps.h"

namespace zel {

std::span<const SchemaStep> schemaSteps()
{
    static constexpr SchemaStep steps[] = {
        {2, bringUpTo2},
    };
    static_assert(std::size(steps) == schemaVersion - 1 && std::end(steps)[-1].version == schemaVersion, "each version needs the step to it");
    return steps;
}

int schemaVersionOf(Database& database)
{
    return static_cast<int>(database.number("PRAGMA user_version"));
}

void bringUp(Database& database, std::span<const SchemaStep> steps)
{
    const int version = schemaVersionOf(database);
    for (const SchemaStep& step : steps) {
        if (step.version <= version)
            continue;
        step.bringUp(database);
        database.run("PRAGMA user_version=" + std::to_string(step.version));
    }
}

}  // namespace zel
