#pragma once

#include "loadcomb/tables/code_table.h"

// KBC-USD16, Korean Building Code 2016; KDS 41 30 : 2018 and KDS 41 20 : 2022, Korean Design Standards of 2018 and 2022; ultimate strength
// design of concrete. One sequence of rows serves them all: service S1 to S8, strength U1 to U7, then the pair with the vertical seismic
// force.
//
// Covered: dead, live, roof live, snow, rain, wind, earthquake and EV. The editions differ in their wind numbers alone. KDS 41 30 : 2018
// has both scales: that of KBC-USD16 for load code 1 and that of KDS 41 20 : 2022 for load code 0. KBC-USD16 reads no underground sets.
//
// Left out: EP, WP, FP and EH; cases of these types stand in no combination. The vertical increment (SPC)(ZEL) is printed for the service
// rows with EL of S5, S6 and S8 too, but increments are never taken in service rows, so those forms cannot arise and have no row here.
//
// S is the short-period coefficient and V the vertical load factor: a row with the tail (SPC)(ZEL)(DL+EV) has the product in the factors
// of DL and EV and no item more.
namespace zel::codes {

inline constexpr Row kbc_kds_rows[] = {
    // row  flag      condition                         text                                         factors
    {"S1",  service,  "", "(DL+EV)",                              {{"DL", 1.0}, {"EV", 1.0}}},
    {"S2",  service,  "", "(DL+EV) + LL",                         {{"DL", 1.0}, {"EV", 1.0}, {"LL", 1.0}}},
    {"S3",  service,  "", "1.0(DL+EV) + 1.0X",                    {{"DL", 1.0}, {"EV", 1.0}, {"X", 1.0}}},
    {"S4",  service,  "", "1.0(DL+EV) + 0.75LL + 0.75X",          {{"DL", 1.0}, {"EV", 1.0}, {"LL", 0.75}, {"X", 0.75}}},
    {"S5",  service,  "", "(DL+EV) ± w1WL",                       {{"DL", 1.0}, {"EV", 1.0}, {"WL", 1.0, w1}}},
    {"S5",  service,  "", "(DL+EV) ± 0.7(SUF)EL",                 {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.7}}},

