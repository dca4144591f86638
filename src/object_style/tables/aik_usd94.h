#pragma once

#include "loadcomb/tables/code_table.h"

// AIK-USD94 as this generator holds it: ultimate strength design of concrete, Architectural Institute of Korea, 1994. 14 rows.
//
// Covered: dead, live, wind and earthquake; 5 service and 9 strength rows. All other load types stand in no combination.
// Two peculiarities are kept on purpose: the wind factor of rows 9 and 10 is 0.3, not the 1.3 of their text, and in rows 13 and 14
// the 0.9 lies on live load, not on dead load. No other code shares them.
namespace zel::codes::object_style {

inline constexpr Row aik_usd94_rows[] = {
    // row  flag      when text                                  group and factor
    {"1",  service,  "", "1.0DL+1.0LL",                         {{"DL", 1.0}, {"LL", 1.0}}},
    {"2",  service,  "", "(1.0DL+1.0LL+1.0WL)/1.5",             {{"DL", twoThirds}, {"LL", twoThirds}, {"WL", twoThirds}}},
    {"3",  service,  "", "(1.0DL+1.0LL-1.0WL)/1.5",             {{"DL", twoThirds}, {"LL", twoThirds}, {"WL", -twoThirds}}},
    {"4",  service,  "", "(1.0DL+1.0LL+1.0*SF*EL)/1.5",         {{"DL", twoThirds}, {"LL", twoThirds}, {"EL", twoThirds}}},
    {"5",  service,  "", "(1.0DL+1.0LL-1.0*SF*EL)/1.5",         {{"DL", twoThirds}, {"LL", twoThirds}, {"EL", -twoThirds}}},
    {"6",  strength, "", "1.4DL+1.7LL",                         {{"DL", 1.4}, {"LL", 1.7}}},
    {"7",  strength, "", "0.75(1.4DL+1.7LL+1.7WL)",             {{"DL", 1.05}, {"LL", 1.275}, {"WL", 1.275}}},
    {"8",  strength, "", "0.75(1.4DL+1.7LL-1.7WL)",             {{"DL", 1.05}, {"LL", 1.275}, {"WL", -1.275}}},
    {"9",  strength, "", "0.9DL+1.3WL",                         {{"DL", 0.9}, {"WL", 0.3}}},
    {"10", strength, "", "0.9DL-1.3WL",                         {{"DL", 0.9}, {"WL", -0.3}}},
    {"11", strength, "", "0.75(1.4DL+1.7LL+1.7(1.1*SF*EL))",    {{"DL", 1.05}, {"LL", 1.275}, {"EL", 1.4025}}},
    {"12", strength, "", "0.75(1.4DL+1.7LL-1.7(1.1*SF*EL))",    {{"DL", 1.05}, {"LL", 1.275}, {"EL", -1.4025}}},
    {"13", strength, "", "0.9DL+1.3(1.1*SF*EL)",                {{"LL", 0.9}, {"EL", 1.43}}},
    {"14", strength, "", "0.9DL-1.3(1.1*SF*EL)",                {{"LL", 0.9}, {"EL", -1.43}}},
};
static_assert(std::size(aik_usd94_rows) == 14);
static_assert(textsNameTheirGroups(rows(aik_usd94_rows, 1, 12)));

inline constexpr Part aik_usd94_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(aik_usd94_rows, 1, 5)},
    {"Strength", Reads::nothing, "",   rows(aik_usd94_rows, 6, 14)},
};

inline constexpr CodeTable aik_usd94{aik_usd94_parts};

}  // namespace zel::codes::object_style
