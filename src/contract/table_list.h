#pragma once

#include "contract/record.h"

#include <cstdint>
#include <span>
#include <string_view>

/// The tables of the model, in the order that gives each its update codes. A code and its place are permanent: they stand
/// in files and journals. A new table goes to the end.
// clang-format off
enum class Table : std::int32_t {
    STLD, LCOM, ENVL, SPDI, LNLD, ARLD, THFC, THLD,
    MATL, SECT, THIK, SECF, THKF,
    COSD, PISD, WASD, SOSD, GSPD,
    WKAR, WDIR,
    SLCF, SIFT, LCUG, LCWD, LCOE, SURS, LTOM, EIGV, MCTL, ACTL, CSDD, PJCF,
    PONT, LINE, AREA, BEAM, SLAB, OPEN, MSLN, COSA, PISA, WASA, SOSA, BRLS, OFFS, SRLS, COIF, GDLN, NUCS, GRUP,
    OMAS, PTLA, SPDP, LNLA, ARLA, THPL,
    NODE, ELEM,
};
// clang-format on

inline constexpr int tableCount = static_cast<int>(Table::ELEM) + 1;

namespace zel {

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
    Table table;
    std::string_view code;  ///< four letters; name of the SQL table and of the JSON member
    std::string_view noun;  ///< of one record, for messages and the Undo menu: "static load case"
    const RecordInfo* record;
    TableShape shape = TableShape::keyed;
    NameRule names = NameRule::none;
    Codes codes = Codes::none;
    std::string_view sequenceField;  ///< field that holds the 1-based place in the sequence; empty: sequence is key order
    std::string_view keyField;       ///< field that repeats the key; empty: none
    std::string_view kindField;      ///< field that repeats the design kind; empty: none
};

/// All tables, in the order of `Table`.
std::span<const TableInfo> tableList();

inline const TableInfo& tableInfo(Table table)
{
    return tableList()[static_cast<std::size_t>(table)];
}

/// The table of that four-letter code; null if there is none.
const TableInfo* findTable(std::string_view code);

}  // namespace zel
