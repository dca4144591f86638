#pragma once

#include "loadcomb/tables/code_table.h"

// GB50010-02: code for design of concrete structures, China, 2002. 29 rows, all of strength, run twice: first with roof live load,
// then, if the model has snow, with SL in the place of LR in texts, pairs and conditions.
//
// Covered: dead, live, roof live, snow, wind and earthquake load.
// Left out: service rows, rain, fluid, earth and water pressure, EH, EV. The rows are the same for every type of combinations; no seismic
// factors, wind sets or underground sets are read.
namespace zel::codes {

inline constexpr Row gb50010_02_rows[] = {
    // row  flag      condition       text and factors
    {"1",  strength, "LL or LR",     "1.35DL + 1.4(0.7)(LL+LR)",          {{"DL", 1.35}, {"LL", 0.98}, {"LR", 0.98}}},
    {"2",  strength, "LL or LR",     "1.2DL + 1.4(LL+LR)",                {{"DL", 1.2}, {"LL", 1.4}, {"LR", 1.4}}},
    {"3",  strength, "LL or LR",     "1.0DL + 1.4(LL+LR)",                {{"DL", 1.0}, {"LL", 1.4}, {"LR", 1.4}}},
    {"4",  strength, "no LL, no LR", "1.2DL",                             {{"DL", 1.2}}},
    {"5",  strength, "no LL, no LR", "1.0DL",                             {{"DL", 1.0}}},
    {"6",  strength, "first-pass",   "1.2DL + 1.4WL",                     {{"DL", 1.2}, {"WL", 1.4}}},
    {"7",  strength, "first-pass",   "1.2DL - 1.4WL",                     {{"DL", 1.2}, {"WL", -1.4}}},
    {"8",  strength, "first-pass",   "1.0DL + 1.4WL",                     {{"DL", 1.0}, {"WL", 1.4}}},
    {"9",  strength, "first-pass",   "1.0DL - 1.4WL",                     {{"DL", 1.0}, {"WL", -1.4}}},
    {"10", strength, "",             "1.2DL + 1.4(LL+LR) + 1.4(0.6)WL",   {{"DL", 1.2}, {"LL", 1.4}, {"LR", 1.4}, {"WL", 0.84}}},
    {"11", strength, "",             "1.2DL + 1.4(LL+LR) - 1.4(0.6)WL",   {{"DL", 1.2}, {"LL", 1.4}, {"LR", 1.4}, {"WL", -0.84}}},
    {"12", strength, "",             "1.0DL + 1.4(LL+LR) + 1.4(0.6)WL",   {{"DL", 1.0}, {"LL", 1.4}, {"LR", 1.4}, {"WL", 0.84}}},
    {"13", strength, "",             "1.0DL + 1.4(LL+LR) - 1.4(0.6)WL",   {{"DL", 1.0}, {"LL", 1.4}, {"LR", 1.4}, {"WL", -0.84}}},
    {"14", strength, "",             "1.2DL + 1.4(0.7)(LL+LR) + 1.4WL",   {{"DL", 1.2}, {"LL", 0.98}, {"LR", 0.98}, {"WL", 1.4}}},
    {"15", strength, "",             "1.2DL + 1.4(0.7)(LL+LR) - 1.4WL",   {{"DL", 1.2}, {"LL", 0.98}, {"LR", 0.98}, {"WL", -1.4}}},
    {"16", strength, "",             "1.0DL + 1.4(0.7)(LL+LR) + 1.4WL",   {{"DL", 1.0}, {"LL", 0.98}, {"LR", 0.98}, {"WL", 1.4}}},
    {"17", strength, "",             "1.0DL + 1.4(0.7)(LL+LR) - 1.4WL",   {{"DL", 1.0}, {"LL", 0.98}, {"LR", 0.98}, {"WL", -1.4}}},
    {"18", strength, "",             "1.2(DL+0.5(LL+LR)) + 1.3(SUF)EL",   {{"DL", 1.2}, {"LL", 0.6}, {"LR", 0.6}, {"EL", 1.3}}},
    {"19", strength, "",             "1.2(DL+0.5(LL+LR)) - 1.3(SUF)EL",   {{"DL", 1.2}, {"LL", 0.6}, {"LR", 0.6}, {"EL", -1.3}}},
    {"20", strength, "",             "1.0(DL+0.5(LL+LR)) + 1.3(SUF)EL",   {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", 1.3}}},
    {"21", strength, "",             "1.0(DL+0.5(LL+LR)) - 1.3(SUF)EL",   {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", -1.3}}},
    {"22", strength, "",             "1.2(DL+0.5(LL+LR)) + 1.3(SUF)EL + 1.4(0.2)WL",
                                     {{"DL", 1.2}, {"LL", 0.6}, {"LR", 0.6}, {"EL", 1.3}, {"WL", 0.28}}},
    {"23", strength, "",             "1.2(DL+0.5(LL+LR)) + 1.3(SUF)EL - 1.4(0.2)WL",
                                     {{"DL", 1.2}, {"LL", 0.6}, {"LR", 0.6}, {"EL", 1.3}, {"WL", -0.28}}},
    {"24", strength, "",             "1.2(DL+0.5(LL+LR)) - 1.3(SUF)EL + 1.4(0.2)WL",
                                     {{"DL", 1.2}, {"LL", 0.6}, {"LR", 0.6}, {"EL", -1.3}, {"WL", 0.28}}},
    {"25", strength, "",             "1.2(DL+0.5(LL+LR)) - 1.3(SUF)EL - 1.4(0.2)WL",
                                     {{"DL", 1.2}, {"LL", 0.6}, {"LR", 0.6}, {"EL", -1.3}, {"WL", -0.28}}},
    {"26", strength, "",             "1.0(DL+0.5(LL+LR)) + 1.3(SUF)EL + 1.4(0.2)WL",
                                     {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", 1.3}, {"WL", 0.28}}},
    {"27", strength, "",             "1.0(DL+0.5(LL+LR)) + 1.3(SUF)EL - 1.4(0.2)WL",
                                     {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", 1.3}, {"WL", -0.28}}},
    {"28", strength, "",             "1.0(DL+0.5(LL+LR)) - 1.3(SUF)EL + 1.4(0.2)WL",
                                     {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", -1.3}, {"WL", 0.28}}},
    {"29", strength, "",             "1.0(DL+0.5(LL+LR)) - 1.3(SUF)EL - 1.4(0.2)WL",
                                     {{"DL", 1.0}, {"LL", 0.5}, {"LR", 0.5}, {"EL", -1.3}, {"WL", -0.28}}},
};
static_assert(std::size(gb50010_02_rows) == 29);
static_assert(textsNameTheirGroups(gb50010_02_rows) && signsAreClear(gb50010_02_rows));

inline constexpr Part gb50010_02_parts[] = {
    // title                reads           when  rows
    {"Strength",            Reads::nothing, "",   gb50010_02_rows},
    {"Strength, with snow", Reads::nothing, "SL", gb50010_02_rows, liveRoofIsSnow},
};

inline constexpr CodeTable gb50010_02{gb50010_02_parts};

}  // namespace zel::codes
