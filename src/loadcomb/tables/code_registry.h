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

// The design codes of the general kind: the one list of them. Forms, the command line and the catalogue of the model library offer its
// names in its order, and what they ask about a code is read from its table.
namespace zel::codes {

struct CodeEntry {
    std::string_view name;                          ///< permanent: models' scripts and batches name codes by it
    std::string_view edition;                       ///< what is printed, by whom, when
    const CodeTable* table = nullptr;
    const CodeTable* tableOfLoadCode0 = nullptr;    ///< where the choice of "Load Code" 0 selects another one
};

// Two further tables are kept for codes that have no name yet (unnamed_first.h, unnamed_second.h): they are included here and stand in
// no line.
inline constexpr CodeEntry codeRegistry[] = {
    {"AIK-USD94",        "Ultimate strength design of concrete, Architectural Institute of Korea, 1994",                    &aik_usd94},
    {"KBC-USD16",        "Korean Building Code 2016, ultimate strength design of concrete",                                 &kbc_usd16},
    {"KDS 41 30 : 2018", "Korean Design Standards, 2018, ultimate strength design of concrete",                             &kds_41_30_2018,
                                                                                                                            &kds_41_30_2018_load_code_0},
    {"KDS 41 20 : 2022", "Korean Design Standards, 2022, ultimate strength design of concrete",                             &kds_41_20_2022},
    {"KCI-USD12",        "Ultimate strength design of concrete, Korea Concrete Institute, 2012",                            &kci_usd12},
    {"KBC-USD09",        "Korean Building Code 2009, ultimate strength design of concrete",                                 &kbc_usd09},
    {"KBC-USD05",        "Korean Building Code 2005, strength design of concrete",                                          &kbc_usd05},
    {"KCI-USD99",        "Ultimate strength design of concrete, Korea Concrete Institute, 1999",                            &kci_usd99},
    {"KSCE-USD96",       "Ultimate strength design of concrete, Korean Society of Civil Engineers, 1996",                   &ksce_usd96},
    {"ACI318-89",        "Building code requirements for structural concrete, American Concrete Institute, 1989",           &aci318_89},
    {"ACI318-95",        "Building code requirements for structural concrete, American Concrete Institute, 1995",           &aci318_89},
    {"ACI318-99",        "Building code requirements for structural concrete, American Concrete Institute, 1999",           &aci318_89},
    {"ACI318-02",        "Building code requirements for structural concrete, American Concrete Institute, 2002",           &aci318_02},
    {"BS8110-97",        "Structural use of concrete, British Standards Institution, 1997",                                 &bs8110_97},
    {"GB50010-02",       "Code for design of concrete structures, China, 2002",                                             &gb50010_02},
    {"CSA-A23.3-94",     "Design of concrete structures, Canadian Standards Association, 1994",                             &csa_a23_3_94},
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

/// What a registry proves of itself: every entry has a name of its own, an edition, and a table with rows.
constexpr bool entriesAreWhole(std::span<const CodeEntry> entries)
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].name.empty() || entries[i].edition.empty() || entries[i].table->parts.empty())
            return false;
        for (std::size_t j = 0; j < i; ++j) {
            if (entries[j].name == entries[i].name)
                return false;
        }
    }
    return true;
}
static_assert(entriesAreWhole(codeRegistry));

}  // namespace zel::codes
