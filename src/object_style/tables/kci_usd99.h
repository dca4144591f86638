#pragma once

#include "object_style/tables/aik_usd94.h"

// KCI-USD99 as this generator holds it: ultimate strength design of concrete, Korea Concrete Institute, 1999. 16 rows, of which the
// first eight are those of AIK-USD94.
//
// Covered: dead, live, wind and earthquake; 5 service and 11 strength rows. All other load types stand in no combination.
namespace zel::codes::object_style {

inline constexpr Row kci_usd99_rows[] = {
    // row  flag      when text                              group and factor
    {"9",  strength, "", "0.75(1.4DL+1.7WL)",               {{"DL", 1.05}, {"WL", 1.275}}},
    {"10", strength, "", "0.75(1.4DL-1.7WL)",               {{"DL", 1.05}, {"WL", -1.275}}},
    {"11", strength, "", "0.9DL+1.3WL",                     {{"DL", 0.9}, {"WL", 1.3}}},
    {"12", strength, "", "0.9DL-1.3WL",                     {{"DL", 0.9}, {"WL", -1.3}}},
    {"13", strength, "", "0.75(1.4DL+1.7LL+1.8*SF*EL)",     {{"DL", 1.05}, {"LL", 1.275}, {"EL", 1.35}}},
    {"14", strength, "", "0.75(1.4DL+1.7LL-1.8*SF*EL)",     {{"DL", 1.05}, {"LL", 1.275}, {"EL", -1.35}}},
    {"15", strength, "", "0.9DL+1.4EL",                     {{"DL", 0.9}, {"EL", 1.4}}},
    {"16", strength, "", "0.9DL-1.4EL",                     {{"DL", 0.9}, {"EL", -1.4}}},
};
static_assert(std::size(kci_usd99_rows) == 8);
static_assert(textsNameTheirGroups(kci_usd99_rows));

inline constexpr Part kci_usd99_parts[] = {
    // title                        reads           when  rows
    {"Service",                    Reads::nothing, "",   rows(aik_usd94_rows, 1, 5)},
    {"Strength as in AIK-USD94",   Reads::nothing, "",   rows(aik_usd94_rows, 6, 8)},
    {"Strength",                   Reads::nothing, "",   kci_usd99_rows},
};

inline constexpr CodeTable kci_usd99{kci_usd99_parts};

}  // namespace zel::codes::object_style
