#pragma once

#include "loadcomb/tables/code_table.h"

// AIK-USD94: ultimate strength design of concrete, Architectural Institute of Korea, 1994. 24 rows.
//
// Covered: dead, live, roof live, wind, earthquake, fluid, earth and water pressure; 5 service and 19 strength rows.
// Left out: snow, rain, EH, EV. Cases of these types stand in no combination. The rows are the same for every type of combinations; no
// seismic factors, wind sets or underground sets are read.
namespace zel::codes {

inline constexpr Row aik_usd94_rows[] = {
    // row  flag      when text and factors
    {"1",  service,  "", "1.0DL + 1.0(LL+LR)",                          {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}}},
    {"2",  service,  "", "(1.0DL + 1.0(LL+LR) + 1.0WL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"WL", twoThirds}}},
    {"3",  service,  "", "(1.0DL + 1.0(LL+LR) - 1.0WL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"WL", -twoThirds}}},
    {"4",  service,  "", "(1.0DL + 1.0(LL+LR) + 1.0(SUF)EL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"EL", twoThirds}}},
    {"5",  service,  "", "(1.0DL + 1.0(LL+LR) - 1.0(SUF)EL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"EL", -twoThirds}}},
    {"6",  strength, "", "1.4DL + 1.7(LL+LR)",                          {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}}},
    {"7",  strength, "", "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",            {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", 1.275}}},
    {"8",  strength, "", "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)",            {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", -1.275}}},
    {"9",  strength, "", "0.9DL + 1.3WL",                               {{"DL", 0.9}, {"WL", 1.3}}},
    {"10", strength, "", "0.9DL - 1.3WL",                               {{"DL", 0.9}, {"WL", -1.3}}},
    {"11", strength, "", "0.75(1.4DL + 1.7(LL+LR) + 1.7(SUF)(1.1EL))",  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", 1.4025}}},
    {"12", strength, "", "0.75(1.4DL + 1.7(LL+LR) - 1.7(SUF)(1.1EL))",  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", -1.4025}}},
    {"13", strength, "", "0.9DL + 1.3(SUF)(1.1EL)",                     {{"DL", 0.9}, {"EL", 1.43}}},
    {"14", strength, "", "0.9DL - 1.3(SUF)(1.1EL)",                     {{"DL", 0.9}, {"EL", -1.43}}},
    {"15", strength, "", "0.75(1.4DL + 1.7(LL+LR))",                    {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}}},
    {"16", strength, "", "1.4DL",                                       {{"DL", 1.4}}},
    {"17", strength, "", "1.4DL + 1.7(LL+LR) + 1.4FP",                  {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.4}}},
    {"18", strength, "", "0.9DL + 1.7(LL+LR) + 1.4FP",                  {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.4}}},
    {"19", strength, "", "1.4DL + 1.4FP",                               {{"DL", 1.4}, {"FP", 1.4}}},
    {"20", strength, "", "0.9DL + 1.4FP",                               {{"DL", 0.9}, {"FP", 1.4}}},
    {"21", strength, "", "1.4DL + 1.7(LL+LR) + 1.7(EP+WP)",             {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.7}, {"WP", 1.7}}},
    {"22", strength, "", "0.9DL + 1.7(LL+LR) + 1.7(EP+WP)",             {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.7}, {"WP", 1.7}}},
    {"23", strength, "", "1.4DL + 1.7(EP+WP)",                          {{"DL", 1.4}, {"EP", 1.7}, {"WP", 1.7}}},
    {"24", strength, "", "0.9DL + 1.7(EP+WP)",                          {{"DL", 0.9}, {"EP", 1.7}, {"WP", 1.7}}},
};
static_assert(std::size(aik_usd94_rows) == 24);
static_assert(textsNameTheirGroups(aik_usd94_rows) && signsAreClear(aik_usd94_rows));

inline constexpr Part aik_usd94_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(aik_usd94_rows, 1, 5)},
    {"Strength", Reads::nothing, "",   rows(aik_usd94_rows, 6, 24)},
};

inline constexpr CodeTable aik_usd94{aik_usd94_parts};

}  // namespace zel::codes
