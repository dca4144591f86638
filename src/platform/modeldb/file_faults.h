#pragma once

#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/row_store.h"
#include "platform/modeldb/sqlite.h"

#include <new>

namespace zel {

/// The refusal of a file whose bytes are not what was stored. `detail` says what is wrong, without a full stop.
FileRefusal damagedFile(const std::filesystem::path& path, const CString& detail);

/// The refusal that says in our words what SQLite reports.
FileRefusal refusalFor(const std::filesystem::path& path, const SqliteError& error);

/// The refusal of what does not fit into memory.
FileRefusal outOfMemory(const std::filesystem::path& path);

/// Does some work with a file; what goes wrong comes out as a FileRefusal.
template <class Work> auto withRefusals(const std::filesystem::path& path, Work&& work)
{
    try {
        return work();
    } catch (const SqliteError& error) {
        throw refusalFor(path, error);
    } catch (const DamagedRows& fault) {
        throw damagedFile(path, fault.what());
    } catch (const std::bad_alloc&) {
        throw outOfMemory(path);
    }
}

}  // namespace zel
