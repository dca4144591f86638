#pragma once

#include "loadcomb/tables/code_table.h"

// KSCE-USD96 as this generator holds it: ultimate strength design of concrete, Korean Society of Civil Engineers, 1996. 14 rows.
//
// Covered: dead, live, wind and earthquake; 5 service and 9 strength rows. The service rows divide by 1.25 with wind and by 1.35 with
// earthquake. All other load types stand in no combination.
namespace zel::codes::object_style {

inline constexpr Row ksce_usd96_rows[] = {
    // row  flag      when text                              group and factor
    {"1",  service,  "", "1.0DL+1.0LL",                     {{"DL", 1.0}, {"LL", 1.0}}},
    {"2",  service,  "", "(1.0DL+1.0LL+1.0WL)/1.25",        {{"DL", 0.8}, {"LL", 0.8}, {"WL", 0.8}}},
    {"3",  service,  "", "(1.0DL+1.0LL-1.0WL)/1.25",        {{"DL", 0.8}, {"LL", 0.8}, {"WL", -0.8}}},
    {"4",  service,  "", "(1.0DL+1.0LL+1.0*SF*EL)/1.35",    {{"DL", over1_35}, {"LL", over1_35}, {"EL", over1_35}}},
    {"5",  service,  "", "(1.0DL+1.0LL-1.0*SF*EL)/1.35",    {{"DL", over1_35}, {"LL", over1_35}, {"EL", -over1_35}}},
    {"6",  strength, "", "1.5DL+1.8LL",                     {{"DL", 1.5}, {"LL", 1.8}}},
    {"7",  strength, "", "0.75(1.5DL+1.8LL+1.8WL)",         {{"DL", 1.125}, {"LL", 1.35}, {"WL", 1.35}}},
    {"8",  strength, "", "0.75(1.5DL+1.8LL-1.8WL)",         {{"DL", 1.125}, {"LL", 1.35}, {"WL", -1.35}}},
    {"9",  strength, "", "0.9DL+1.4WL",                     {{"DL", 0.9}, {"WL", 1.4}}},
    {"10", strength, "", "0.9DL-1.4WL",                     {{"DL", 0.9}, {"WL", -1.4}}},
    {"11", strength, "", "0.75(1.5DL+1.8LL+1.8*SF*EL)",     {{"DL", 1.125}, {"LL", 1.35}, {"EL", 1.35}}},
    {"12", strength, "", "0.75(1.5DL+1.8LL-1.8*SF*EL)",     {{"DL", 1.125}, {"LL", 1.35}, {"EL", -1.35}}},
    {"13", strength, "", "0.9DL+1.4EL",                     {{"DL", 0.9}, {"EL", 1.4}}},
    {"14", strength, "", "0.9DL-1.4EL",                     {{"DL", 0.9}, {"EL", -1.4}}},
};
static_assert(std::size(ksce_usd96_rows) == 14);
static_assert(textsNameTheirGroups(ksce_usd96_rows));

inline constexpr Part ksce_usd96_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(ksce_usd96_rows, 1, 5)},
    {"Strength", Reads::nothing, "",   rows(ksce_usd96_rows, 6, 14)},
};

inline constexpr CodeTable ksce_usd96{ksce_usd96_parts};

}  // namespace zel::codes::object_style
