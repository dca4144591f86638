#pragma once

#include "platform/modeldb/memory_files.h"

#include <filesystem>
#include <memory>

namespace zel {

/// A copy of a model file in memory, as it stood at one moment, of the present schema. Nothing is locked for it and nothing written beside it, so it
/// is read also while another program writes the file, on a medium that can't be written, and by any number of programs at once.
class ModelCopy {
public:
    /// Copies the file with what a running program or a crash has in the log or journal beside it. Those are checked first: what does not belong to
    /// the file, or does not make a whole model with it, is refused.
    /// @throws FileRefusal
    explicit ModelCopy(const std::filesystem::path& path);

    /// From the bytes of a database without log and journal.
    /// @throws FileRefusal
    ModelCopy(const std::filesystem::path& path, std::string database);

    [[nodiscard]] Database& database() const { return *m_database; }
    /// The version of the schema that the file itself has.
    [[nodiscard]] int storedVersion() const { return m_storedVersion; }

private:
    ModelCopy(const std::filesystem::path& path, MemoryFiles::Bytes bytes);

    std::unique_ptr<MemoryFiles> m_files;
    std::unique_ptr<Database> m_database;
    int m_storedVersion = 0;
};

/// Whether a log or journal beside the file may hold something: a program has the file open, or has not closed it.
bool hasCompanions(const std::filesystem::path& path);

/// Refuses to make a file under a name beside which a log or journal stands: SQLite would take it for the new file's.
/// @throws FileRefusal
void refuseLeftCompanions(const std::filesystem::path& path);

/// Puts what stands beside a file that is to be replaced under other names.
void setCompanionsAside(const std::filesystem::path& path);

}  // namespace zel
