#pragma once

#include "contract/table_list.h"
#include "contract/table_store.h"

#include <functional>
#include <span>
#include <string_view>
#include <unordered_set>

namespace zel {

/// Fields of one table whose values are keys of another. A record that holds a key forbids deleting the record under it.
struct Reference {
    const TableInfo* target = nullptr;
    const TableInfo* user = nullptr;
    std::string_view field;  ///< of the user's record: the key itself or the list that holds keys; empty: the record's own key

    /// Tells each key that a record holds; 0 among them means none.
    std::function<void(Key own, const void* record, const std::function<void(Key)>& tell)> eachKey;
};

/// Every reference of the model. Sets (wind, orthogonal, underground, seismic, scale-ups) and envelopes are not among them: they
/// forbid nothing, and their readers take a key without a record for none.
std::span<const Reference> references();

/// Calls `found` for each record of another table that refers to one of the given records, so that these must stay.
/// Stops when `found` returns false.
void eachUser(Table target, const std::unordered_set<Key>& keys, const std::function<ITable&(Table)>& table,
              const std::function<bool(const TableInfo& user, Key key, const void* record)>& found);

}  // namespace zel
