#include "contract/tables/load_combination_table.h"

#include <utility>

namespace {

int addAll(zel::ITable& table, int kind, std::vector<zel::RecordPtr> records)
{
    const std::vector<zel::Key> newKeys(records.size(), 0);
    return table.add(kind, newKeys, std::move(records), false);
}

}  // namespace

void CDataLcom::load(int /*kind*/, zel::Key key, const zel::RecordPtr& record)
{
    currentKey = key;
    currentRecord = typed(record);
}

int CDataLcom::GetKeyList(int kind, std::vector<zel::Key>& keys) const
{
    keys = store().keys(kind);
    return static_cast<int>(!keys.empty());
}

int CDataLcom::GetList(int kind, std::vector<zel::Key>& keys, std::vector<T_LCOM_D>& records) const
{
    keys = store().keys(kind);
    records.clear();
    records.reserve(keys.size());
    for (const zel::Key key : keys)
        records.push_back(typed(store().find(kind, key)));
    return static_cast<int>(!keys.empty());
}

int CDataLcom::GetNameList(int kind, std::vector<CString>& names) const
{
    names.clear();
    for (const zel::Key key : store().keys(kind))
        names.push_back(typed(store().find(kind, key)).name);
    return static_cast<int>(!names.empty());
}

int CDataLcom::Get(int kind, zel::Key key)
{
    const zel::RecordPtr found = store().find(kind, key);
    if (!found)
        return 0;
    load(kind, key, found);
    return 1;
}

int CDataLcom::Get(int kind, const CString& name)
{
    return Get(kind, store().keyByName(kind, name));
}

int CDataLcom::Get(int kind, zel::Key key, T_LCOM_D& record) const
{
    const zel::RecordPtr found = store().find(kind, key);
    if (!found)
        return 0;
    record = typed(found);
    return 1;
}

int CDataLcom::Add(int kind, const T_LCOM_D& record)
{
    return addAll(store(), kind, {zel::share(record)});
}

int CDataLcom::Add(int kind, const std::vector<T_LCOM_D>& records)
{
    return addAll(store(), kind, zel::shareAll(records));
}

int CDataLcom::Add(int kind, std::vector<T_LCOM_D>&& records)
{
    std::vector<zel::RecordPtr> shared;
    shared.reserve(records.size());
    std::int32_t place = store().count(kind);
    for (T_LCOM_D& record : records) {  // with the fields that the table keeps, so that it need not copy the record
        record.kind = kind;
        record.number = ++place;
        shared.push_back(std::make_shared<T_LCOM_D>(std::move(record)));
    }
    records.clear();
    return addAll(store(), kind, std::move(shared));
}

int CDataLcom::Modify(int kind, const CString& oldName)
{
    const zel::Key oldKey = store().keyByName(kind, oldName);
    if (oldKey == 0)
        return zel::refuseMissing(store().info(), oldName);
    return store().modify(kind, {oldKey}, {currentKey != 0 ? currentKey : oldKey}, {zel::share(currentRecord)});
}

int CDataLcom::Del(int kind, const std::vector<CString>& names)
{
    std::vector<zel::Key> keys;
    for (const CString& name : names) {
        keys.push_back(store().keyByName(kind, name));
        if (keys.back() == 0)
            return zel::refuseMissing(store().info(), name);
    }
    return store().remove(kind, keys);
}

int CDataLcom::Merge(T_LCOM_D& target, const T_LCOM_D& source) const
{
    if (target.items.size() + source.items.size() > static_cast<std::size_t>(mergeLimit))
        return 0;
    const std::vector<T_LCOM_ITEM> added = source.items;  // the source may be the target
    target.items.insert(target.items.end(), added.begin(), added.end());
    return 1;
}
