#include "platform/modeldb/references.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace zel {

namespace {

/// One field that holds keys of another table. A record whose field holds the key forbids deleting that record.
struct Reference {
    Table target;
    Table user;
    std::string_view list;       ///< the list whose elements hold the key; empty: the record itself
    std::string_view field;      ///< empty: the record's own key
    std::string_view condition;  ///< int32 field of the element that must be 1; empty: none
};

// Sets (wind, orthogonal, underground, seismic, scale-ups) and envelopes are not here: they forbid nothing, and their readers
// take a key without a record for none.
constexpr std::array references{
    //        target       user         list     field          condition
    Reference{Table::STLD, Table::LCOM, "items", "key", "type"},  // type 1 is a static load case
    Reference{Table::STLD, Table::LNLD, "", "loadCase1", ""},    Reference{Table::STLD, Table::LNLD, "", "loadCase2", ""},
    Reference{Table::STLD, Table::LNLD, "", "loadCase3", ""},    Reference{Table::STLD, Table::ARLD, "", "loadCase1", ""},
    Reference{Table::STLD, Table::ARLD, "", "loadCase2", ""},    Reference{Table::STLD, Table::ARLD, "", "loadCase3", ""},
    Reference{Table::STLD, Table::PTLA, "", "loadCaseKey", ""},  Reference{Table::STLD, Table::SPDP, "", "loadCaseKey", ""},
    Reference{Table::STLD, Table::SPDI, "", "loadCaseKey", ""},  Reference{Table::STLD, Table::LTOM, "cases", "loadCase", ""},
    Reference{Table::LNLD, Table::LNLA, "", "typeKey", ""},      Reference{Table::ARLD, Table::ARLA, "", "typeKey", ""},
    Reference{Table::MATL, Table::BEAM, "", "materialKey", ""},  Reference{Table::MATL, Table::SLAB, "", "materialKey", ""},
    Reference{Table::SECT, Table::BEAM, "", "sectionKey", ""},   Reference{Table::SECT, Table::SECF, "", "", ""},
    Reference{Table::THIK, Table::SLAB, "", "thicknessKey", ""}, Reference{Table::THIK, Table::THKF, "", "", ""},
    Reference{Table::COSD, Table::COSA, "", "typeKey", ""},      Reference{Table::PISD, Table::PISA, "", "typeKey", ""},
    Reference{Table::WASD, Table::WASA, "", "typeKey", ""},      Reference{Table::SOSD, Table::SOSA, "", "typeKey", ""},
};

template <class T> const T& value(const RecordInfo& info, std::string_view field, const void* record)
{
    return *static_cast<const T*>(info.find(field)->in(record));
}

bool refers(const Reference& reference, const RecordInfo& info, Key key, const void* record, const std::unordered_set<Key>& keys)
{
    if (reference.field.empty())
        return keys.contains(key);
    if (reference.list.empty())
        return keys.contains(value<Key>(info, reference.field, record));
    const FieldInfo& list = *info.find(reference.list);
    for (std::size_t i = 0; i < list.sizeIn(record); ++i) {
        const void* element = list.element(record, i);
        if (!reference.condition.empty() && value<std::int32_t>(*list.inner, reference.condition, element) != 1)
            continue;
        if (keys.contains(value<Key>(*list.inner, reference.field, element)))
            return true;
    }
    return false;
}

}  // namespace

void eachUser(Table target, const std::unordered_set<Key>& keys, const std::function<ITable&(Table)>& table,
              const std::function<bool(const TableInfo& user, Key key, const void* record)>& found)
{
    std::unordered_set<const void*> told;  // a record that refers by two fields is one user
    for (const Reference& reference : references) {
        if (reference.target != target)
            continue;
        const ITable& users = table(reference.user);
        const int lastKind = users.info().shape == TableShape::kinded ? 5 : 0;
        for (int kind = lastKind == 0 ? 0 : 1; kind <= lastKind; ++kind) {
            for (const Key key : users.keys(kind)) {
                const RecordPtr record = users.find(kind, key);
                if (refers(reference, *users.info().record, key, record.get(), keys) && told.insert(record.get()).second &&
                    !found(users.info(), key, record.get()))
                    return;
            }
        }
    }
}

}  // namespace zel
