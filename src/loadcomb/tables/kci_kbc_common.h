#pragma once

#include "loadcomb/tables/code_table.h"

// The rows that KCI-USD12 and KBC-USD09 have in common, under the same block names. kci_usd12.h and kbc_usd09.h hold the rest and the
// order in which the blocks follow each other.
//
// A term in a text that ends in "/1.5" has the factor 2/3, so (APH)EV has 2/3 of alpha_H. Items stand in the order of the terms. Service
// rows carry no (SUF).
namespace zel::codes {

inline constexpr Row kci_kbc_service[] = {
    // row    flag     condition         text                              factors
    {"Live",  service, "X",            "(DL+FP) + (LL+(APH)EV+EH) + X",
        {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", 1.0, alphaH}, {"EH", 1.0}, {"X", 1.0}}},
    {"Live",  service, "no X",         "(DL+FP) + (LL+(APH)EV+EH)",
        {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", 1.0, alphaH}, {"EH", 1.0}}},

    {"Roof",  service, "no WL, no LL", "DL + X",               {{"DL", 1.0}, {"X", 1.0}}},
    {"Roof",  service, "LL",           "DL + X + LL",          {{"DL", 1.0}, {"X", 1.0}, {"LL", 1.0}}},
    {"Roof",  service, "WL or LL",     "(DL + X ± WL)/1.5",    {{"DL", twoThirds}, {"X", twoThirds}, {"WL", twoThirds}}},

    {"Wind",  service, "LL, X",        "(DL ± WL + LL + X)/1.5",    {{"DL", twoThirds}, {"WL", twoThirds}, {"LL", twoThirds}, {"X", twoThirds}}},
    {"Wind",  service, "LL, no X",     "(DL ± WL + LL)/1.5",        {{"DL", twoThirds}, {"WL", twoThirds}, {"LL", twoThirds}}},
    {"Wind",  service, "no LL, X",     "(DL ± WL + X)/1.5",         {{"DL", twoThirds}, {"WL", twoThirds}, {"X", twoThirds}}},
    {"Wind",  service, "no LL, no X",  "(DL ± WL)/1.5",             {{"DL", twoThirds}, {"WL", twoThirds}}},
};
static_assert(std::size(kci_kbc_service) == 2 + 3 + 4);
static_assert(textsNameTheirGroups(kci_kbc_service) && signsAreClear(kci_kbc_service));

/// Blocks U2, U3 and U4: live load and earth, roof, wind.
inline constexpr Row kci_kbc_live_roof_wind[] = {
    {"U2",    strength, "no X",         "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",
        {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", 1.6, alphaH}, {"EH", 1.6}}},
    {"U2",    strength, "X",            "1.2(DL+FP) + 1.6(LL+((APH)EV+EH)) + 0.5X",
        {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", 1.6, alphaH}, {"EH", 1.6}, {"X", 0.5}}},

    {"U3",    strength, "no LL, no WL", "1.2DL + 1.6X",                 {{"DL", 1.2}, {"X", 1.6}}},
    {"U3",    strength, "LL or WL",     "1.2DL + 1.6X + 1.0LL",         {{"DL", 1.2}, {"X", 1.6}, {"LL", 1.0}}},
    {"U3",    strength, "LL or WL",     "1.2DL + 1.6X ± 0.65WL",        {{"DL", 1.2}, {"X", 1.6}, {"WL", 0.65}}},

    {"U4",    strength, "no LL, no X",  "1.2DL ± 1.3WL",                {{"DL", 1.2}, {"WL", 1.3}}},
    {"U4",    strength, "LL, no X",     "1.2DL ± 1.3WL + 1.0LL",        {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}}},
    {"U4",    strength, "no LL, X",     "1.2DL ± 1.3WL + 0.5X",         {{"DL", 1.2}, {"WL", 1.3}, {"X", 0.5}}},
    {"U4",    strength, "LL, X",        "1.2DL ± 1.3WL + 1.0LL + 0.5X", {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"X", 0.5}}},
};
static_assert(std::size(kci_kbc_live_roof_wind) == 2 + 3 + 4);
static_assert(textsNameTheirGroups(kci_kbc_live_roof_wind) && signsAreClear(kci_kbc_live_roof_wind));

/// Block U6: live load and earth with the lower factor of EH, which stands outside the parentheses and must have cases.
inline constexpr Row kci_kbc_earth[] = {
    {"U6",    strength, "",             "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5X",
        {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", 1.6, alphaH}, {"EH", 0.8}, {"X", 0.5}}},
};
static_assert(textsNameTheirGroups(kci_kbc_earth) && signsAreClear(kci_kbc_earth));

/// The pair with the vertical seismic force; one for the vertical type alone.
inline constexpr Row kci_kbc_vertical[] = {
    {"Vertical", strength, "vertical",  "-(VER)DL ± 1.0(SUF)EL",        {{"DL", -1.0, verticalForce}, {"EL", 1.0}}},
};
static_assert(textsNameTheirGroups(kci_kbc_vertical) && signsAreClear(kci_kbc_vertical));

}  // namespace zel::codes
