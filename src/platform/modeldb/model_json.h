#pragma once

#include "contract/document.h"
#include "contract/records/unit_index.h"
#include "contract/table_list.h"
#include "platform/modeldb/json_text.h"

#include <iosfwd>
#include <vector>

/// A whole model as one JSON object: format, version, units, and a member for each table that holds something.
namespace zel {

inline constexpr std::string_view modelJsonFormat = "zel-model";
inline constexpr int modelJsonVersion = 1;

/// The records of one table, or of one kind of a kinded table, in sequence.
struct TableRows {
    const TableInfo* table = nullptr;
    int kind = 0;
    std::vector<Key> keys;
    std::vector<RecordPtr> records;
};

/// The unit system that a model's numbers are in; millimetres and kilonewtons where the text doesn't say.
/// @throws JsonFault  for a text that is no model, one of a newer version, and an unknown unit
T_UNIT_INDEX unitsOfModelJson(const Json& model);

/// All records of a model, checked: only known tables and fields, the right types, no key and no name twice, names that the
/// tables take. A record without a key gets one above all keys of its table. The current document has to be in the
/// units of the model, because defaults are in its units.
/// @throws JsonFault  with the path of the first fault: "STLD[3].name: ..."
std::vector<TableRows> rowsOfModelJson(const Json& model);

/// Adds the records to an empty document, as one change.
/// @throws JsonFault  when a table refuses its records, which it has told the user; the document is empty then
void storeRows(CDBDoc& document, const std::vector<TableRows>& rows);

/// Prints the whole model, one record a line. Tables that hold nothing are left out.
void printModelJson(CDBDoc& document, std::ostream& out);

}  // namespace zel
