#pragma once

#include "contract/design_kind.h"

#include <cstdint>
#include <span>
#include <string_view>

/// A table of the model; the enumerators stand in table.h.
enum class Table : std::int32_t;

namespace zel {

struct FieldInfo;
struct RecordInfo;

/// The kinds of change that a notice tells, as offsets to a table's first update code.
enum class Change : std::int32_t { added = 0, deleted = 1, modified = 2, modifiedFrom = 3 };

inline constexpr std::int32_t firstUpdateCode = 1000;

/// The update code of a change in a table: 1000 + 4 * place of the table + change.
constexpr std::int32_t updateCode(Table table, Change change)
{
    return firstUpdateCode + 4 * static_cast<std::int32_t>(table) + static_cast<std::int32_t>(change);
}

enum class TableShape {
    keyed,   ///< any number of records, each under a key
    single,  ///< one record or none; it stands under key 1
    kinded,  ///< keyed, with a key and name space of its own for each design kind 1 to 5
};

/// What a table's names may be. Names are unique in every table that has them, without regard to case.
enum class NameRule {
    none,      ///< the records have no name
    filled,    ///< neither empty nor blank
    notEmpty,  ///< blanks alone are taken, the empty text is not
    any,       ///< also empty: the form checks
};

/// Which changes of a table appear in the change buffer.
enum class Codes { none, addAndDelete, all };

/// One table of the model: what it holds and which rules its records obey.
struct TableInfo {
    Table table{};
    std::string_view code;  ///< four letters; name of the SQL table and of the JSON member
    std::string_view noun;  ///< of one record, for messages and the Undo menu: "static load case"
    const RecordInfo* record = nullptr;
    TableShape shape = TableShape::keyed;
    NameRule names = NameRule::none;
    Codes codes = Codes::none;
    const FieldInfo* nameField = nullptr;      ///< null: the records have no name
    const FieldInfo* sequenceField = nullptr;  ///< holds the 1-based place in the sequence; null: sequence is key order
    const FieldInfo* keyField = nullptr;       ///< repeats the key; null: none
    const FieldInfo* kindField = nullptr;      ///< repeats the design kind; null: none
};

/// The kinds whose records a table holds apart: the design kinds, or 0 alone.
std::span<const int> kindsOf(const TableInfo& table);

/// All tables, in the order of `Table`.
std::span<const TableInfo> tableList();

inline const TableInfo& tableInfo(Table table)
{
    return tableList()[static_cast<std::size_t>(table)];
}

/// The table of that four-letter code; null if there is none.
const TableInfo* findTable(std::string_view code);

/// The table of a record type. It is found where all are known, so that a handle depends on its own table alone.
template <class Record> const TableInfo& tableOfRecord();

}  // namespace zel
