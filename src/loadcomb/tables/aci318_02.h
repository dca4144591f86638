#pragma once

#include "loadcomb/tables/code_table.h"

// ACI318-02: building code requirements for structural concrete, American Concrete Institute, edition of 2002. 52 rows, all of strength.
//
// Covered: dead, fluid, live, roof live, snow, rain, wind, earthquake, earth and water pressure, in seven blocks with alternatives that
// exclude each other.
// Left out: service rows, EH, EV. The rows are the same for every type of combinations; no seismic factors, wind sets or underground sets
// are read.
namespace zel::codes {

inline constexpr Row aci318_02_rows[] = {
    // row  flag      condition                text and factors
    // 1. Dead and fluid load.
    {"1",  strength, "FP",                    "1.4DL + 1.4FP",                        {{"DL", 1.4}, {"FP", 1.4}}},
    {"2",  strength, "no FP",                 "1.4DL",                                {{"DL", 1.4}}},
    // 2. Live load and earth or water pressure; LR, SL and RL with 0.5.
    {"3",  strength, "no X",                  "1.2(DL+FP) + 1.6(LL+(EP+WP))",
                                              {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EP", 1.6}, {"WP", 1.6}}},
    {"4",  strength, "X",                     "1.2(DL+FP) + 1.6(LL+(EP+WP)) + 0.5LR",
                                              {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EP", 1.6}, {"WP", 1.6}, {"LR", 0.5}}},
    {"5",  strength, "X",                     "1.2(DL+FP) + 1.6(LL+(EP+WP)) + 0.5SL",
                                              {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EP", 1.6}, {"WP", 1.6}, {"SL", 0.5}}},
    {"6",  strength, "X",                     "1.2(DL+FP) + 1.6(LL+(EP+WP)) + 0.5RL",
                                              {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EP", 1.6}, {"WP", 1.6}, {"RL", 0.5}}},
    // 3. LR, SL and RL with 1.6, each with live load, then with wind.
    {"7",  strength, "no LL, no WL",          "1.2DL + 1.6LR",                        {{"DL", 1.2}, {"LR", 1.6}}},
    {"8",  strength, "no LL, no WL",          "1.2DL + 1.6SL",                        {{"DL", 1.2}, {"SL", 1.6}}},
    {"9",  strength, "no LL, no WL",          "1.2DL + 1.6RL",                        {{"DL", 1.2}, {"RL", 1.6}}},
    {"10", strength, "LL or WL",              "1.2DL + 1.6LR + 1.0LL",                {{"DL", 1.2}, {"LR", 1.6}, {"LL", 1.0}}},
    {"11", strength, "LL or WL",              "1.2DL + 1.6LR + 0.8WL",                {{"DL", 1.2}, {"LR", 1.6}, {"WL", 0.8}}},
    {"12", strength, "LL or WL",              "1.2DL + 1.6LR - 0.8WL",                {{"DL", 1.2}, {"LR", 1.6}, {"WL", -0.8}}},
    {"13", strength, "LL or WL",              "1.2DL + 1.6SL + 1.0LL",                {{"DL", 1.2}, {"SL", 1.6}, {"LL", 1.0}}},
    {"14", strength, "LL or WL",              "1.2DL + 1.6SL + 0.8WL",                {{"DL", 1.2}, {"SL", 1.6}, {"WL", 0.8}}},
    {"15", strength, "LL or WL",              "1.2DL + 1.6SL - 0.8WL",                {{"DL", 1.2}, {"SL", 1.6}, {"WL", -0.8}}},
    {"16", strength, "LL or WL",              "1.2DL + 1.6RL + 1.0LL",                {{"DL", 1.2}, {"RL", 1.6}, {"LL", 1.0}}},
    {"17", strength, "LL or WL",              "1.2DL + 1.6RL + 0.8WL",                {{"DL", 1.2}, {"RL", 1.6}, {"WL", 0.8}}},
    {"18", strength, "LL or WL",              "1.2DL + 1.6RL - 0.8WL",                {{"DL", 1.2}, {"RL", 1.6}, {"WL", -0.8}}},
    // 4. Wind; LR, SL and RL with 0.5. Rows 21 and 22 drop out by themselves without LL.
    {"19", strength, "no LL, no X",           "1.2DL + 1.6WL",                        {{"DL", 1.2}, {"WL", 1.6}}},
    {"20", strength, "no LL, no X",           "1.2DL - 1.6WL",                        {{"DL", 1.2}, {"WL", -1.6}}},
    {"21", strength, "no X",                  "1.2DL + 1.6WL + 1.0LL",                {{"DL", 1.2}, {"WL", 1.6}, {"LL", 1.0}}},
    {"22", strength, "no X",                  "1.2DL - 1.6WL + 1.0LL",                {{"DL", 1.2}, {"WL", -1.6}, {"LL", 1.0}}},
    {"23", strength, "no LL, X",              "1.2DL + 1.6WL + 0.5LR",                {{"DL", 1.2}, {"WL", 1.6}, {"LR", 0.5}}},
    {"24", strength, "no LL, X",              "1.2DL - 1.6WL + 0.5LR",                {{"DL", 1.2}, {"WL", -1.6}, {"LR", 0.5}}},
    {"25", strength, "no LL, X",              "1.2DL + 1.6WL + 0.5SL",                {{"DL", 1.2}, {"WL", 1.6}, {"SL", 0.5}}},
    {"26", strength, "no LL, X",              "1.2DL - 1.6WL + 0.5SL",                {{"DL", 1.2}, {"WL", -1.6}, {"SL", 0.5}}},
    {"27", strength, "no LL, X",              "1.2DL + 1.6WL + 0.5RL",                {{"DL", 1.2}, {"WL", 1.6}, {"RL", 0.5}}},
    {"28", strength, "no LL, X",              "1.2DL - 1.6WL + 0.5RL",                {{"DL", 1.2}, {"WL", -1.6}, {"RL", 0.5}}},
    {"29", strength, "LL, X",                 "1.2DL + 1.6WL + 1.0LL + 0.5LR",        {{"DL", 1.2}, {"WL", 1.6}, {"LL", 1.0}, {"LR", 0.5}}},
    {"30", strength, "LL, X",                 "1.2DL - 1.6WL + 1.0LL + 0.5LR",
                                              {{"DL", 1.2}, {"WL", -1.6}, {"LL", 1.0}, {"LR", 0.5}}},
    {"31", strength, "LL, X",                 "1.2DL + 1.6WL + 1.0LL + 0.5SL",        {{"DL", 1.2}, {"WL", 1.6}, {"LL", 1.0}, {"SL", 0.5}}},
    {"32", strength, "LL, X",                 "1.2DL - 1.6WL + 1.0LL + 0.5SL",
                                              {{"DL", 1.2}, {"WL", -1.6}, {"LL", 1.0}, {"SL", 0.5}}},
    {"33", strength, "LL, X",                 "1.2DL + 1.6WL + 1.0LL + 0.5RL",        {{"DL", 1.2}, {"WL", 1.6}, {"LL", 1.0}, {"RL", 0.5}}},
    {"34", strength, "LL, X",                 "1.2DL - 1.6WL + 1.0LL + 0.5RL",
                                              {{"DL", 1.2}, {"WL", -1.6}, {"LL", 1.0}, {"RL", 0.5}}},
    // 5. Earthquake with live load and snow.
    {"35", strength, "no LL, no SL",          "1.2DL + 1.0(SUF)EL",                   {{"DL", 1.2}, {"EL", 1.0}}},
    {"36", strength, "no LL, no SL",          "1.2DL - 1.0(SUF)EL",                   {{"DL", 1.2}, {"EL", -1.0}}},
    {"37", strength, "LL, no SL",             "1.2DL + 1.0(SUF)EL + 1.0LL",           {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
    {"38", strength, "LL, no SL",             "1.2DL - 1.0(SUF)EL + 1.0LL",           {{"DL", 1.2}, {"EL", -1.0}, {"LL", 1.0}}},
    {"39", strength, "no LL, SL",             "1.2DL + 1.0(SUF)EL + 0.2SL",           {{"DL", 1.2}, {"EL", 1.0}, {"SL", 0.2}}},
    {"40", strength, "no LL, SL",             "1.2DL - 1.0(SUF)EL + 0.2SL",           {{"DL", 1.2}, {"EL", -1.0}, {"SL", 0.2}}},
    {"41", strength, "LL, SL",                "1.2DL + 1.0(SUF)EL + 1.0LL + 0.2SL",   {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"42", strength, "LL, SL",                "1.2DL - 1.0(SUF)EL + 1.0LL + 0.2SL",
                                              {{"DL", 1.2}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    // 6. Least dead load with wind, earth or water pressure.
    {"43", strength, "no EP, no WP",          "0.9DL + 1.6WL",                        {{"DL", 0.9}, {"WL", 1.6}}},
    {"44", strength, "no EP, no WP",          "0.9DL - 1.6WL",                        {{"DL", 0.9}, {"WL", -1.6}}},
    {"45", strength, "EP or WP, no WL",       "0.9DL + 1.6(EP+WP)",                   {{"DL", 0.9}, {"EP", 1.6}, {"WP", 1.6}}},
    {"46", strength, "EP or WP, WL",          "0.9DL + 1.6WL + 1.6(EP+WP)",           {{"DL", 0.9}, {"WL", 1.6}, {"EP", 1.6}, {"WP", 1.6}}},
    {"47", strength, "EP or WP, WL",          "0.9DL - 1.6WL + 1.6(EP+WP)",
                                              {{"DL", 0.9}, {"WL", -1.6}, {"EP", 1.6}, {"WP", 1.6}}},
    // 7. Least dead load with earthquake, earth or water pressure. Row 50 stands in for 51 and 52 where there is wind and no earthquake.
    {"48", strength, "no EP, no WP",          "0.9DL + 1.0(SUF)EL",                   {{"DL", 0.9}, {"EL", 1.0}}},
    {"49", strength, "no EP, no WP",          "0.9DL - 1.0(SUF)EL",                   {{"DL", 0.9}, {"EL", -1.0}}},
    {"50", strength, "EP or WP, no EL, WL",   "0.9DL + 1.6(EP+WP)",                   {{"DL", 0.9}, {"EP", 1.6}, {"WP", 1.6}}},
    {"51", strength, "EP or WP, EL or no WL", "0.9DL + 1.0(SUF)EL + 1.6(EP+WP)",      {{"DL", 0.9}, {"EL", 1.0}, {"EP", 1.6}, {"WP", 1.6}}},
    {"52", strength, "EP or WP, EL or no WL", "0.9DL - 1.0(SUF)EL + 1.6(EP+WP)",
                                              {{"DL", 0.9}, {"EL", -1.0}, {"EP", 1.6}, {"WP", 1.6}}},
};
static_assert(std::size(aci318_02_rows) == 52);
static_assert(textsNameTheirGroups(aci318_02_rows) && signsAreClear(aci318_02_rows));

inline constexpr Part aci318_02_parts[] = {
    // title      reads           when  rows
    {"Strength", Reads::nothing, "",   aci318_02_rows},
};

inline constexpr CodeTable aci318_02{aci318_02_parts};

}  // namespace zel::codes
