#pragma once

#include "contract/table_list.h"
#include "contract/table_store.h"
#include "platform/modeldb/json_text.h"

#include <memory>
#include <string>

/// Records as JSON: the members are the fields under their own names, in order. In front stand `kind`, where the table has
/// kinds, and `key`, where the table has keys; a field that repeats one of them is left out.
namespace zel {

/// The fields of a record, without key and kind.
Json fieldsToJson(const RecordInfo& info, const void* record);

/// Puts the fields that `json` names into a record and leaves the others as they are.
/// @param path  of the record, for the faults
/// @throws JsonFault  as recordFromJson; fields before the fault are changed
void fieldsFromJson(const RecordInfo& info, const Json& json, void* record, const std::string& path);

/// One record of a table.
Json recordToJson(const TableInfo& table, int kind, Key key, const void* record);

/// A record that was read, with what it says about its key and kind (0 where it says nothing).
struct JsonRecord {
    Key key = 0;
    int kind = 0;
    std::shared_ptr<void> record;
};

/// Reads one record of a table. A field that is missing keeps what it has in `base`; without a base it takes its default,
/// in the units of the current document. Of a list inside the record the elements are all new.
/// @param path  of the record, for the faults: "STLD[3]"
/// @throws JsonFault  for an unknown field, a wrong type, a whole number out of range, more places than the field has
JsonRecord recordFromJson(const TableInfo& table, const Json& json, const std::string& path, const void* base = nullptr);

/// A whole number from 1 that fits a key.
Key keyFromJson(const Json& json, const std::string& path);
/// A design kind, 1 to 5.
int kindFromJson(const Json& json, const std::string& path);
/// A whole number between the limits, which belong to the range.
long long integerFromJson(const Json& json, const std::string& path, long long least, long long most);
/// A text; one with a NUL in it is refused.
const std::string& textFromJson(const Json& json, const std::string& path);

}  // namespace zel
