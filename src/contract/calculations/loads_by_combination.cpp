#include "contract/calculations/loads_by_combination.h"

#include "contract/name_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <tuple>
#include <type_traits>

namespace zel {

namespace {

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
template <class Record> LoadChanges<Record> addedUp(const Rows<Record>& rows, const LoadTarget& target)
{
    LoadChanges<Record> changes;
    std::map<Place, std::pair<Key, Record>> sums;  // key 0: a new load
    for (const auto& [key, load] : rows) {
        if (load.loadCaseKey != target.loadCase)
            continue;
        if (target.removeOwn)
            changes.removed.push_back(key);
        else
            sums.try_emplace(placeOf(load), key, load);
    }
    std::set<Place> touched;
    for (const auto& [key, load] : rows) {
        const auto factor = target.factors.find(load.loadCaseKey);
        if (factor == target.factors.end())
            continue;
        Record fresh = load;
        fresh.loadCaseKey = target.loadCase;
        if constexpr (requires { fresh.rows; })
            fresh.rows.clear();
        else
            fresh.value = {};
        addTo(sums.try_emplace(placeOf(load), 0, fresh).first->second.second, load, factor->second);
        touched.insert(placeOf(load));
    }
    for (const auto& [place, sum] : sums) {
        if (touched.contains(place))
            (sum.first != 0 ? changes.changed : changes.added).push_back(sum);
    }
    return changes;
}

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

/// The type without the loads of a case.
template <class Type> Type without(Type type, Key loadCase)
{
    for (const auto& place : typePlaces<Type>) {
        if (type.*place.loadCase == loadCase) {
            type.*place.loadCase = 0;
            type.*place.load = 0.0;
        }
    }
    return type;
}

/// A type that holds the load in one place of another, times a factor, for the target case.
template <class Type> Type madeOf(const Type& type, std::size_t place, double factor, Key loadCase)
{
    Type made;
    made.description = type.description;
    made.loadCase1 = loadCase;
    made.load1 = factor * (type.*typePlaces<Type>[place].load);
    if constexpr (std::is_same_v<Type, T_ARLD_D>)
        made.includeWeight1 = type.*includeWeights[place];
    return made;
}

template <class Type, class Assigned>
TypeChanges<Type, Assigned> newTypes(const Rows<Type>& types, const Rows<Assigned>& assigned, Key largestKey, const LoadTarget& target)
{
    TypeChanges<Type, Assigned> changes;
    std::set<CString> taken;
    std::set<Key> used;
    for (const auto& [key, type] : types)
        taken.insert(foldedName(type.name));
    for (const auto& [key, assignment] : assigned)
        used.insert(assignment.typeKey);

    Key newKey = largestKey;
    for (const auto& [key, type] : types) {
        if (target.removeOwn) {
            const Type rest = without(type, target.loadCase);
            if (!(rest == type))
                changes.types.changed.emplace_back(key, rest);
        }
        for (std::size_t place = 0; place < placeCount && used.contains(key); ++place) {
            const auto factor = target.factors.find(type.*typePlaces<Type>[place].loadCase);
            if (factor == target.factors.end())
                continue;
            Type made = madeOf(type, place, factor->second, target.loadCase);
            made.name = freeName(type.name, taken);
            changes.types.added.emplace_back(++newKey, made);
            for (const auto& [assignedKey, assignment] : assigned) {
                if (assignment.typeKey != key)
                    continue;
                Assigned copy = assignment;
                copy.typeKey = newKey;
                changes.assignments.added.emplace_back(0, copy);
            }
        }
    }
    return changes;
}

}  // namespace

LoadChanges<T_PTLA_D> combinedLoads(const Rows<T_PTLA_D>& rows, const LoadTarget& target)
{
    return addedUp(rows, target);
}

LoadChanges<T_SPDP_D> combinedLoads(const Rows<T_SPDP_D>& rows, const LoadTarget& target)
{
    return addedUp(rows, target);
}

LoadChanges<T_SPDI_D> combinedLoads(const Rows<T_SPDI_D>& rows, const LoadTarget& target)
{
    return addedUp(rows, target);
}

TypeChanges<T_LNLD_D, T_LNLA_D> combinedTypes(const Rows<T_LNLD_D>& types, const Rows<T_LNLA_D>& assigned, Key largestKey, const LoadTarget& target)
{
    return newTypes(types, assigned, largestKey, target);
}

TypeChanges<T_ARLD_D, T_ARLA_D> combinedTypes(const Rows<T_ARLD_D>& types, const Rows<T_ARLA_D>& assigned, Key largestKey, const LoadTarget& target)
{
    return newTypes(types, assigned, largestKey, target);
}

}  // namespace zel
