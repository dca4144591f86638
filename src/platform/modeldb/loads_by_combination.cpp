#include "contract/document.h"
#include "contract/messages.h"
#include "contract/records/all.h"
#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/user_interface.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace zel {

namespace {

/// The factor of each static load case of a combination. A case that stands in it twice counts twice.
using Factors = std::map<Key, double>;

template <class Record> const Record& typed(const RecordPtr& record)
{
    return *static_cast<const Record*>(record.get());
}

template <class Record> std::vector<std::pair<Key, Record>> allOf(ITable& table)
{
    std::vector<std::pair<Key, Record>> rows;
    for (const Key key : table.keys(0))
        rows.emplace_back(key, typed<Record>(table.find(0, key)));
    return rows;
}

/// The writes on one table, gathered while everything is still as it was.
struct Writes {
    explicit Writes(ITable& itsTable) : table(itsTable) {}

    ITable& table;
    std::vector<Key> removed;
    std::vector<Key> changedKeys;
    std::vector<RecordPtr> changed;
    std::vector<Key> addedKeys;
    std::vector<RecordPtr> added;

    template <class Record> void change(Key key, const Record& record)
    {
        changedKeys.push_back(key);
        changed.push_back(std::make_shared<Record>(record));
    }
    template <class Record> void add(Key key, const Record& record)
    {
        addedKeys.push_back(key);
        added.push_back(std::make_shared<Record>(record));
    }
    [[nodiscard]] bool make()
    {
        return (removed.empty() || table.remove(0, removed) != 0) && (changed.empty() || table.modify(0, changedKeys, changedKeys, std::move(changed)) != 0) &&
            (added.empty() || table.add(0, addedKeys, std::move(added), false) != 0);
    }
};

// ---- loads that name their load case -------------------------------------------------------------------------------

using Place = std::tuple<Key, Key, std::int32_t>;  ///< points, sub-load case

Place placeOf(const T_PTLA_D& load)
{
    return {load.pointKey, 0, load.subLoadCaseNo};
}
Place placeOf(const T_SPDP_D& load)
{
    return {load.pointKey, 0, load.subLoadCaseNo};
}
Place placeOf(const T_SPDI_D& load)
{
    return {load.point1, load.point2, load.subLoadCaseNo};
}

template <std::size_t N> void addTo(std::array<double, N>& target, const std::array<double, N>& source, double factor)
{
    for (std::size_t i = 0; i < N; ++i)
        target[i] += factor * source[i];
}

/// A degree of freedom is prescribed where either prescribes it.
void joinFlags(CString& target, const CString& source)
{
    target.resize(std::max(target.size(), source.size()), '0');
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i] == '1')
            target[i] = '1';
    }
}

void addTo(T_PTLA_D& target, const T_PTLA_D& source, double factor)
{
    addTo(target.value, source.value, factor);
}

void addTo(T_SPDP_D& target, const T_SPDP_D& source, double factor)
{
    addTo(target.value, source.value, factor);
    joinFlags(target.dofFlags, source.dofFlags);
}

/// The values at `x`, linear between the rows and constant beyond them.
std::array<double, 6> valueAt(const std::vector<T_SPDI_BASE>& rows, double x)
{
    if (rows.empty())
        return {};
    const auto above = std::lower_bound(rows.begin(), rows.end(), x, [](const T_SPDI_BASE& row, double at) { return row.x < at; });
    if (above == rows.end())
        return rows.back().value;
    if (above == rows.begin() || above->x == x)
        return above->value;
    const T_SPDI_BASE& below = *std::prev(above);
    std::array<double, 6> value{};
    for (std::size_t i = 0; i < value.size(); ++i)
        value[i] = std::lerp(below.value[i], above->value[i], (x - below.x) / (above->x - below.x));
    return value;
}

