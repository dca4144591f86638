#pragma once

#include "loadcomb/tables/code_table.h"

// A table for a code that has no name yet: the registry does not lead here. 9 rows, all of strength, with the factor 1.0 throughout.
//
// Covered: dead, live, roof live, wind and earthquake load.
// Left out: service rows, snow, rain, fluid, earth and water pressure, EH, EV. The rows are the same for every type of combinations; no
// seismic factors, wind sets or underground sets are read. The scale factor is written "(SUF*EL)" and is no token of the expansion, but a
// case in the scale factors still takes its factor.
namespace zel::codes {

inline constexpr Row unnamed_second_rows[] = {
    // row  flag      when text and factors
    {"1",  strength, "", "DL + (LL+LR)",             {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}}},
    {"2",  strength, "", "DL + (LL+LR) + WL",        {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}, {"WL", 1.0}}},
    {"3",  strength, "", "DL + (LL+LR) - WL",        {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}, {"WL", -1.0}}},
    {"4",  strength, "", "DL + WL",                  {{"DL", 1.0}, {"WL", 1.0}}},
    {"5",  strength, "", "DL - WL",                  {{"DL", 1.0}, {"WL", -1.0}}},
    {"6",  strength, "", "DL + (LL+LR) + (SUF*EL)",  {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}, {"EL", 1.0}}},
    {"7",  strength, "", "DL + (LL+LR) - (SUF*EL)",  {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}, {"EL", -1.0}}},
    {"8",  strength, "", "DL + (SUF*EL)",            {{"DL", 1.0}, {"EL", 1.0}}},
    {"9",  strength, "", "DL - (SUF*EL)",            {{"DL", 1.0}, {"EL", -1.0}}},
};
static_assert(std::size(unnamed_second_rows) == 9);
static_assert(textsNameTheirGroups(unnamed_second_rows) && signsAreClear(unnamed_second_rows));

inline constexpr Part unnamed_second_parts[] = {
    // title      reads           when  rows
    {"Strength", Reads::nothing, "",   unnamed_second_rows},
};

inline constexpr CodeTable unnamed_second{unnamed_second_parts};

}  // namespace zel::codes
