#pragma once

#include "loadcomb/tables/kci_kbc_common.h"

// KCI-USD12: ultimate strength design of concrete, Korea Concrete Institute, 2012.
//
// Covered: dead, live, roof live, snow, rain, wind, earthquake, fluid, EH and EV. Service rows; strength U1 to U8 for the types strength,
// special and vertical; the pair with the vertical seismic force. The seismic factors are read behind the service rows. For the
// underground types only the service rows are added.
//
// Left out: EP and WP; cases of these types stand in no combination. Wind sets and underground sets are not read. With increments, S * V
// (short-period coefficient times vertical load factor) lies in the factors of the groups in the head of a row, and the tail names DL
// alone, with EV in the head too.
namespace zel::codes {

inline constexpr Row kci_usd12_first[] = {
    // row         flag     condition          text                           factors
    {"First",      service, "",                "(DL+FP)",                     {{"DL", 1.0}, {"FP", 1.0}}},
};

// Behind the service rows Live, Roof and Wind of kci_kbc_common.h.
inline constexpr Row kci_usd12_service[] = {
    {"Earthquake", service, "LL, SL, EH",          "((DL+EV) ± 0.7EL + LL + SL + EH)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"LL", twoThirds}, {"SL", twoThirds}, {"EH", twoThirds}}},
    {"Earthquake", service, "LL, SL, no EH",       "((DL+EV) ± 0.7EL + LL + SL)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"LL", twoThirds}, {"SL", twoThirds}}},
    {"Earthquake", service, "LL, no SL, EH",       "((DL+EV) ± 0.7EL + LL + EH)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"LL", twoThirds}, {"EH", twoThirds}}},
    {"Earthquake", service, "LL, no SL, no EH",    "((DL+EV) ± 0.7EL + LL)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"LL", twoThirds}}},
    {"Earthquake", service, "no LL, SL, EH",       "((DL+EV) ± 0.7EL + SL + EH)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"SL", twoThirds}, {"EH", twoThirds}}},
    {"Earthquake", service, "no LL, SL, no EH",    "((DL+EV) ± 0.7EL + SL)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"SL", twoThirds}}},
    {"Earthquake", service, "no LL, no SL, EH",    "((DL+EV) ± 0.7EL + EH)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"EH", twoThirds}}},
    {"Earthquake", service, "no LL, no SL, no EH", "((DL+EV) ± 0.7EL)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}}},

    {"Earth",      service, "WL, EH",       "((DL+EV) ± WL + EH)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"WL", twoThirds}, {"EH", twoThirds}}},
    {"Earth",      service, "WL, no EH",    "((DL+EV) ± WL)/1.5",          {{"DL", twoThirds}, {"EV", twoThirds}, {"WL", twoThirds}}},
    {"Earth",      service, "no WL, EH",    "(DL+EV) + EH",                {{"DL", 1.0}, {"EV", 1.0}, {"EH", 1.0}}},
    {"Earth",      service, "no WL, no EH", "(DL+EV)",                     {{"DL", 1.0}, {"EV", 1.0}}},
    // With EL in the place of WL; without EL nothing is added.
    {"Earth",      service, "EL, EH",       "((DL+EV) ± 0.7EL + EH)/1.5",
        {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}, {"EH", twoThirds}}},
    {"Earth",      service, "EL, no EH",    "((DL+EV) ± 0.7EL)/1.5",       {{"DL", twoThirds}, {"EV", twoThirds}, {"EL", 0.7*twoThirds}}},
};
static_assert(std::size(kci_usd12_service) == 8 + 6);
static_assert(textsNameTheirGroups(kci_usd12_first) && textsNameTheirGroups(kci_usd12_service) && signsAreClear(kci_usd12_service));

inline constexpr Row kci_usd12_dead[] = {
    // row flag      condition  text           factors
    {"U1", strength, "FP",     "1.4(DL+FP)",   {{"DL", 1.4}, {"FP", 1.4}}},
    {"U1", strength, "no FP",  "1.4DL",        {{"DL", 1.4}}},
};

// U5: the head names EV where it has cases; the terms are those of LL and SL that have cases; with EH each row comes twice, 1.0EH, then 0.5EH.
inline constexpr Row kci_usd12_earthquake[] = {
    {"U5", strength, "no increments, no EV, no EH, LL, SL",    "1.2DL ± 1.0(SUF)EL + 1.0LL + 0.2SL",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "no increments, no EV, no EH, LL, no SL", "1.2DL ± 1.0(SUF)EL + 1.0LL",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5", strength, "no increments, no EV, no EH, no LL, SL", "1.2DL ± 1.0(SUF)EL + 0.2SL",
        {{"DL", 1.2}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "no increments, no EV, no EH, no LL, no SL", "1.2DL ± 1.0(SUF)EL",
        {{"DL", 1.2}, {"EL", 1.0}}},

    {"U5", strength, "no increments, no EV, EH, LL, SL",       "1.2DL ± 1.0(SUF)EL + 1.0LL + 0.2SL + 1.0EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "no increments, no EV, EH, LL, SL",       "1.2DL ± 1.0(SUF)EL + 1.0LL + 0.2SL + 0.5EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "no increments, no EV, EH, LL, no SL",    "1.2DL ± 1.0(SUF)EL + 1.0LL + 1.0EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "no increments, no EV, EH, LL, no SL",    "1.2DL ± 1.0(SUF)EL + 1.0LL + 0.5EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 0.5}}},
    {"U5", strength, "no increments, no EV, EH, no LL, SL",    "1.2DL ± 1.0(SUF)EL + 0.2SL + 1.0EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "no increments, no EV, EH, no LL, SL",    "1.2DL ± 1.0(SUF)EL + 0.2SL + 0.5EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "no increments, no EV, EH, no LL, no SL", "1.2DL ± 1.0(SUF)EL + 1.0EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "no increments, no EV, EH, no LL, no SL", "1.2DL ± 1.0(SUF)EL + 0.5EH",
        {{"DL", 1.2}, {"EL", 1.0}, {"EH", 0.5}}},

    {"U5", strength, "no increments, EV, no EH, LL, SL",       "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL + 0.2SL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "no increments, EV, no EH, LL, no SL",    "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5", strength, "no increments, EV, no EH, no LL, SL",    "1.2(DL+EV) ± 1.0(SUF)EL + 0.2SL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "no increments, EV, no EH, no LL, no SL", "1.2(DL+EV) ± 1.0(SUF)EL",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}}},

    {"U5", strength, "no increments, EV, EH, LL, SL",          "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL + 0.2SL + 1.0EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "no increments, EV, EH, LL, SL",          "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL + 0.2SL + 0.5EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "no increments, EV, EH, LL, no SL",       "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL + 1.0EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "no increments, EV, EH, LL, no SL",       "1.2(DL+EV) ± 1.0(SUF)EL + 1.0LL + 0.5EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 0.5}}},
    {"U5", strength, "no increments, EV, EH, no LL, SL",       "1.2(DL+EV) ± 1.0(SUF)EL + 0.2SL + 1.0EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "no increments, EV, EH, no LL, SL",       "1.2(DL+EV) ± 1.0(SUF)EL + 0.2SL + 0.5EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "no increments, EV, EH, no LL, no SL",    "1.2(DL+EV) ± 1.0(SUF)EL + 1.0EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "no increments, EV, EH, no LL, no SL",    "1.2(DL+EV) ± 1.0(SUF)EL + 0.5EH",
        {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"EH", 0.5}}},
};
static_assert(std::size(kci_usd12_earthquake) == 4 + 8 + 4 + 8);
static_assert(textsNameTheirGroups(kci_usd12_earthquake) && signsAreClear(kci_usd12_earthquake));

// U5 with increments: the same variants.
inline constexpr Row kci_usd12_earthquake_increments[] = {
    {"U5", strength, "increments, no EV, no EH, LL, SL",    "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "increments, no EV, no EH, LL, no SL", "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5", strength, "increments, no EV, no EH, no LL, SL", "1.2DL ± 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "increments, no EV, no EH, no LL, no SL", "1.2DL ± 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}}},

    {"U5", strength, "increments, no EV, EH, LL, SL",       "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "increments, no EV, EH, LL, SL",       "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "increments, no EV, EH, LL, no SL",    "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "increments, no EV, EH, LL, no SL",    "1.2DL ± 1.0(SUF)(OMG)EL + 1.0LL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 0.5}}},
    {"U5", strength, "increments, no EV, EH, no LL, SL",    "1.2DL ± 1.0(SUF)(OMG)EL + 0.2SL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "increments, no EV, EH, no LL, SL",    "1.2DL ± 1.0(SUF)(OMG)EL + 0.2SL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "increments, no EV, EH, no LL, no SL", "1.2DL ± 1.0(SUF)(OMG)EL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "increments, no EV, EH, no LL, no SL", "1.2DL ± 1.0(SUF)(OMG)EL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EL", 1.0}, {"EH", 0.5}}},

    {"U5", strength, "increments, EV, no EH, LL, SL",       "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "increments, EV, no EH, LL, no SL",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}}},
    {"U5", strength, "increments, EV, no EH, no LL, SL",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}}},
    {"U5", strength, "increments, EV, no EH, no LL, no SL", "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}}},

    {"U5", strength, "increments, EV, EH, LL, SL",          "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "increments, EV, EH, LL, SL",          "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "increments, EV, EH, LL, no SL",       "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "increments, EV, EH, LL, no SL",       "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0LL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"LL", 1.0}, {"EH", 0.5}}},
    {"U5", strength, "increments, EV, EH, no LL, SL",       "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 0.2SL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {"U5", strength, "increments, EV, EH, no LL, SL",       "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 0.2SL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {"U5", strength, "increments, EV, EH, no LL, no SL",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"EH", 1.0}}},
    {"U5", strength, "increments, EV, EH, no LL, no SL",    "1.2(DL+EV) ± 1.0(SUF)(OMG)EL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", 1.2, plusSpectrum}, {"EV", 1.2, plusSpectrum}, {"EL", 1.0}, {"EH", 0.5}}},
};
static_assert(std::size(kci_usd12_earthquake_increments) == 4 + 8 + 4 + 8);
static_assert(textsNameTheirGroups(kci_usd12_earthquake_increments) && signsAreClear(kci_usd12_earthquake_increments));