void addTo(T_SPDI_D& target, const T_SPDI_D& source, double factor)
{
    std::set<double> positions;
    for (const T_SPDI_BASE& row : target.rows)
        positions.insert(row.x);
    for (const T_SPDI_BASE& row : source.rows)
        positions.insert(row.x);
    std::vector<T_SPDI_BASE> sum;
    for (const double x : positions) {
        T_SPDI_BASE row{x, valueAt(target.rows, x)};
        addTo(row.value, valueAt(source.rows, x), factor);
        sum.push_back(row);
    }
    target.rows = std::move(sum);
    joinFlags(target.dofFlags, source.dofFlags);
}

/// The loads of one table, of the combination's cases, added to those of the target case.
template <class Record> Writes copyLoads(ITable& table, const Factors& factors, Key targetKey, bool removeOwn)
{
    Writes writes(table);
    const auto rows = allOf<Record>(table);
    std::map<Place, std::pair<Key, Record>> sums;  // key 0: a new load
    for (const auto& [key, load] : rows) {
        if (load.loadCaseKey != targetKey)
            continue;
        if (removeOwn)
            writes.removed.push_back(key);
        else
            sums.try_emplace(placeOf(load), key, load);
    }
    std::set<Place> touched;
    for (const auto& [key, load] : rows) {
        const auto factor = factors.find(load.loadCaseKey);
        if (factor == factors.end())
            continue;
        Record fresh{};
        fresh = load;
        fresh.loadCaseKey = targetKey;
        if constexpr (requires { fresh.rows; })
            fresh.rows.clear();
        else
            fresh.value = {};
        addTo(sums.try_emplace(placeOf(load), 0, fresh).first->second.second, load, factor->second);
        touched.insert(placeOf(load));
    }
    for (const auto& [place, sum] : sums) {
        if (!touched.contains(place))
            continue;
        if (sum.first != 0)
            writes.change(sum.first, sum.second);
        else
            writes.add(0, sum.second);
    }
    return writes;
}

// ---- loads that stand in types -------------------------------------------------------------------------------------

constexpr std::size_t placeCount = 3;

template <class Type> struct TypePlace {
    std::uint32_t Type::*loadCase;
    double Type::*load;
};
template <class Type> constexpr std::array<TypePlace<Type>, placeCount> typePlaces{
    {{&Type::loadCase1, &Type::load1}, {&Type::loadCase2, &Type::load2}, {&Type::loadCase3, &Type::load3}}};

/// Whether the model weight belongs to the load in a place; only area loads say.
std::int32_t T_ARLD_D::*const includeWeights[] = {&T_ARLD_D::includeWeight1, &T_ARLD_D::includeWeight2, &T_ARLD_D::includeWeight3};

/// "wall-1": the old name and the first number that gives a free name.
CString freeName(const CString& name, std::set<CString>& taken)
{
    for (int number = 1;; ++number) {
        CString candidate = name + "-" + std::to_string(number);
        if (taken.insert(foldedName(candidate)).second)
            return candidate;
    }
}

