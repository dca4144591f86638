#pragma once

#include "loadcomb/tables/code_table.h"

// A table for a code that has no name yet: the registry does not lead here. 15 rows, all of strength, with the factors 1.35 and 1.5.
//
// Covered: dead, live, roof live, snow, wind, earthquake, earth and water pressure.
// Left out: service rows, rain, fluid, EH, EV. The rows are the same for every type of combinations; no seismic factors, wind sets or
// underground sets are read.
namespace zel::codes {

inline constexpr Row unnamed_first_rows[] = {
    // row  flag      when text and factors
    {"1",  strength, "", "1.35DL + 1.5(LL+LR)",                 {{"DL", 1.35}, {"LL", 1.5}, {"LR", 1.5}}},
    {"2",  strength, "", "1.35DL + 1.35(LL+LR) + 1.35SL",       {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}, {"SL", 1.35}}},
    {"3",  strength, "", "1.0DL + 1.5SL",                       {{"DL", 1.0}, {"SL", 1.5}}},
    {"4",  strength, "", "1.35DL + 1.35(LL+LR) + 1.35WL",       {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}, {"WL", 1.35}}},
    {"5",  strength, "", "1.35DL + 1.35(LL+LR) - 1.35WL",       {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}, {"WL", -1.35}}},
    {"6",  strength, "", "1.0DL + 1.5WL",                       {{"DL", 1.0}, {"WL", 1.5}}},
    {"7",  strength, "", "1.0DL - 1.5WL",                       {{"DL", 1.0}, {"WL", -1.5}}},
    {"8",  strength, "", "1.35DL + 1.35(LL+LR) + 1.35(SUF)EL",  {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}, {"EL", 1.35}}},
    {"9",  strength, "", "1.35DL + 1.35(LL+LR) - 1.35(SUF)EL",  {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}, {"EL", -1.35}}},
    {"10", strength, "", "1.0DL + 1.5(SUF)EL",                  {{"DL", 1.0}, {"EL", 1.5}}},
    {"11", strength, "", "1.0DL - 1.5(SUF)EL",                  {{"DL", 1.0}, {"EL", -1.5}}},
    {"12", strength, "", "1.35DL + 1.35(LL+LR)",                {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}}},
    {"13", strength, "", "1.0DL",                               {{"DL", 1.0}}},
    {"14", strength, "", "1.35DL + 1.35(LL+LR) + 1.35(EP+WP)",  {{"DL", 1.35}, {"LL", 1.35}, {"LR", 1.35}, {"EP", 1.35}, {"WP", 1.35}}},
    {"15", strength, "", "1.0DL + 1.5(EP+WP)",                  {{"DL", 1.0}, {"EP", 1.5}, {"WP", 1.5}}},
};
static_assert(std::size(unnamed_first_rows) == 15);
static_assert(textsNameTheirGroups(unnamed_first_rows) && signsAreClear(unnamed_first_rows));

inline constexpr Part unnamed_first_parts[] = {
    // title      reads           when  rows
    {"Strength", Reads::nothing, "",   unnamed_first_rows},
};

inline constexpr CodeTable unnamed_first{unnamed_first_parts};

}  // namespace zel::codes
