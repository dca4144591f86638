#pragma once

#include "contract/records/unit_index.h"
#include "platform/modeldb/change.h"
#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/model_copy.h"
#include "platform/modeldb/row_store.h"
#include "platform/modeldb/stored_state.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace zel {

/// Facts about a model file, for people.
struct FileFacts {
    std::uint64_t size = 0;  ///< [bytes]
    int schema = 0;
    CString journalMode;  ///< "wal" or "delete"
    CString createdBy;
};

/// An open model file. While it is open for writing nobody else can open it so; reading needs no lock and takes none.
///
/// Each table's row count and the sum of its row hashes stand in the file and change in the same transaction: SQLite alone
/// reads a flipped bit as a changed number. Every failure to open is a FileRefusal, and the file is as it was.
///
/// The first transaction brings a file of an older schema up to the present one, and gives the file the name of this session.
class ModelFile {
public:
    enum class Access { write, readOnly };

    /// Opens an existing model file. With `readOnly` it is the file as it stands now: later changes of other programs are not seen.
    /// @throws FileRefusal
    ModelFile(const std::filesystem::path& path, Access access);
    ~ModelFile();
    ModelFile(const ModelFile&) = delete;
    ModelFile& operator=(const ModelFile&) = delete;

    /// Makes a file with these contents, whole or not at all: a new one appears under its name when everything is in it; a model that is there gets
    /// them in one transaction, and a damaged one or another file is replaced.
    /// @param batches  every record, as additions
    /// @param replace  whether a file of that name may be replaced
    /// @throws FileRefusal
    static void create(const std::filesystem::path& path, const T_UNIT_INDEX& units, const std::vector<Batch>& batches, bool replace);

    /// Whether this process has the file open for writing. Then it must not be opened otherwise: closing it again would give up the lock.
    static bool isOpenHere(const std::filesystem::path& path);

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }
    [[nodiscard]] bool isReadOnly() const { return m_access == Access::readOnly; }
    [[nodiscard]] T_UNIT_INDEX units() const { return m_state.units; }

    /// Reads a table and checks it against its row count and hash.
    /// @throws FileRefusal
    std::vector<StoredRow> read(const TableInfo& table);

    /// Checks what reading the tables does not: the structure of the file.
    /// @throws FileRefusal
    void checkStructure();

    /// A transaction. `begin`, `write` and `commit` throw FileRefusal; then it is rolled back already.
    void begin();
    void write(const Batch& batch);
    void writeUnits(const T_UNIT_INDEX& units);
    void commit();
    void rollback() noexcept;

    /// Ends the work on the file. The destructor does the same and tells nothing.
    /// @throws FileRefusal  when the path no longer leads to the open file; what was written is in that one
    void close();

    [[nodiscard]] FileFacts facts();

private:
    struct Building {};

    ModelFile(const std::filesystem::path& path, const MemoryFiles& files, Building tag);
    void openToRead();
    void openToWrite();
    void readState();
    void makeSchema(const T_UNIT_INDEX& units);
    void replaceContents(const T_UNIT_INDEX& units, const std::vector<Batch>& batches);
    void startSession();
    void refuseIfMoved();
    [[nodiscard]] bool hasMoved() const;
    void storeCheck(const CString& code);
    void storeSetting(const CString& name, const CString& value);
    void inTransaction(const std::function<void()>& work);
    [[nodiscard]] Database& database() const { return m_copy ? m_copy->database() : *m_database; }

    std::filesystem::path m_path;
    Access m_access;
    std::unique_ptr<ModelCopy> m_copy;  ///< what is read, where it is not the file itself: read-only, or of an older schema
    std::unique_ptr<Database> m_database;
    std::unique_ptr<RowStore> m_rows;
    std::unique_ptr<Statement> m_checkStatement;
    StoredState m_state;
    std::optional<StoredState> m_before;  ///< while a transaction runs
    bool m_hasSession = false;
};

}  // namespace zel
