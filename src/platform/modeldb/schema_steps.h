#pragma once

#include "platform/modeldb/sqlite.h"

#include <span>

namespace zel {

/// Brings a file from the version of the schema before it to its own. A step is written once, for files as that version made them, and stays: it
/// names tables and columns itself and knows nothing of today's records. A step that adds a table also gives it its row in `zel_check`; one that
/// changes rows restates their hash there.
struct SchemaStep {
    int version;  ///< that the file has after it
    void (*bringUp)(Database& database);
};

/// All steps, in order: from version 2 to the present one.
std::span<const SchemaStep> schemaSteps();

/// The version that the file says.
int schemaVersionOf(Database& database);

/// Takes the steps that the file lacks, and has it say so. The caller holds the transaction, and rolls it back when a step fails.
/// @throws SqliteError, DamagedRows
void bringUp(Database& database, std::span<const SchemaStep> steps);

}  // namespace zel
