#pragma once

#include "contract/records/arla.h"
#include "contract/records/arld.h"
#include "contract/records/lnla.h"
#include "contract/records/lnld.h"
#include "contract/records/ptla.h"
#include "contract/records/spdi.h"
#include "contract/records/spdp.h"
#include "contract/table_store.h"

#include <map>
#include <utility>
#include <vector>

/// The loads of a load combination as loads of one static load case: each load of each of its cases, times the factor of the case.
namespace zel {

/// Records of one table with their keys; key 0 stands for a new record.
template <class Record> using Rows = std::vector<std::pair<Key, Record>>;

/// What changes in one table of loads.
template <class Record> struct LoadChanges {
    std::vector<Key> removed;
    Rows<Record> changed;
    Rows<Record> added;
};

/// New load types and their assignments; the types are written first.
template <class Type, class Assigned> struct TypeChanges {
    LoadChanges<Type> types;
    LoadChanges<Assigned> assignments;
};

/// Where the loads go.
struct LoadTarget {
    std::map<Key, double> factors;  ///< of each static load case of the combination; one that stands in it twice counts twice
    Key loadCase = 0;               ///< that takes the loads
    bool removeOwn = false;         ///< whether its own loads go first
};

/// Point loads and prescribed displacements. Those at the same place and of the same sub-load case are added up; a degree of freedom
/// is prescribed where either prescribes it. An interpolation gets a row at each position of the two, its values linear between their
/// rows and constant beyond them.
LoadChanges<T_PTLA_D> combinedLoads(const Rows<T_PTLA_D>& rows, const LoadTarget& target);
LoadChanges<T_SPDP_D> combinedLoads(const Rows<T_SPDP_D>& rows, const LoadTarget& target);
LoadChanges<T_SPDI_D> combinedLoads(const Rows<T_SPDI_D>& rows, const LoadTarget& target);

/// Line and area loads. Each assigned type that holds a case of the combination gives a new type, named by the old name and the first
/// free number ("wall-1"), assigned to the same objects. Keys of new types follow `largestKey`, which is that of the types.
TypeChanges<T_LNLD_D, T_LNLA_D> combinedTypes(const Rows<T_LNLD_D>& types, const Rows<T_LNLA_D>& assigned, Key largestKey, const LoadTarget& target);
TypeChanges<T_ARLD_D, T_ARLA_D> combinedTypes(const Rows<T_ARLD_D>& types, const Rows<T_ARLA_D>& assigned, Key largestKey, const LoadTarget& target);

}  // namespace zel
