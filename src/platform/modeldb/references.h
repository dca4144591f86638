#pragma once

#include "contract/table_store.h"

#include <functional>
#include <unordered_set>

namespace zel {

/// Calls `found` for each record of another table that refers to one of the given records, so that these must stay.
/// Stops when `found` returns false.
void eachUser(Table target, const std::unordered_set<Key>& keys, const std::function<ITable&(Table)>& table,
              const std::function<bool(const TableInfo& user, Key key, const void* record)>& found);

}  // namespace zel
