#pragma once

#include "loadcomb/tables/kci_kbc_common.h"

// KBC-USD09: ultimate strength design of concrete, Korean Building Code 2009.
//
// Covered: dead, live, roof live, snow, rain, wind, earthquake, fluid, EH and EV. Service rows; strength U1 to U8 for the types strength,
// special and vertical; the pair with the vertical seismic force. The seismic factors are read behind the service rows. For the
// underground types only the service rows are added.
//
// Left out: EP and WP; cases of these types stand in no combination. Wind sets and underground sets are not read. With increments, S * V
// (short-period coefficient times vertical load factor) lies in the factor of DL; the rows of U7 and U8 without wind and earthquake stay
// as they are.
namespace zel::codes {

inline constexpr Row kbc_usd09_first[] = {
    // row         flag     condition         text                                   factors
    {"First",      service, "",               "(DL+FP+EV)",                          {{"DL", 1.0}, {"FP", 1.0}, {"EV", 1.0}}},
};

// Behind the service rows Live, Roof and Wind of kci_kbc_common.h.
inline constexpr Row kbc_usd09_service[] = {
    {"Earthquake", service, "LL, SL",         "(DL ± 0.7EL + LL + SL)/1.5",
        {{"DL", twoThirds}, {"EL", 0.7*twoThirds}, {"LL", twoThirds}, {"SL", twoThirds}}},
    {"Earthquake", service, "LL, no SL",      "(DL ± 0.7EL + LL)/1.5",
        {{"DL", twoThirds}, {"EL", 0.7*twoThirds}, {"LL", twoThirds}}},
    {"Earthquake", service, "no LL, SL",      "(DL ± 0.7EL + SL)/1.5",
        {{"DL", twoThirds}, {"EL", 0.7*twoThirds}, {"SL", twoThirds}}},
    {"Earthquake", service, "no LL, no SL",   "(DL ± 0.7EL)/1.5",                    {{"DL", twoThirds}, {"EL", 0.7*twoThirds}}},

    {"Earth",      service, "WL, EV or EH",   "(DL ± WL + ((APH)EV+EH))/1.5",
        {{"DL", twoThirds}, {"WL", twoThirds}, {"EV", twoThirds, alphaH}, {"EH", twoThirds}}},
    {"Earth",      service, "WL, no EV, no EH",    "(DL ± WL)/1.5",                  {{"DL", twoThirds}, {"WL", twoThirds}}},
    {"Earth",      service, "no WL, EV or EH",     "DL + ((APH)EV+EH)",              {{"DL", 1.0}, {"EV", 1.0, alphaH}, {"EH", 1.0}}},
    {"Earth",      service, "no WL, no EV, no EH", "DL",                             {{"DL", 1.0}}},
    // With EL in the place of WL; without EL nothing is added.
    {"Earth",      service, "EL, EV or EH",   "(DL ± 0.7EL + ((APH)EV+EH))/1.5",
        {{"DL", twoThirds}, {"EL", 0.7*twoThirds}, {"EV", twoThirds, alphaH}, {"EH", twoThirds}}},
    {"Earth",      service, "EL, no EV, no EH",    "(DL ± 0.7EL)/1.5",               {{"DL", twoThirds}, {"EL", 0.7*twoThirds}}},
};
static_assert(std::size(kbc_usd09_service) == 4 + 6);
static_assert(textsNameTheirGroups(kbc_usd09_first) && textsNameTheirGroups(kbc_usd09_service) && signsAreClear(kbc_usd09_service));

// U1 names exactly the groups that have cases.
inline constexpr Row kbc_usd09_dead[] = {
    // row flag      condition       text              factors
    {"U1", strength, "FP, EV",       "1.4(DL+FP+EV)",  {{"DL", 1.4}, {"FP", 1.4}, {"EV", 1.4}}},
    {"U1", strength, "FP, no EV",    "1.4(DL+FP)",     {{"DL", 1.4}, {"FP", 1.4}}},
    {"U1", strength, "no FP, EV",    "1.4(DL+EV)",     {{"DL", 1.4}, {"EV", 1.4}}},
    {"U1", strength, "no FP, no EV", "1.4DL",          {{"DL", 1.4}}},
};

inline constexpr Row kbc_usd09_earthquake[] = {
    // row flag      condition                      text                                                      factors
    {"U5", strength, "no increments, LL, SL",       "1.2DL ± 1.0(SUF)EL + 1.0LL + 0.2SL",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "no increments, LL, no SL",    "1.2DL ± 1.0(SUF)EL + 1.0LL",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5", strength, "no increments, no LL, SL",    "1.2DL ± 1.0(SUF)EL + 0.2SL",
        {{"DL", 1.2}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "no increments, no LL, no SL", "1.2DL ± 1.0(SUF)EL",                                     {{"DL", 1.2}, {"EL", 1.0}}},
    {"U5", strength, "increments, LL, SL",          "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "increments, LL, no SL",       "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5", strength, "increments, no LL, SL",       "1.2DL ± 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "increments, no LL, no SL",    "1.2DL ± 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}}},
};
static_assert(std::size(kbc_usd09_earthquake) == 4 + 4);
static_assert(textsNameTheirGroups(kbc_usd09_earthquake) && signsAreClear(kbc_usd09_earthquake));

inline constexpr Row kbc_usd09_least_dead[] = {
    // row flag      condition       text                                       factors
    {"U7", strength, "EV or EH",     "0.9DL ± 1.3WL + 1.6((APH)EV+EH)",         {{"DL", 0.9}, {"WL", 1.3}, {"EV", 1.6, alphaH}, {"EH", 1.6}}},
    {"U7", strength, "EV or EH",     "0.9DL + 1.6((APH)EV+EH)",                 {{"DL", 0.9}, {"EV", 1.6, alphaH}, {"EH", 1.6}}},
    {"U7", strength, "no EV, no EH", "0.9DL ± 1.3WL",                           {{"DL", 0.9}, {"WL", 1.3}}},
    {"U7", strength, "no EV, no EH", "0.9DL",                                   {{"DL", 0.9}}},

    {"U8", strength, "no increments, EV or EH",     "0.9DL ± 1.0(SUF)EL + 1.6((APH)EV+EH)",
        {{"DL", 0.9}, {"EL", 1.0}, {"EV", 1.6, alphaH}, {"EH", 1.6}}},
    {"U8", strength, "no increments, no EV, no EH", "0.9DL ± 1.0(SUF)EL",
        {{"DL", 0.9}, {"EL", 1.0}}},
    // The tail keeps its minus in both rows.
    {"U8", strength, "increments, EV or EH",        "0.9DL ± 1.0(SUF)(OMG)EL + 1.6((APH)EV+EH) - (SPC)(ZEL)DL",
        {{"DL", 0.9, minusSpectrum}, {"EL", 1.0}, {"EV", 1.6, alphaH}, {"EH", 1.6}}},
    {"U8", strength, "increments, no EV, no EH",    "0.9DL ± 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",
        {{"DL", 0.9, minusSpectrum}, {"EL", 1.0}}},
    // The same as the last row of U7, so they add nothing; they are rows of the table all the same.
    {"U8", strength, "EV or EH",     "0.9DL + 1.6((APH)EV+EH)",                 {{"DL", 0.9}, {"EV", 1.6, alphaH}, {"EH", 1.6}}},
    {"U8", strength, "no EV, no EH", "0.9DL",                                   {{"DL", 0.9}}},
};
static_assert(std::size(kbc_usd09_least_dead) == 4 + 6);
static_assert(textsNameTheirGroups(kbc_usd09_dead) && textsNameTheirGroups(kbc_usd09_least_dead) && signsAreClear(kbc_usd09_least_dead));

inline constexpr Part kbc_usd09_parts[] = {
    // title                          reads                    when                                rows
    {"Service, first",                Reads::nothing,          "",                                 kbc_usd09_first},
    {"Service, live, roof, wind",     Reads::nothing,          "",                                 kci_kbc_service},
    {"Service, earthquake and earth", Reads::nothing,          "",                                 kbc_usd09_service},
    {"Dead load",                     Reads::seismicFactors,   "strength or special or vertical",  kbc_usd09_dead},
    {"Live load, roof, wind",         Reads::nothing,          "strength or special or vertical",  kci_kbc_live_roof_wind},
    {"Earthquake",                    Reads::nothing,          "strength or special or vertical",  kbc_usd09_earthquake},
    {"Earth",                         Reads::nothing,          "strength or special or vertical",  kci_kbc_earth},
    {"Least dead load",               Reads::nothing,          "strength or special or vertical",  kbc_usd09_least_dead},
    {"Vertical",                      Reads::nothing,          "vertical",                         kci_kbc_vertical},
};

inline constexpr CodeTable kbc_usd09{kbc_usd09_parts};

}  // namespace zel::codes
