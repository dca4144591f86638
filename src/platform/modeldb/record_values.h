#pragma once

#include "contract/records/unit_index.h"
#include "contract/table_list.h"
#include "contract/table_store.h"
#include "contract/text.h"

#include <cstdint>
#include <string_view>

/// What the model database does with the values of a record, whatever its type.
namespace zel {

/// Converts every value with units from one system to another.
void convertRecord(const TableInfo& table, void* record, const T_UNIT_INDEX& from, const T_UNIT_INDEX& to);

/// Whether a record of the table holds values that a change of units changes.
bool hasUnits(const TableInfo& table);

/// The first real field that is not a finite number; empty if all are.
std::string_view notFiniteField(const TableInfo& table, const void* record);

/// The name of a record; empty for a table without names.
const CString& recordName(const TableInfo& table, const void* record);

/// What a table holds against a name.
enum class NameFault { none, notFilled, tooLong };
NameFault nameFault(const TableInfo& table, const CString& name);
inline constexpr std::size_t longestName = 80;  ///< [characters]

/// Number of characters of a UTF-8 text.
std::size_t characterCount(std::string_view text);

/// The place in the table's sequence that the record carries; 0 for a table without one.
std::int32_t recordPlace(const TableInfo& table, const void* record);

/// The record with the fields that the table keeps itself: key, design kind and place in the sequence. It is the record itself
/// if nothing differs or nobody else holds it, and a copy otherwise.
RecordPtr withKeptFields(const TableInfo& table, RecordPtr record, int kind, Key key, std::int32_t place);

/// Hash of a row: its address and every value. A table's rows are summed up, so that one row can be taken out or added.
std::uint64_t rowHash(const TableInfo& table, int kind, Key key, const void* record);

}  // namespace zel
