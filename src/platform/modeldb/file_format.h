#pragma once

#include "contract/table_list.h"
#include "contract/text.h"
#include "platform/modeldb/flat_layout.h"

#include <cstdint>
#include <string_view>
#include <vector>

/// The model file: an SQLite database with one SQL table a model table. Scalars are columns under their field names; a list is a
/// table of its own, "LCOM_items", whose rows carry the address of their record and their place in the list.
namespace zel {

inline constexpr std::int32_t applicationId = 0x5A454C31;  ///< "ZEL1"
inline constexpr int schemaVersion = 2;

/// Table of the row count and hash of every table; table of the model's settings; the one row that names the session which wrote last, and how
/// many changes that made.
inline constexpr std::string_view checkTable = "zel_check";
inline constexpr std::string_view settingTable = "zel_setting";
inline constexpr std::string_view saveTable = "zel_save";

/// One SQL table that holds the records of a model table, or the elements of one of their lists.
struct SqlTable {
    CString name;
    std::vector<CString> address;  ///< columns that say whose row it is: "key", or "parent" and "seq"
    const FlatLayout* layout = nullptr;
    std::size_t list = 0;         ///< place of the list in the layout above; unused for a record table
    std::vector<SqlTable> lists;  ///< its own lists, in the order of the layout
    CString create;               ///< the statement that makes it
    std::vector<bool> skipped;    ///< columns of the layout that stand among the address columns already
};

/// The SQL tables of a model table.
const SqlTable& sqlTable(const TableInfo& table);

/// A table of the schema and the statement that makes it.
struct SchemaObject {
    CString name;
    CString text;
    std::string_view table;  ///< four letters of the model table that it belongs to; empty for settings and checks
};

/// The whole schema, in the order in which it is made.
std::vector<SchemaObject> schemaObjects();

/// Hash of a setting, as a row of the setting table.
std::uint64_t settingHash(const CString& name, const CString& value);

enum class SqlOrder { ascending, descending };

/// "insert into STLD(...) values(...)", "select ... from STLD order by ...", "update ...", "delete ...". Parameters are the columns
/// in the order of the table. A selection takes the rows whose first `addressColumns` are given; a deletion those whose first but
/// the last of them are given and the last is between the two last parameters; with 0 it takes all rows.
CString insertStatement(const SqlTable& table);
CString selectStatement(const SqlTable& table, std::size_t addressColumns = 0, SqlOrder order = SqlOrder::ascending);
CString updateStatement(const SqlTable& table);
CString deleteStatement(const SqlTable& table, std::size_t addressColumns);

}  // namespace zel
