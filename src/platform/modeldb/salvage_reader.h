#pragma once

#include "platform/modeldb/change.h"
#include "platform/modeldb/model_check.h"
#include "platform/modeldb/row_store.h"
#include "platform/modeldb/sqlite.h"

#include <optional>
#include <vector>

namespace zel {

/// A record that was read, and what is wrong with it.
struct ReadRecord {
    StoredRow row;
    bool usable = true;
};

/// Reads the records of damaged tables one by one, past pages that can't be read, and notes every fault.
class SalvageReader {
public:
    SalvageReader(Database& database, std::vector<FileFault>& faults) : m_database(database), m_faults(faults) {}

    /// All records of a table that can be read, also the unusable ones, in the order of their addresses.
    std::vector<ReadRecord> read(const TableInfo& table);

private:
    struct Object;

    void readKind(const TableInfo& table, int kind, std::vector<ReadRecord>& records);
    void readGap(const TableInfo& table, int kind, Key after, std::optional<Key> before, std::vector<ReadRecord>& records);
    [[nodiscard]] ReadRecord recordAt(const Statement& statement, const TableInfo& table, int kind);
    void readLists(const TableInfo& table, const SqlTable& sql, const Object& owner);
    void readList(const TableInfo& table, const SqlTable& child, const FlatList& list, const Object& owner);
    void readColumns(const Statement& statement, const TableInfo& table, const SqlTable& sql, const Object& object, int place);
    void tellLostRows(const TableInfo& table, const SqlTable& parent);
    void fault(const TableInfo& table, const StoredRow& row, const CString& field, const CString& what);
    void faultOfTable(const TableInfo& table, const CString& field, const CString& what);

    Database& m_database;
    std::vector<FileFault>& m_faults;
};

}  // namespace zel
