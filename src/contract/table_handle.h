#pragma once

#include "contract/document.h"
#include "contract/table_list.h"
#include "contract/table_store.h"

#include <memory>
#include <vector>

/// What all table handles have in common.
class CDBData {
public:
    explicit CDBData(const zel::TableInfo& info) : m_table(CDBDoc::GetDocPoint()->table(info.table)) {}

protected:
    [[nodiscard]] zel::ITable& store() const { return m_table; }

private:
    zel::ITable& m_table;
};

/// The operations that a table may offer; a handle lists its own, and a call of another one does not compile.
enum class Op : std::uint64_t {
    GetCount = 1ULL << 0,
    GetKeyList = 1ULL << 1,
    GetList = 1ULL << 2,
    GetDataList = 1ULL << 3,
    GetNameList = 1ULL << 4,
    GetByKey = 1ULL << 5,   ///< Get(key), Get(key, record)
    GetByName = 1ULL << 6,  ///< Get(name)
    GetOut = 1ULL << 7,     ///< Get(record) of a table of one record
    GetSingle = 1ULL << 8,  ///< Get() of a table of one record
    ExistName = 1ULL << 9,
    ExistKey = 1ULL << 10,
    Translate = 1ULL << 11,  ///< GetKeyByName, GetNameByKey
    GetNewKey = 1ULL << 12,
    GetNewKeyAfter = 1ULL << 13,  ///< GetNewKey(key)
    GetLargeKey = 1ULL << 14,
    AddCurrent = 1ULL << 15,    ///< Add()
    AddRecord = 1ULL << 16,     ///< Add(record)
    AddRecords = 1ULL << 17,    ///< Add(records)
    AddKey = 1ULL << 18,        ///< Add(key, record)
    AddKeys = 1ULL << 19,       ///< Add(keys, records, flag)
    AddForKeys = 1ULL << 20,    ///< Add(keys, record)
    ModifySingle = 1ULL << 21,  ///< Modify() of a table of one record
    ModifyByKey = 1ULL << 22,   ///< Modify(oldKey)
    ModifyByName = 1ULL << 23,  ///< Modify(oldName)
    ModifyRecord = 1ULL << 24,  ///< Modify(key, record)
    ModifyNames = 1ULL << 25,   ///< Modify(oldNames, records)
    DelKey = 1ULL << 26,
    DelName = 1ULL << 27,
    DelKeys = 1ULL << 28,
    DelNames = 1ULL << 29,
    DelSingle = 1ULL << 30,  ///< Del() of a table of one record
    Initialize = 1ULL << 31,
    ChangeSequence = 1ULL << 32,
    Iterate = 1ULL << 33,  ///< GetStart, GetNext
    ConvertUnitPrev = 1ULL << 34,
};

/// A set of operations: `Op::GetCount | Op::GetKeyList`.
struct Ops {
    std::uint64_t bits = 0;

    constexpr Ops(Op op) : bits(static_cast<std::uint64_t>(op)) {}  // NOLINT(google-explicit-constructor): one is a set
    constexpr explicit Ops(std::uint64_t all) : bits(all) {}
    [[nodiscard]] constexpr bool has(Op op) const { return (bits & static_cast<std::uint64_t>(op)) != 0; }
};
constexpr Ops operator|(Ops left, Ops right)
{
    return Ops(left.bits | right.bits);
}
constexpr Ops operator|(Op left, Op right)
{
    return Ops(left) | Ops(right);
}

namespace zel {

/// Converts one record of a table from the previous unit system to the current one.
void convertRecordFromPrevious(const TableInfo& table, void* record);

/// Puts values with units that a record starts with into the current unit system; records start out in millimetres and newtons.
void convertDefaults(const TableInfo& table, void* record);

template <class Record> RecordPtr share(const Record& record)
{
    return std::make_shared<Record>(record);
}

template <class Record> std::vector<RecordPtr> shareAll(const std::vector<Record>& records)
{
    std::vector<RecordPtr> shared;
    shared.reserve(records.size());
    for (const Record& record : records)
        shared.push_back(share(record));
    return shared;
}

}  // namespace zel

/// Position of an iteration over a table; nil (0) behind its end. It is the key of the record that GetNext will give.
using TablePosition = zel::Key;

