#pragma once

#include "contract/records/unit_index.h"
#include "platform/modeldb/row_store.h"

#include <cstdint>
#include <map>
#include <vector>

namespace zel {

/// How many rows a table has, and the sum of their hashes.
struct TableCheck {
    std::int64_t rows = 0;
    std::uint64_t hash = 0;

    bool operator==(const TableCheck&) const = default;
};

/// What a model file holds beside its records.
struct StoredState {
    std::map<CString, TableCheck, std::less<>> checks;  ///< by the table's code; also of the table of settings
    std::map<CString, CString> settings;
    T_UNIT_INDEX units;

    bool operator==(const StoredState&) const = default;
};

/// Compares the schema with that of the present version, statement by statement.
/// @throws SqliteError, DamagedRows
void checkSchema(Database& database);

/// Reads the row counts and hashes and the settings, which must agree.
/// @throws SqliteError, DamagedRows
StoredState readState(Database& database);

/// Reads a table, which must agree with its row count and hash.
/// @throws SqliteError, DamagedRows
std::vector<StoredRow> readChecked(RowStore& rows, const TableInfo& table, const StoredState& state);

/// Checks everything: the structure of the file, the schema, the state and every table.
/// @throws SqliteError, DamagedRows
void checkWhole(Database& database);

/// Checks the structure of the file: its pages and the order of its rows, which a damaged page would lead a write astray by.
/// @throws SqliteError, DamagedRows
void checkStructure(Database& database);

}  // namespace zel
