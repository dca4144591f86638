#include "loadcomb/envelope_item.h"

#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_tables.h"

#include <algorithm>
#include <array>

namespace zel::loadcomb {

namespace {

struct ItemType {
    int type;
    const char* label;
    int kind;    ///< design kind of a combination; 0 for other items
};

// Response spectrum, time history, moving load and settlement cases come from other programs of the family: they keep their label, and
// no table of this model holds them. Type 5 has no label.
constexpr std::array<ItemType, 10> itemTypes{{
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
constexpr int staticType = 0;

const ItemType* findType(int type)
{
    const auto found = std::ranges::find(itemTypes, type, &ItemType::type);
    return found != itemTypes.end() ? &*found : nullptr;
}

}  // namespace

CString envelopeTypeLabel(int type)
{
    const ItemType* found = findType(type);
    return found != nullptr ? found->label : "";
}

CString envelopeItemName(const T_ENVL_BASE& item)
{
    if (item.type == staticType)
        return CDataStld().GetNameByKey(item.key);
    const ItemType* type = findType(item.type);
    T_LCOM_D combination;
    if (type == nullptr || type->kind == 0 || CDataLcom().Get(type->kind, item.key, combination) == 0)
        return {};
    return combination.name;
}

std::vector<T_ENVL_BASE> envelopeCandidates()
{
    std::vector<T_ENVL_BASE> candidates;
    std::vector<Key> keys;
    CDataStld().GetKeyList(keys);
    for (const Key key : keys)
        candidates.push_back({staticType, key});
    for (const ItemType& type : itemTypes) {
        if (type.kind == 0)
            continue;
        CDataLcom().GetKeyList(type.kind, keys);
        for (const Key key : keys)
            candidates.push_back({type.type, key});
    }
    return candidates;
}

}  // namespace zel::loadcomb
