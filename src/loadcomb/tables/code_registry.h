#pragma once

#include "loadcomb/tables/code_table.h"

#include "loadcomb/tables/aci318_02.h"
#include "loadcomb/tables/aci318_89.h"
#include "loadcomb/tables/aik_usd94.h"
#include "loadcomb/tables/bs8110_97.h"
#include "loadcomb/tables/csa_a23_3_94.h"
#include "loadcomb/tables/gb50010_02.h"
#include "loadcomb/tables/kbc_kds.h"
#include "loadcomb/tables/kbc_usd05.h"
#include "loadcomb/tables/kbc_usd09.h"
#include "loadcomb/tables/kci_usd12.h"
#include "loadcomb/tables/kci_usd99.h"
#include "loadcomb/tables/ksce_usd96.h"
#include "loadcomb/tables/unnamed_first.h"
#include "loadcomb/tables/unnamed_second.h"

// The design codes of the general kind, one line each, in the order in which a name is looked up.
namespace zel::codes {

struct CodeEntry {
    std::string_view name;
    const CodeTable* table = nullptr;
    const CodeTable* tableOfLoadCode0 = nullptr;    ///< where the choice of "Load Code" 0 selects another one
};

// AIK-USD94, KBC-USD16, KDS 41 30 : 2018, KDS 41 20 : 2022, KCI-USD12, KBC-USD09, KBC-USD05, KCI-USD99, KSCE-USD96, ACI318-89,
// ACI318-95, ACI318-99 (these three share aci318_89.h), ACI318-02, BS8110-97, GB50010-02, CSA-A23.3-94. Two further tables are kept
// for codes that have no name yet (unnamed_first.h, unnamed_second.h): they are included here and stand in no line.
inline constexpr CodeEntry codeRegistry[] = {
    {"AIK-USD94", &aik_usd94},
    {"KBC-USD16", &kbc_usd16},
    {"KDS 41 30 : 2018", &kds_41_30_2018, &kds_41_30_2018_load_code_0},
    {"KDS 41 20 : 2022", &kds_41_20_2022},
    {"KCI-USD12", &kci_usd12},
    {"KBC-USD09", &kbc_usd09},
    {"KBC-USD05", &kbc_usd05},
    {"KCI-USD99", &kci_usd99},
    {"KSCE-USD96", &ksce_usd96},
    {"ACI318-89", &aci318_89},
    {"ACI318-95", &aci318_89},
    {"ACI318-99", &aci318_89},
    {"ACI318-02", &aci318_02},
    {"BS8110-97", &bs8110_97},
    {"GB50010-02", &gb50010_02},
    {"CSA-A23.3-94", &csa_a23_3_94},
};

/// The entry of that name, exactly; null for any other name.
constexpr const CodeEntry* findCode(std::string_view name)
{
    for (const CodeEntry& entry : codeRegistry) {
        if (entry.name == name)
            return &entry;
    }
    return nullptr;
}

}  // namespace zel::codes
