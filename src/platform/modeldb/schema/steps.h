#pragma once

namespace zel {

class Database;

// The steps between versions of the file's schema, each in the file of its version.

void bringUpTo2(Database& database);

}  // namespace zel
