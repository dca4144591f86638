#pragma once

#include "platform/modeldb/sqlite.h"

#include <filesystem>

/// The files that this process has open for writing. Whoever opens one of them otherwise and closes it again gives up the lock on it
/// (https://www.sqlite.org/howtocorrupt.html, section 2.2), so it is looked up here first.
namespace zel::openFiles {

void enter(Database& database, const std::filesystem::path& path);
void leave(const Database& database);

/// The connection to the file; null when this process does not have it open for writing.
Database* find(const std::filesystem::path& path);

}  // namespace zel::openFiles
