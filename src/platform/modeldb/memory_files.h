#pragma once

#include "platform/modeldb/sqlite.h"

#include <memory>
#include <string>

namespace zel {

/// A database file in memory and what stands beside it, which SQLite uses as if they were on a disk: it finishes there what a crash has left, in a
/// copy, and no file is touched.
class MemoryFiles {
public:
    /// The bytes of a database file, of its write-ahead log and of its rollback journal; an empty text is no file.
    struct Bytes {
        std::string database;
        std::string log;
        std::string journal;
    };

    explicit MemoryFiles(Bytes bytes);
    MemoryFiles(const MemoryFiles&) = delete;
    MemoryFiles& operator=(const MemoryFiles&) = delete;
    ~MemoryFiles();

    /// A connection, with the settings of a model's. It must end before this object does.
    /// @throws SqliteError
    [[nodiscard]] std::unique_ptr<Database> open() const;

    /// The database as it stands, once no connection is open.
    [[nodiscard]] const std::string& database() const;

private:
    std::string m_name;
};

}  // namespace zel