/// The new types of a table of load types, and their assignments.
template <class Type, class Assigned>
std::pair<Writes, Writes> copyTypes(ITable& types, ITable& assignments, const Factors& factors, Key targetKey, bool removeOwn)
{
    std::pair<Writes, Writes> writes{Writes(types), Writes(assignments)};
    const auto typeRows = allOf<Type>(types);
    const auto assigned = allOf<Assigned>(assignments);
    std::set<CString> taken;
    std::set<Key> used;
    for (const auto& [key, type] : typeRows)
        taken.insert(foldedName(type.name));
    for (const auto& [key, assignment] : assigned)
        used.insert(assignment.typeKey);

    Key newKey = types.largestKey(0);
    for (const auto& [key, type] : typeRows) {
        if (removeOwn) {
            Type without = type;
            for (const auto& place : typePlaces<Type>) {
                if (without.*place.loadCase == targetKey) {
                    without.*place.loadCase = 0;
                    without.*place.load = 0.0;
                }
            }
            if (!(without == type))
                writes.first.change(key, without);
        }
        for (std::size_t i = 0; i < placeCount && used.contains(key); ++i) {
            const auto factor = factors.find(type.*typePlaces<Type>[i].loadCase);
            if (factor == factors.end())
                continue;
            Type made;
            made.name = freeName(type.name, taken);
            made.description = type.description;
            made.loadCase1 = targetKey;
            made.load1 = factor->second * (type.*typePlaces<Type>[i].load);
            if constexpr (std::is_same_v<Type, T_ARLD_D>)
                made.includeWeight1 = type.*includeWeights[i];
            writes.first.add(++newKey, made);
            for (const auto& [assignedKey, assignment] : assigned) {
                if (assignment.typeKey != key)
                    continue;
                Assigned copy = assignment;
                copy.typeKey = newKey;
                writes.second.add(0, copy);
            }
        }
    }
    return writes;
}

}  // namespace

}  // namespace zel

int CDataLcom::MakeLoadsByCombination(const T_LCOM_D& combination, zel::Key targetKey, const T_LOAD_ATTR& attributes, int deleteFlag)
{
    using namespace zel;
    CDBDoc& document = *CDBDoc::GetDocPoint();
    CDataStld cases;
    if (cases.Get(targetKey) == 0)
        return refuseMissing(tableInfo(Table::STLD), {});
    const bool removeOwn = deleteFlag != 0;
    Factors factors;
    for (const T_LCOM_ITEM& item : combination.items) {
        if (item.type != 1)
            continue;
        T_STLD_D source;
        if (cases.Get(item.key, source) != 0)
            factors[item.key] += item.factor;
        else
            GMsgOutFormatNF(CMsgDll::pfuncLoadStr("IDS_DB_LOADS_LOAD_CASE_GONE", 0), static_cast<int>(item.key));
    }

    // Everything is read here, before the first write.
    std::vector<Writes> writes;
    if (attributes.selfWeight != 0) {
        double sum = removeOwn ? 0.0 : cases.currentRecord.selfWeightFactor;
        T_STLD_D source;
        for (const auto& [key, factor] : factors) {
            if (cases.Get(key, source) != 0)
                sum += factor * source.selfWeightFactor;
        }
        if (sum != cases.currentRecord.selfWeightFactor) {
            T_STLD_D target = cases.currentRecord;
            target.selfWeightFactor = sum;
            writes.emplace_back(document.table(Table::STLD)).change(targetKey, target);
        }
    }
    if (attributes.pointLoad != 0)
        writes.push_back(copyLoads<T_PTLA_D>(document.table(Table::PTLA), factors, targetKey, removeOwn));
    if (attributes.specifiedDisplacement != 0) {
        writes.push_back(copyLoads<T_SPDP_D>(document.table(Table::SPDP), factors, targetKey, removeOwn));
        writes.push_back(copyLoads<T_SPDI_D>(document.table(Table::SPDI), factors, targetKey, removeOwn));
    }
    const auto addTypes = [&](std::pair<Writes, Writes> both) {  // the types before their assignments
        writes.push_back(std::move(both.first));
        writes.push_back(std::move(both.second));
    };
    if (attributes.lineLoad != 0)
        addTypes(copyTypes<T_LNLD_D, T_LNLA_D>(document.table(Table::LNLD), document.table(Table::LNLA), factors, targetKey, removeOwn));
    if (attributes.areaLoad != 0)
        addTypes(copyTypes<T_ARLD_D, T_ARLA_D>(document.table(Table::ARLD), document.table(Table::ARLA), factors, targetKey, removeOwn));

    document.beginChange("Create the loads of static load case \"" + cases.currentRecord.name + "\"");
    const bool made = std::ranges::all_of(writes, [](Writes& each) { return each.make(); });
    return document.endChange(static_cast<int>(made));
}
