#pragma once

#include "loadcomb/tables/code_table.h"

// BS8110-97: structural use of concrete, British Standards Institution, edition of 1997. 11 rows, all of strength.
//
// Covered: dead, live, roof live, wind, earthquake, earth and water pressure.
// Left out: service rows, snow, rain, fluid, EH, EV. The rows are the same for every type of combinations; no seismic factors, wind sets
// or underground sets are read.
namespace zel::codes {

inline constexpr Row bs8110_97_rows[] = {
    // row  flag      condition  text                                   factors
    {"1",  strength, "", "1.4DL + 1.6(LL+LR)",                 {{"DL", 1.4}, {"LL", 1.6}, {"LR", 1.6}}},
    // Rows 2 and 3: the text shows 1.2 and the factors are 1.4, 1.6, 1.6. Both are meant as they stand.
    {"2",  strength, "", "1.2DL + 1.2(LL+LR) + 1.2WL",         {{"DL", 1.4}, {"LL", 1.6}, {"LR", 1.6}, {"WL", 1.2}}},
    {"3",  strength, "", "1.2DL + 1.2(LL+LR) - 1.2WL",         {{"DL", 1.4}, {"LL", 1.6}, {"LR", 1.6}, {"WL", -1.2}}},
    {"4",  strength, "", "1.0DL + 1.4WL",                      {{"DL", 1.0}, {"WL", 1.4}}},
    {"5",  strength, "", "1.0DL - 1.4WL",                      {{"DL", 1.0}, {"WL", -1.4}}},
    {"6",  strength, "", "1.2DL + 1.2(LL+LR) + 1.2(SUF)EL",    {{"DL", 1.2}, {"LL", 1.2}, {"LR", 1.2}, {"EL", 1.2}}},
    {"7",  strength, "", "1.2DL + 1.2(LL+LR) - 1.2(SUF)EL",    {{"DL", 1.2}, {"LL", 1.2}, {"LR", 1.2}, {"EL", -1.2}}},
    {"8",  strength, "", "1.0DL + 1.4(SUF)EL",                 {{"DL", 1.0}, {"EL", 1.4}}},
    {"9",  strength, "", "1.0DL - 1.4(SUF)EL",                 {{"DL", 1.0}, {"EL", -1.4}}},
    {"10", strength, "", "1.2DL + 1.2(LL+LR) + 1.2(EP+WP)",    {{"DL", 1.2}, {"LL", 1.2}, {"LR", 1.2}, {"EP", 1.2}, {"WP", 1.2}}},
    {"11", strength, "", "1.0DL + 1.4(EP+WP)",                 {{"DL", 1.0}, {"EP", 1.4}, {"WP", 1.4}}},
};
static_assert(std::size(bs8110_97_rows) == 11);
static_assert(textsNameTheirGroups(bs8110_97_rows) && signsAreClear(bs8110_97_rows));

inline constexpr Part bs8110_97_parts[] = {
    // title      reads           when  rows
    {"Strength", Reads::nothing, "", bs8110_97_rows},
};

inline constexpr CodeTable bs8110_97{bs8110_97_parts};

}  // namespace zel::codes
