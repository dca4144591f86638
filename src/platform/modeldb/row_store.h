#pragma once

#include "platform/modeldb/change.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/sqlite.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <unordered_map>
#include <vector>

namespace zel {

/// The rows of a table contradict each other or what they should be: somebody or something else has changed the file.
class DamagedRows : public std::runtime_error {
public:
    explicit DamagedRows(const CString& what) : std::runtime_error(what) {}
};

/// One record as it stands in the file.
struct StoredRow {
    int kind = 0;
    Key key = 0;
    std::shared_ptr<void> record;
};

/// A row's address: key, or kind and key, then the places in lists.
struct RowAddress {
    std::int64_t parts[4]{};
    std::size_t size = 0;

    void push(std::int64_t part) { parts[size++] = part; }
    bool operator==(const RowAddress& other) const;
    /// Binds the parts to the parameters from `parameter` on; returns the next one.
    int bindTo(Statement& statement, int parameter = 1) const;
};

/// Puts kind and key into the fields of the record that repeat them.
void setAddressFields(const TableInfo& table, const StoredRow& row);

RowAddress rowAddress(const TableInfo& table, int kind, Key key);

/// Reads and writes the records of the model tables in an open database.
class RowStore {
public:
    explicit RowStore(Database& database) : m_database(database) {}

    /// Writes the steps of a batch: first all that removes a row, then all that puts one there.
    /// @param stored  records that the table holds before it
    /// @throws SqliteError, DamagedRows
    void write(const Batch& batch, std::size_t stored);

    /// Deletes all records of a table.
    /// @throws SqliteError
    void removeAll(const TableInfo& table);

    /// Reads all records of a table, in the order of their addresses.
    /// @throws SqliteError, DamagedRows
    std::vector<StoredRow> read(const TableInfo& table);

private:
    /// The statements of one SQL table, prepared when they are first needed.
    struct Statements {
        std::unique_ptr<Statement> insert;
        std::unique_ptr<Statement> update;
        std::unique_ptr<Statement> remove;
        std::unique_ptr<Statement> removeAll;
    };
    /// Records under consecutive keys of one kind.
    struct Run {
        RowAddress first;
        Key last = 0;
        std::vector<const void*> records;
        bool all = false;  ///< these are all records of the table, which SQLite empties without a look at each row
    };
    /// A record or list element whose lists are to be read, with its address.
    struct Owner {
        RowAddress address;
        void* object = nullptr;
    };

    Statement& prepared(std::unique_ptr<Statement>& statement, const CString& sql);
    void insert(const SqlTable& table, const RowAddress& address, const void* record);
    void insertLists(const SqlTable& table, const RowAddress& address, const void* record);
    void insertList(const SqlTable& child, const FlatList& list, const RowAddress& address, const void* record);
    void update(const SqlTable& table, const RowAddress& address, const void* before, const void* after);
    /// Deletes the rows of a table that belong to the records of a run: all rows, when the run is all that the table holds.
    void remove(const SqlTable& table, const Run& run, std::size_t rows);
    void removeLists(const SqlTable& table, const Run& run);
    void removeList(const SqlTable& child, const FlatList& list, const Run& run);
    void removeMoved(const TableInfo& info, const SqlTable& table, const Batch& batch, std::size_t stored);
    void readLists(const SqlTable& table, const std::vector<Owner>& owners);

    Database& m_database;
    std::unordered_map<const SqlTable*, Statements> m_statements;
};

}  // namespace zel
