#include "platform/modeldb/schema/steps.h"
#include "platform/modeldb/sqlite.h"

namespace zel {

/// Version 2: the file names its session, so that a write-ahead log or journal beside it can be told from another file's.
void bringUpTo2(Database& database)
{
    database.run("CREATE TABLE zel_save(\n    session INTEGER NOT NULL,\n    changes INTEGER NOT NULL\n) STRICT; insert into zel_save values(0, 0)");
}

}  // namespace zel
