#include "platform/modeldb/references.h"

#include "contract/record.h"
#include "contract/records/arla.h"
#include "contract/records/arld.h"
#include "contract/records/beam.h"
#include "contract/records/cosa.h"
#include "contract/records/cosd.h"
#include "contract/records/lcom.h"
#include "contract/records/lnla.h"
#include "contract/records/lnld.h"
#include "contract/records/ltom.h"
#include "contract/records/matl.h"
#include "contract/records/pisa.h"
#include "contract/records/pisd.h"
#include "contract/records/ptla.h"
#include "contract/records/secf.h"
#include "contract/records/sect.h"
#include "contract/records/slab.h"
#include "contract/records/sosa.h"
#include "contract/records/sosd.h"
#include "contract/records/spdi.h"
#include "contract/records/spdp.h"
#include "contract/records/stld.h"
#include "contract/records/thik.h"
#include "contract/records/thkf.h"
#include "contract/records/wasa.h"
#include "contract/records/wasd.h"

#include <vector>

namespace zel {

namespace {

using Tell = std::function<void(Key)>;

/// A field of the record holds the key.
template <class Target, class User> Reference inField(Key User::*field)
{
    return {&tableOfRecord<Target>(), &tableOfRecord<User>(), fieldOf(field)->name,
            [field](Key /*own*/, const void* record, const Tell& tell) { tell(static_cast<const User*>(record)->*field); }};
}

/// The elements of a list hold keys: all of them, or those that `holds` says.
template <class Target, class User, class Element> Reference inList(
    std::vector<Element> User::*list, Key Element::*field, bool (*holds)(const Element&) = [](const Element&) { return true; })
{
    return {&tableOfRecord<Target>(), &tableOfRecord<User>(), fieldOf(list)->name, [=](Key /*own*/, const void* record, const Tell& tell) {
                for (const Element& element : static_cast<const User*>(record)->*list) {
                    if (holds(element))
                        tell(element.*field);
                }
            }};
}

/// The record stands under the key of the other one.
template <class Target, class User> Reference underItsKey()
{
    return {&tableOfRecord<Target>(), &tableOfRecord<User>(), {}, [](Key own, const void* /*record*/, const Tell& tell) { tell(own); }};
}

bool isStaticLoadCase(const T_LCOM_ITEM& item)
{
    return item.type == 1;
}

}  // namespace

std::span<const Reference> references()
{
    static const std::vector<Reference> all{
        inList<T_STLD_D>(&T_LCOM_D::items, &T_LCOM_ITEM::key, isStaticLoadCase),
        inField<T_STLD_D>(&T_LNLD_D::loadCase1),
        inField<T_STLD_D>(&T_LNLD_D::loadCase2),
        inField<T_STLD_D>(&T_LNLD_D::loadCase3),
        inField<T_STLD_D>(&T_ARLD_D::loadCase1),
        inField<T_STLD_D>(&T_ARLD_D::loadCase2),
        inField<T_STLD_D>(&T_ARLD_D::loadCase3),
        inField<T_STLD_D>(&T_PTLA_D::loadCaseKey),
        inField<T_STLD_D>(&T_SPDP_D::loadCaseKey),
        inField<T_STLD_D>(&T_SPDI_D::loadCaseKey),
        inList<T_STLD_D>(&T_LTOM_D::cases, &T_LTOM_BASE::loadCase),
        inField<T_LNLD_D>(&T_LNLA_D::typeKey),
        inField<T_ARLD_D>(&T_ARLA_D::typeKey),
        inField<T_MATL_D>(&T_BEAM_D::materialKey),
        inField<T_MATL_D>(&T_SLAB_D::materialKey),
        inField<T_SECT_D>(&T_BEAM_D::sectionKey),
        underItsKey<T_SECT_D, T_SECF_D>(),
        inField<T_THIK_D>(&T_SLAB_D::thicknessKey),
        underItsKey<T_THIK_D, T_THKF_D>(),
        inField<T_COSD_D>(&T_COSA_D::typeKey),
        inField<T_PISD_D>(&T_PISA_D::typeKey),
        inField<T_WASD_D>(&T_WASA_D::typeKey),
        inField<T_SOSD_D>(&T_SOSA_D::typeKey),
    };
    return all;
}

void eachUser(Table target, const std::unordered_set<Key>& keys, const std::function<ITable&(Table)>& table,
              const std::function<bool(const TableInfo& user, Key key, const void* record)>& found)
{
    std::unordered_set<const void*> told;  // a record that refers by two fields is one user
    for (const Reference& reference : references()) {
        if (reference.target->table != target)
            continue;
        const ITable& users = table(reference.user->table);
        for (const int kind : kindsOf(users.info())) {
            for (const Key key : users.keys(kind)) {
                const RecordPtr record = users.find(kind, key);
                bool refers = false;
                reference.eachKey(key, record.get(), [&](Key held) { refers = refers || keys.contains(held); });
                if (refers && told.insert(record.get()).second && !found(users.info(), key, record.get()))
                    return;
            }
        }
    }
}

}  // namespace zel
