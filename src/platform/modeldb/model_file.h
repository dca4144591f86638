#pragma once

#include "contract/records/unit_index.h"
#include "platform/modeldb/change.h"
#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/row_store.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
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

/// An open model file. While it is open nobody else can open it.
///
/// Each table's row count and the sum of its row hashes stand in the file and change in the same transaction: SQLite alone
/// reads a flipped bit as a changed number. Every failure to open is a FileRefusal, and the file is as it was.
class ModelFile {
public:
    enum class Access { write, readOnly };

    /// Opens an existing model file.
    /// @throws FileRefusal
    ModelFile(const std::filesystem::path& path, Access access);
    ~ModelFile();
    ModelFile(const ModelFile&) = delete;
    ModelFile& operator=(const ModelFile&) = delete;

    /// Makes a new file, whole or not at all: it appears under its name when everything is in it.
    /// @param batches  every record, as additions
    /// @param replace  whether a file of that name may be replaced
    /// @throws FileRefusal
    static void create(const std::filesystem::path& path, const T_UNIT_INDEX& units, const std::vector<Batch>& batches, bool replace);

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }
    [[nodiscard]] T_UNIT_INDEX units() const { return m_state.units; }

    /// Reads a table and checks it against its row count and hash.
    /// @throws FileRefusal
    std::vector<StoredRow> read(const TableInfo& table);

    /// A transaction. `write` and `commit` throw FileRefusal; then it is rolled back already.
    void begin();
    void write(const Batch& batch);
    void writeUnits(const T_UNIT_INDEX& units);
    void commit();
    void rollback() noexcept;

    [[nodiscard]] FileFacts facts();

private:
    struct TableCheck {
        std::int64_t rows = 0;
        std::uint64_t hash = 0;
        bool operator==(const TableCheck&) const = default;
    };
    struct Unchecked {};
    /// What this object holds of the file beside its records. A transaction that is rolled back takes all of it back.
    struct State {
        std::map<CString, TableCheck, std::less<>> checks;
        std::map<CString, CString> settings;
        T_UNIT_INDEX units;
    };

    ModelFile(const std::filesystem::path& path, Unchecked tag);
    void prepareConnection(Access access);
    void checkSchema();
    void readChecks();
    void readSettings();
    void makeSchema(const T_UNIT_INDEX& units);
    void storeCheck(const CString& code);
    void storeSetting(const CString& name, const CString& value);
    void inTransaction(const std::function<void()>& work);
    [[nodiscard]] FileRefusal refusalFor(const SqliteError& error) const;
    [[nodiscard]] FileRefusal outOfMemory() const;
    [[nodiscard]] FileRefusal damaged(const CString& detail) const;

    std::filesystem::path m_path;
    std::unique_ptr<Database> m_database;
    std::unique_ptr<RowStore> m_rows;
    std::unique_ptr<Statement> m_checkStatement;
    State m_state;
    std::optional<State> m_before;  ///< while a transaction runs
    bool m_structureChecked = false;
};

}  // namespace zel
