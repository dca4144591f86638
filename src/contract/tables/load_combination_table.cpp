#include "contract/tables/load_combination_table.h"

#include "contract/calculations/loads_by_combination.h"
#include "contract/messages.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/user_interface.h"

#include <utility>

namespace {

int addAll(zel::ITable& table, int kind, std::vector<zel::RecordPtr> records)
{
    const std::vector<zel::Key> newKeys(records.size(), 0);
    return table.add(kind, newKeys, std::move(records), false);
}

zel::ITable& tableFor(const zel::TableInfo& info)
{
    return CDBDoc::GetDocPoint()->table(info.table);
}

template <class Record> zel::Rows<Record> rowsOf()
{
    const zel::ITable& table = tableFor(zel::tableOfRecord<Record>());
    zel::Rows<Record> rows;
    for (const zel::Key key : table.keys(0))
        rows.emplace_back(key, *static_cast<const Record*>(table.find(0, key).get()));
    return rows;
}

template <class Record> std::pair<std::vector<zel::Key>, std::vector<zel::RecordPtr>> split(const zel::Rows<Record>& rows)
{
    std::pair<std::vector<zel::Key>, std::vector<zel::RecordPtr>> parts;
    for (const auto& [key, record] : rows) {
        parts.first.push_back(key);
        parts.second.push_back(zel::share(record));
    }
    return parts;
}

template <class Record> bool write(const zel::LoadChanges<Record>& changes)
{
    zel::ITable& table = tableFor(zel::tableOfRecord<Record>());
    auto [changedKeys, changed] = split(changes.changed);
    auto [addedKeys, added] = split(changes.added);
    return (changes.removed.empty() || table.remove(0, changes.removed) != 0) &&
        (changed.empty() || table.modify(0, changedKeys, changedKeys, std::move(changed)) != 0) &&
        (added.empty() || table.add(0, addedKeys, std::move(added), false) != 0);
}

template <class Type, class Assigned> bool write(const zel::TypeChanges<Type, Assigned>& changes)
{
    return write(changes.types) && write(changes.assignments);
}

template <class Type, class Assigned> zel::TypeChanges<Type, Assigned> newTypes(const zel::LoadTarget& target)
{
    return zel::combinedTypes(rowsOf<Type>(), rowsOf<Assigned>(), tableFor(zel::tableOfRecord<Type>()).largestKey(0), target);
}

/// The factors of the combination's static load cases; a case that is gone is told to the user and left out.
std::map<zel::Key, double> factorsOf(const T_LCOM_D& combination, const CDataStld& cases)
{
    std::map<zel::Key, double> factors;
    for (const T_LCOM_ITEM& item : combination.items) {
        if (item.type != 1)
            continue;
        if (cases.Exist(item.key) != 0)
            factors[item.key] += item.factor;
        else
            GMsgOutFormatNF(CMsgDll::pfuncLoadStr("IDS_DB_LOADS_LOAD_CASE_GONE", 0), static_cast<int>(item.key));
    }
    return factors;
}

/// The target case with the self weight of the combination's cases.
zel::LoadChanges<T_STLD_D> selfWeights(const CDataStld& cases, const zel::LoadTarget& target)
{
    T_STLD_D changed = cases.currentRecord;
    if (target.removeOwn)
        changed.selfWeightFactor = 0.0;
    for (const auto& [key, factor] : target.factors) {
        T_STLD_D source;
        if (cases.Get(key, source) != 0)
            changed.selfWeightFactor += factor * source.selfWeightFactor;
    }
    zel::LoadChanges<T_STLD_D> changes;
    if (changed.selfWeightFactor != cases.currentRecord.selfWeightFactor)
        changes.changed.emplace_back(target.loadCase, changed);
    return changes;
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

int CDataLcom::Modify(int kind, const std::vector<zel::Key>& keys, const std::vector<T_LCOM_D>& records)
{
    return store().modify(kind, keys, keys, zel::shareAll(records));
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

int CDataLcom::MakeLoadsByCombination(const T_LCOM_D& combination, zel::Key targetKey, const T_LOAD_ATTR& attributes, int deleteFlag)
{
    CDataStld cases;
    if (cases.Get(targetKey) == 0)
        return zel::refuseMissing(zel::tableOfRecord<T_STLD_D>(), {});
    const zel::LoadTarget target{factorsOf(combination, cases), targetKey, deleteFlag != 0};

    // Everything is read here, before the first write: the combination may hold the target.
    zel::LoadChanges<T_STLD_D> selfWeight;
    zel::LoadChanges<T_PTLA_D> points;
    zel::LoadChanges<T_SPDP_D> displacements;
    zel::LoadChanges<T_SPDI_D> interpolations;
    zel::TypeChanges<T_LNLD_D, T_LNLA_D> lines;
    zel::TypeChanges<T_ARLD_D, T_ARLA_D> areas;
    if (attributes.selfWeight != 0)
        selfWeight = selfWeights(cases, target);
    if (attributes.pointLoad != 0)
        points = zel::combinedLoads(rowsOf<T_PTLA_D>(), target);
    if (attributes.specifiedDisplacement != 0) {
        displacements = zel::combinedLoads(rowsOf<T_SPDP_D>(), target);
        interpolations = zel::combinedLoads(rowsOf<T_SPDI_D>(), target);
    }
    if (attributes.lineLoad != 0)
        lines = newTypes<T_LNLD_D, T_LNLA_D>(target);
    if (attributes.areaLoad != 0)
        areas = newTypes<T_ARLD_D, T_ARLA_D>(target);

    CDBDoc& document = *CDBDoc::GetDocPoint();
    document.beginChange("Create the loads of static load case \"" + cases.currentRecord.name + "\"");
    const bool made = write(selfWeight) && write(points) && write(displacements) && write(interpolations) && write(lines) && write(areas);
    return document.endChange(static_cast<int>(made));
}
