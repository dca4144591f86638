#pragma once

#include "contract/records/envl.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <array>
#include <vector>

/// What an envelope is made of: static load cases and combinations, by type and key. All in the header, so that hosts use it too.
namespace zel::loadcomb {

struct EnvelopeItemType {
    int type;
    const char* label;
    int kind;  ///< design kind of a combination; 0 for other items
};

// Response spectrum, time history, moving load and settlement cases come from other programs: they keep their label, and no table of this
// model holds them. Type 5 has no label.
inline constexpr std::array<EnvelopeItemType, 10> envelopeItemTypes{{
    {0, "ST", 0},
    {1, "RS", 0},
    {2, "TH", 0},
    {3, "MV", 0},
    {4, "SM", 0},
    {6, "CB", 1},
    {7, "CBS", 2},
    {8, "CBC", 3},
    {9, "CBF", 4},
    {10, "CBR", 5},
}};
inline constexpr int staticItemType = 0;

/// Null for a type without a row.
inline const EnvelopeItemType* findEnvelopeItemType(int type)
{
    const auto* found = std::ranges::find(envelopeItemTypes, type, &EnvelopeItemType::type);
    return found != envelopeItemTypes.end() ? found : nullptr;
}

/// The label of an item type; empty for a type without one.
inline CString envelopeTypeLabel(int type)
{
    const EnvelopeItemType* found = findEnvelopeItemType(type);
    return found != nullptr ? found->label : "";
}

/// The name of what an item stands for, read from its table; empty when it no longer exists.
inline CString envelopeItemName(const T_ENVL_BASE& item)
{
    if (item.type == staticItemType)
        return CDataStld().GetNameByKey(item.key);
    const EnvelopeItemType* type = findEnvelopeItemType(item.type);
    T_LCOM_D combination;
    if (type == nullptr || type->kind == 0 || CDataLcom().Get(type->kind, item.key, combination) == 0)
        return {};
    return combination.name;
}

/// Everything that can be enveloped: the static load cases, then the combinations of the kinds 1 to 5, each in the sequence of its table.
inline std::vector<T_ENVL_BASE> envelopeCandidates()
{
    std::vector<T_ENVL_BASE> candidates;
    std::vector<Key> keys;
    CDataStld().GetKeyList(keys);
    for (const Key key : keys)
        candidates.push_back({staticItemType, key});
    for (const EnvelopeItemType& type : envelopeItemTypes) {
        if (type.kind == 0)
            continue;
        CDataLcom().GetKeyList(type.kind, keys);
        for (const Key key : keys)
            candidates.push_back({type.type, key});
    }
    return candidates;
}

}  // namespace zel::loadcomb
