#pragma once

#include "contract/table_list.h"
#include "contract/text.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace zel {

using Key = std::uint32_t;

/// A record of any type, shared and, once it is in a table, never changed: a modification replaces it.
using RecordPtr = std::shared_ptr<const void>;

/// One table of the open model, without its record type. The typed handles `CDataXxx` stand on this; hosts and scripts use
/// it directly. A table of one record keeps it under key 1. `kind` is the design kind 1 to 5 of a kinded table, 0 elsewhere.
///
/// The writing operations are one change each: one transaction, one undo step, one notice. They return 0 when the model
/// refuses the change, after the user has been told why; nothing is changed then.
class ITable {
public:
    ITable() = default;
    ITable(const ITable&) = delete;
    ITable& operator=(const ITable&) = delete;
    virtual ~ITable() = default;

    [[nodiscard]] virtual const TableInfo& info() const = 0;

    [[nodiscard]] virtual int count(int kind) const = 0;
    [[nodiscard]] virtual std::vector<Key> keys(int kind) const = 0;               ///< in sequence
    [[nodiscard]] virtual RecordPtr find(int kind, Key key) const = 0;             ///< null if there is none
    [[nodiscard]] virtual Key keyByName(int kind, const CString& name) const = 0;  ///< exact first, then without case; 0: none
    [[nodiscard]] virtual Key largestKey(int kind) const = 0;                      ///< 0 on an empty table
    [[nodiscard]] virtual Key freeKeyAbove(int kind, Key key) const = 0;           ///< smallest free key above `key`
    [[nodiscard]] virtual Key nextInSequence(int kind, Key key) const = 0;         ///< 0: the first, and at the end

    /// Adds records under the given keys, 0 meaning a new one. A key in use is refused unless `replace` is set.
    virtual int add(int kind, const std::vector<Key>& keys, std::vector<RecordPtr> records, bool replace) = 0;
    /// Replaces the records under `oldKeys` by `records` under `newKeys`.
    virtual int modify(int kind, const std::vector<Key>& oldKeys, const std::vector<Key>& newKeys, std::vector<RecordPtr> records) = 0;
    virtual int remove(int kind, const std::vector<Key>& keys) = 0;
    /// Moves the records, in the given order, right behind `afterKey`; 0 means to the front. Only on a table with a sequence.
    virtual int changeSequence(int kind, const std::vector<Key>& keys, Key afterKey) = 0;
};

/// Reports a record that an operation was asked for by name and that is not there. Always 0, the operation's result.
int refuseMissing(const TableInfo& table, const CString& name);

}  // namespace zel