    // S6 names the live loads that have cases. The rows with wind end their walk through LR, SL, RL before those with earthquake begin.
    {"S6 wind",       service, "no X, no LL", "1.0(DL+EV) ± w4WL",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"WL", 1.0, w4}}},
    {"S6 wind",       service, "no X, LL",    "1.0(DL+EV) ± w4WL + 0.75LL",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"WL", 1.0, w4}, {"LL", 0.75}}},
    {"S6 wind",       service, "X, no LL",    "1.0(DL+EV) ± w4WL + 0.75X",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"WL", 1.0, w4}, {"X", 0.75}}},
    {"S6 wind",       service, "X, LL",       "1.0(DL+EV) ± w4WL + 0.75LL + 0.75X",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"WL", 1.0, w4}, {"LL", 0.75}, {"X", 0.75}}},
    {"S6 earthquake", service, "no X, no LL", "1.0(DL+EV) ± (0.75*0.70)(SUF)EL",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}}},
    {"S6 earthquake", service, "no X, LL",    "1.0(DL+EV) ± (0.75*0.70)(SUF)EL + 0.75LL",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"LL", 0.75}}},
    {"S6 earthquake", service, "X, no LL",    "1.0(DL+EV) ± (0.75*0.70)(SUF)EL + 0.75X",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"X", 0.75}}},
    {"S6 earthquake", service, "X, LL",       "1.0(DL+EV) ± (0.75*0.70)(SUF)EL + 0.75LL + 0.75X",
                                                                  {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"LL", 0.75}, {"X", 0.75}}},

    {"S7",  service,  "", "0.6(DL+EV) ± w1WL",                    {{"DL", 0.6}, {"EV", 0.6}, {"WL", 1.0, w1}}},
    {"S8",  service,  "", "0.6(DL+EV) ± 0.7(SUF)EL",              {{"DL", 0.6}, {"EV", 0.6}, {"EL", 0.7}}},

    {"U1",  strength, "EV",           "1.4(DL+EV)",               {{"DL", 1.4}, {"EV", 1.4}}},
    {"U1",  strength, "no EV",        "1.4(DL)",                  {{"DL", 1.4}}},

    {"U2",  strength, "no X",         "1.2(DL+EV) + 1.6LL",               {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}}},
    {"U2",  strength, "X",            "1.2(DL+EV) + 1.6LL + 0.5X",        {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}, {"X", 0.5}}},

    {"U3",  strength, "no LL, no WL", "1.2(DL+EV) + 1.6X",                {{"DL", 1.2}, {"EV", 1.2}, {"X", 1.6}}},
    {"U3",  strength, "LL or WL",     "1.2(DL+EV) + 1.6X + 1.0LL",        {{"DL", 1.2}, {"EV", 1.2}, {"X", 1.6}, {"LL", 1.0}}},
    {"U3",  strength, "LL or WL",     "1.2(DL+EV) + 1.6X ± w2WL",         {{"DL", 1.2}, {"EV", 1.2}, {"X", 1.6}, {"WL", 1.0, w2}}},

    {"U4",  strength, "X, LL",        "1.2(DL+EV) ± w3WL + 1.0LL + 0.5X", {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.0, w3}, {"LL", 1.0}, {"X", 0.5}}},
    {"U4",  strength, "X, no LL",     "1.2(DL+EV) ± w3WL + 0.5X",         {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.0, w3}, {"X", 0.5}}},
    {"U4",  strength, "no X, LL",     "1.2(DL+EV) ± w3WL + 1.0LL",        {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.0, w3}, {"LL", 1.0}}},
    {"U4",  strength, "no X, no LL",  "1.2(DL+EV) ± w3WL",                {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.0, w3}}},

    {"U5",  strength, "SL, LL, no increments",    "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL + 0.2SL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5",  strength, "SL, no LL, no increments", "1.2(DL+EV) ± 1.0(SUF)EL + 0.2SL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5",  strength, "no SL, LL, no increments", "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5",  strength, "no SL, no LL, no increments", "1.2(DL+EV) ± 1.0(SUF)EL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}}},
    // With increments the tail names EV where it has cases. The head names it in either case.
    {"U5",  strength, "SL, LL, increments, EV",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)(DL+EV)",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5",  strength, "SL, LL, increments, no EV", "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5",  strength, "SL, no LL, increments, EV",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)(DL+EV)",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5",  strength, "SL, no LL, increments, no EV", "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5",  strength, "no SL, LL, increments, EV",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)(DL+EV)",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5",  strength, "no SL, LL, increments, no EV", "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5",  strength, "no SL, no LL, increments, EV",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + (SPC)(ZEL)(DL+EV)",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}}},
    {"U5",  strength, "no SL, no LL, increments, no EV", "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}}},

    {"U6",  strength, "", "0.9(DL+EV) ± w3WL",                    {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.0, w3}}},

    {"U7",  strength, "no increments",     "0.9(DL+EV) ± 1.0(SUF)EL",
        {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}}},
    // The tail keeps its minus in both rows.
    {"U7",  strength, "increments, EV",    "0.9(DL+EV) ± 1.0(SUF)(OMG)EL - (SPC)(ZEL)(DL+EV)",
        {{"DL", 0.9, minusSpectrum}, {"EV", 0.9, minusSpectrum}, {"EL", 1.0}}},
    {"U7",  strength, "increments, no EV", "0.9(DL+EV) ± 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",
        {{"DL", 0.9, minusSpectrum}, {"EV", 0.9, minusSpectrum}, {"EL", 1.0}}},

    {"Vertical", strength, "vertical", "-(VER)DL ± 1.0(SUF)EL",   {{"DL", -1.0, verticalForce}, {"EL", 1.0}}},
};
static_assert(std::size(kbc_kds_rows) == 6 + 8 + 2 + 2 + 2 + 3 + 4 + 12 + 1 + 3 + 1);
static_assert(textsNameTheirGroups(kbc_kds_rows) && signsAreClear(kbc_kds_rows));

//                                                w1             w2             w3            w4
inline constexpr WindScale kbc_kds_wind_a{{{"0.85", 0.85}, {"0.65", 0.65}, {"1.3", 1.3}, {"(0.75*0.85)", 0.6375}}};
inline constexpr WindScale kbc_kds_wind_b{{{"0.65", 0.65}, {"0.5", 0.5},   {"1.0", 1.0}, {"(0.75*0.65)", 0.4875}}};

inline constexpr Part kbc_usd16_parts[] = {
    // title                 reads                                     when  rows
    {"Service and strength", Reads::windSets | Reads::seismicFactors,  "",   kbc_kds_rows},
};
inline constexpr Part kds_41_parts[] = {
    {"Service and strength", Reads::windSets | Reads::undergroundSets | Reads::seismicFactors, "", kbc_kds_rows},
};

inline constexpr CodeTable kbc_usd16{kbc_usd16_parts, kbc_kds_wind_a};
inline constexpr CodeTable kds_41_30_2018{kds_41_parts, kbc_kds_wind_a};
inline constexpr CodeTable kds_41_30_2018_load_code_0{kds_41_parts, kbc_kds_wind_b};
inline constexpr CodeTable kds_41_20_2022{kds_41_parts, kbc_kds_wind_b};

}  // namespace zel::codes
