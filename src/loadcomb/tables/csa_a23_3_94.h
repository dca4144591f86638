#pragma once

#include "loadcomb/tables/code_table.h"

// CSA-A23.3-94: design of concrete structures, Canadian Standards Association, 1994. 14 rows, all of strength.
//
// Covered: dead, live, roof live, wind and earthquake load.
// Left out: service rows, snow, rain, fluid, earth and water pressure, EH, EV. The rows are the same for every type of combinations; no
// seismic factors, wind sets or underground sets are read.
namespace zel::codes {

inline constexpr Row csa_a23_3_94_rows[] = {
    // row  flag      when text and factors
    {"1",  strength, "", "1.25DL + 1.5(LL+LR)",                {{"DL", 1.25}, {"LL", 1.5}, {"LR", 1.5}}},
    {"2",  strength, "", "0.85DL + 1.5WL",                     {{"DL", 0.85}, {"WL", 1.5}}},
    {"3",  strength, "", "0.85DL - 1.5WL",                     {{"DL", 0.85}, {"WL", -1.5}}},
    {"4",  strength, "", "1.25DL",                             {{"DL", 1.25}}},
    // Rows 5 and 6: "1.50WL" is meant as it stands.
    {"5",  strength, "", "1.25DL + 0.7(1.5(LL+LR) + 1.50WL)",  {{"DL", 1.25}, {"LL", near1_05}, {"LR", near1_05}, {"WL", near1_05}}},
    {"6",  strength, "", "1.25DL + 0.7(1.5(LL+LR) - 1.50WL)",  {{"DL", 1.25}, {"LL", near1_05}, {"LR", near1_05}, {"WL", -near1_05}}},
    // Row 7: the last pair has a factor and no group. It is meant as it stands and is no pair; the row stays.
    {"7",  strength, "", "1.25DL + 0.7(1.5(LL+LR))",           {{"DL", 1.25}, {"LL", near1_05}, {"LR", near1_05}, {"", 0.875}}},
    // Row 8 stands with "+" alone, as printed.
    {"8",  strength, "", "1.25DL + 0.7(1.5WL)",                {{"DL", 1.25}, {"WL", near1_05}}},
    {"9",  strength, "", "1.25DL + 0.6(1.5(LL+LR) + 1.5WL)",   {{"DL", 1.25}, {"LL", 0.9}, {"LR", 0.9}, {"WL", 0.9}}},
    {"10", strength, "", "1.25DL + 0.6(1.5(LL+LR) - 1.5WL)",   {{"DL", 1.25}, {"LL", 0.9}, {"LR", 0.9}, {"WL", -0.9}}},
    {"11", strength, "", "1.0DL + 1.0(SUF)EL",                 {{"DL", 1.0}, {"EL", 1.0}}},
    {"12", strength, "", "1.0DL - 1.0(SUF)EL",                 {{"DL", 1.0}, {"EL", -1.0}}},
    {"13", strength, "", "1.0DL + 0.5(LL+LR) + 1.0(SUF)EL",    {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", 1.0}}},
    {"14", strength, "", "1.0DL + 0.5(LL+LR) - 1.0(SUF)EL",    {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", -1.0}}},
};
static_assert(std::size(csa_a23_3_94_rows) == 14);
static_assert(textsNameTheirGroups(csa_a23_3_94_rows) && signsAreClear(csa_a23_3_94_rows));

inline constexpr Part csa_a23_3_94_parts[] = {
    // title      reads           when  rows
    {"Strength", Reads::nothing, "",   csa_a23_3_94_rows},
};

inline constexpr CodeTable csa_a23_3_94{csa_a23_3_94_parts};

}  // namespace zel::codes