inline constexpr Row kci_usd12_least_dead[] = {
    // row flag      condition       text                            factors
    {"U7", strength, "WL, EH",       "0.9(DL+EV) ± 1.3WL + 1.6EH",   {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}, {"EH", 1.6}}},
    {"U7", strength, "WL, EH",       "0.9(DL+EV) ± 1.3WL + 0.8EH",   {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}, {"EH", 0.8}}},
    {"U7", strength, "WL, no EH",    "0.9(DL+EV) ± 1.3WL",           {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}}},
    {"U7", strength, "no WL, EH",    "0.9(DL+EV) + 1.6EH",           {{"DL", 0.9}, {"EV", 0.9}, {"EH", 1.6}}},
    {"U7", strength, "no WL, EH",    "0.9(DL+EV) + 0.8EH",           {{"DL", 0.9}, {"EV", 0.9}, {"EH", 0.8}}},
    {"U7", strength, "no WL, no EH", "0.9(DL+EV)",                   {{"DL", 0.9}, {"EV", 0.9}}},

    {"U8", strength, "EL, EH, no increments",    "0.9(DL+EV) ± 1.0(SUF)EL + 1.0EH",
        {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}, {"EH", 1.0}}},
    {"U8", strength, "EL, EH, no increments",    "0.9(DL+EV) ± 1.0(SUF)EL + 0.5EH",
        {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}, {"EH", 0.5}}},
    {"U8", strength, "EL, no EH, no increments", "0.9(DL+EV) ± 1.0(SUF)EL",
        {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}}},
    // The tail keeps its minus in both rows.
    {"U8", strength, "EL, EH, increments",       "0.9(DL+EV) ± 1.0(SUF)(OMG)EL + 1.0EH - (SPC)(ZEL)DL",
        {{"DL", 0.9, minusSpectrum}, {"EV", 0.9, minusSpectrum}, {"EL", 1.0}, {"EH", 1.0}}},
    {"U8", strength, "EL, EH, increments",       "0.9(DL+EV) ± 1.0(SUF)(OMG)EL + 0.5EH - (SPC)(ZEL)DL",
        {{"DL", 0.9, minusSpectrum}, {"EV", 0.9, minusSpectrum}, {"EL", 1.0}, {"EH", 0.5}}},
    {"U8", strength, "EL, no EH, increments",    "0.9(DL+EV) ± 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",
        {{"DL", 0.9, minusSpectrum}, {"EV", 0.9, minusSpectrum}, {"EL", 1.0}}},
    // The blank at the end of the next two texts is meant.
    {"U8", strength, "no EL, EH",    "0.9(DL+EV) + 1.0EH ",          {{"DL", 0.9}, {"EV", 0.9}, {"EH", 1.0}}},
    {"U8", strength, "no EL, EH",    "0.9(DL+EV) + 0.5EH ",          {{"DL", 0.9}, {"EV", 0.9}, {"EH", 0.5}}},
    {"U8", strength, "no EL, no EH", "0.9(DL+EV)",                   {{"DL", 0.9}, {"EV", 0.9}}},
};
static_assert(std::size(kci_usd12_least_dead) == 6 + 9);
static_assert(textsNameTheirGroups(kci_usd12_dead) && textsNameTheirGroups(kci_usd12_least_dead) && signsAreClear(kci_usd12_least_dead));

inline constexpr Part kci_usd12_parts[] = {
    // title                          reads                    when                                rows
    {"Service, first",                Reads::nothing,          "",                                 kci_usd12_first},
    {"Service, live, roof, wind",     Reads::nothing,          "",                                 kci_kbc_service},
    {"Service, earthquake and earth", Reads::nothing,          "",                                 kci_usd12_service},
    {"Dead load",                     Reads::seismicFactors,   "strength or special or vertical",  kci_usd12_dead},
    {"Live load, roof, wind",         Reads::nothing,          "strength or special or vertical",  kci_kbc_live_roof_wind},
    {"Earthquake",                    Reads::nothing,          "strength or special or vertical",  kci_usd12_earthquake},
    {"Earthquake, increments",        Reads::nothing,          "special",                          kci_usd12_earthquake_increments},
    {"Earth",                         Reads::nothing,          "strength or special or vertical",  kci_kbc_earth},
    {"Least dead load",               Reads::nothing,          "strength or special or vertical",  kci_usd12_least_dead},
    {"Vertical",                      Reads::nothing,          "vertical",                         kci_kbc_vertical},
};

inline constexpr CodeTable kci_usd12{kci_usd12_parts};

}  // namespace zel::codes