/// A light handle on one table: made on the stack where needed, any number at one time, all seeing the same data.
/// Records are copied in and out; nothing points into the table. `int` results are 0 for failure.
template <class Record, Ops operations> class CTable : public CDBData {
public:
    CTable() : CDBData(zel::tableOfRecord<Record>()) {}

    zel::Key currentKey = 0;
    Record currentRecord{};

    /// Takes a changed record out of the change buffer, which says of which kind it is.
    void load(int /*kind*/, zel::Key key, const zel::RecordPtr& record)
    {
        currentKey = key;
        currentRecord = typed(record);
    }

    int GetCount() const requires(operations.has(Op::GetCount)) { return store().count(0); }

    int GetKeyList(std::vector<zel::Key>& keys) const requires(operations.has(Op::GetKeyList))
    {
        keys = store().keys(0);
        return static_cast<int>(!keys.empty());
    }

    int GetList(std::vector<zel::Key>& keys, std::vector<Record>& records) const requires(operations.has(Op::GetList))
    {
        keys = store().keys(0);
        copyOut(keys, records);
        return static_cast<int>(!keys.empty());
    }

    int GetDataList(std::vector<Record>& records) const requires(operations.has(Op::GetDataList))
    {
        copyOut(store().keys(0), records);
        return static_cast<int>(!records.empty());
    }

    int GetNameList(std::vector<CString>& names) const requires(operations.has(Op::GetNameList))
    {
        names.clear();
        for (const zel::Key key : store().keys(0))
            names.push_back(typed(store().find(0, key)).name);
        return static_cast<int>(!names.empty());
    }

    int Get(zel::Key key) requires(operations.has(Op::GetByKey)) { return loadFound(key); }

    int Get(const CString& name) requires(operations.has(Op::GetByName)) { return loadFound(store().keyByName(0, name)); }

    int Get(zel::Key key, Record& record) const requires(operations.has(Op::GetByKey)) { return copyFound(key, record); }

    int Get(Record& record) const requires(operations.has(Op::GetOut)) { return copyFound(1, record); }

    int Get() requires(operations.has(Op::GetSingle)) { return loadFound(1); }

    int Exist(const CString& name) const requires(operations.has(Op::ExistName)) { return static_cast<int>(store().keyByName(0, name) != 0); }

    int Exist(zel::Key key) const requires(operations.has(Op::ExistKey)) { return static_cast<int>(store().find(0, key) != nullptr); }

    zel::Key GetKeyByName(const CString& name) const requires(operations.has(Op::Translate)) { return store().keyByName(0, name); }

    CString GetNameByKey(zel::Key key) const requires(operations.has(Op::Translate))
    {
        const zel::RecordPtr found = store().find(0, key);
        return found ? typed(found).name : CString();
    }

    /// The highest key + 1.
    zel::Key GetNewKey() const requires(operations.has(Op::GetNewKey)) { return store().freeKeyAbove(0, store().largestKey(0)); }

    /// The smallest free key above `key`.
    zel::Key GetNewKey(zel::Key key) const requires(operations.has(Op::GetNewKeyAfter)) { return store().freeKeyAbove(0, key); }

    zel::Key GetLargeKey() const requires(operations.has(Op::GetLargeKey)) { return store().largestKey(0); }

    /// Adds the current record under the current key; on a table of one record, writes the one record.
    int Add() requires(operations.has(Op::AddCurrent)) { return addOne(single() ? 1 : currentKey, currentRecord, single()); }

    int Add(const Record& record) requires(operations.has(Op::AddRecord)) { return addOne(single() ? 1 : 0, record, single()); }

    int Add(const std::vector<Record>& records) requires(operations.has(Op::AddRecords))
    {
        return store().add(0, std::vector<zel::Key>(records.size(), 0), zel::shareAll(records), false);
    }

    int Add(zel::Key key, const Record& record) requires(operations.has(Op::AddKey)) { return addOne(key, record, false); }

    /// Adds several under given keys. A key 0 means a new one. With `replace` 0 one key in use refuses them all.
    int Add(const std::vector<zel::Key>& keys, const std::vector<Record>& records, int replace) requires(operations.has(Op::AddKeys))
    {
        return store().add(0, keys, zel::shareAll(records), replace != 0);
    }

    /// Writes one record for each of the keys, replacing what stood there.
    int Add(const std::vector<zel::Key>& keys, const Record& record) requires(operations.has(Op::AddForKeys))
    {
        return store().add(0, keys, std::vector<zel::RecordPtr>(keys.size(), zel::share(record)), true);
    }

    int Modify() requires(operations.has(Op::ModifySingle)) { return addOne(1, currentRecord, true); }

    /// Replaces the record under `oldKey` by the current record under the current key.
    int Modify(zel::Key oldKey) requires(operations.has(Op::ModifyByKey)) { return modifyOne(oldKey, currentKey, currentRecord); }

    /// Replaces the record of that name by the current record; its key stays unless the current key is another.
    int Modify(const CString& oldName) requires(operations.has(Op::ModifyByName))
    {
        const zel::Key oldKey = store().keyByName(0, oldName);
        if (oldKey == 0)
            return zel::refuseMissing(store().info(), oldName);
        return modifyOne(oldKey, currentKey != 0 ? currentKey : oldKey, currentRecord);
    }

    int Modify(zel::Key key, const Record& record) requires(operations.has(Op::ModifyRecord)) { return modifyOne(key, key, record); }

    int Modify(const std::vector<CString>& oldNames, const std::vector<Record>& records) requires(operations.has(Op::ModifyNames))
    {
        std::vector<zel::Key> keys;
        if (!keysOf(oldNames, keys))
            return 0;
        return store().modify(0, keys, keys, zel::shareAll(records));
    }

    int Del(zel::Key key) requires(operations.has(Op::DelKey)) { return store().remove(0, {key}); }

    int Del(const CString& name) requires(operations.has(Op::DelName)) { return delNames({name}); }

    int Del(const std::vector<zel::Key>& keys) requires(operations.has(Op::DelKeys)) { return store().remove(0, keys); }

    int Del(const std::vector<CString>& names) requires(operations.has(Op::DelNames)) { return delNames(names); }

    int Del() requires(operations.has(Op::DelSingle)) { return store().remove(0, {1}); }

    /// Resets the current record to its defaults, in current units.
    void Initialize() requires(operations.has(Op::Initialize))
    {
        currentRecord = Record{};
        zel::convertDefaults(store().info(), &currentRecord);
    }

    int ChangeSequence(const std::vector<zel::Key>& keys, zel::Key afterKey) requires(operations.has(Op::ChangeSequence))
    {
        return store().changeSequence(0, keys, afterKey);
    }

    TablePosition GetStart() const requires(operations.has(Op::Iterate)) { return store().nextInSequence(0, 0); }

    /// Loads the record at `position` and moves on.
    int GetNext(TablePosition& position) requires(operations.has(Op::Iterate))
    {
        const zel::Key key = position;
        position = store().nextInSequence(0, key);
        return loadFound(key);
    }

    void ConvertUnitPrev() requires(operations.has(Op::ConvertUnitPrev)) { zel::convertRecordFromPrevious(store().info(), &currentRecord); }

protected:
    static const Record& typed(const zel::RecordPtr& record) { return *static_cast<const Record*>(record.get()); }

private:
    [[nodiscard]] bool single() const { return store().info().shape == zel::TableShape::single; }

    int loadFound(zel::Key key)
    {
        const zel::RecordPtr found = store().find(0, key);
        if (!found)
            return 0;
        currentKey = key;
        currentRecord = typed(found);
        return 1;
    }

    int copyFound(zel::Key key, Record& record) const
    {
        const zel::RecordPtr found = store().find(0, key);
        if (!found)
            return 0;
        record = typed(found);
        return 1;
    }

    void copyOut(const std::vector<zel::Key>& keys, std::vector<Record>& records) const
    {
        records.clear();
        records.reserve(keys.size());
        for (const zel::Key key : keys)
            records.push_back(typed(store().find(0, key)));
    }

    int addOne(zel::Key key, const Record& record, bool replace) { return store().add(0, {key}, {zel::share(record)}, replace); }

    int modifyOne(zel::Key oldKey, zel::Key newKey, const Record& record) { return store().modify(0, {oldKey}, {newKey}, {zel::share(record)}); }

    bool keysOf(const std::vector<CString>& names, std::vector<zel::Key>& keys)
    {
        for (const CString& name : names) {
            const zel::Key key = store().keyByName(0, name);
            if (key == 0)
                return zel::refuseMissing(store().info(), name) != 0;
            keys.push_back(key);
        }
        return true;
    }

    int delNames(const std::vector<CString>& names)
    {
        std::vector<zel::Key> keys;
        return keysOf(names, keys) ? store().remove(0, keys) : 0;
    }
};

/// The table of a handle type.
namespace zel {

template <class Handle> Table tableOfHandle()
{
    return tableOfRecord<decltype(Handle::currentRecord)>().table;
}

}  // namespace zel

/// The public update codes of a handle; the registry gives them their numbers.
#define ZEL_ADD_AND_DELETE_CODES(CODE)                                                                                                                         \
    static const int UR_##CODE##_ADD;                                                                                                                          \
    static const int UR_##CODE##_DEL;
#define ZEL_UPDATE_CODES(CODE)                                                                                                                                 \
    ZEL_ADD_AND_DELETE_CODES(CODE)                                                                                                                             \
    static const int UR_##CODE##_MFD;                                                                                                                          \
    static const int UR_##CODE##_MFS;
