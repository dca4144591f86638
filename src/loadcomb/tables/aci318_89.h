#pragma once

#include "loadcomb/tables/code_table.h"

// ACI318-89, ACI318-95, ACI318-99: building code requirements for structural concrete, American Concrete Institute, editions of 1989,
// 1995 and 1999. One table of 28 rows serves the three.
//
// Covered: dead, live, roof live, wind, earthquake, fluid, earth and water pressure; 5 service and 23 strength rows.
// Left out: snow, rain, EH, EV. Cases of these types stand in no combination. The rows are the same for every type of combinations; no
// seismic factors, wind sets or underground sets are read.
namespace zel::codes {

inline constexpr Row aci318_89_rows[] = {
    // row  flag      condition       text and factors
    {"1",  service,  "",             "1.0DL + 1.0(LL+LR)",                          {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}}},
    {"2",  service,  "",             "0.75(1.0DL + 1.0(LL+LR) + 1.0WL)",
                                     {{"DL", 0.75}, {"LL", 0.75}, {"LR", 0.75}, {"WL", 0.75}}},
    {"3",  service,  "",             "0.75(1.0DL + 1.0(LL+LR) - 1.0WL)",
                                     {{"DL", 0.75}, {"LL", 0.75}, {"LR", 0.75}, {"WL", -0.75}}},
    {"4",  service,  "",             "0.75(1.0DL + 1.0(LL+LR) + 1.0(SUF)EL)",
                                     {{"DL", 0.75}, {"LL", 0.75}, {"LR", 0.75}, {"EL", 0.75}}},
    {"5",  service,  "",             "0.75(1.0DL + 1.0(LL+LR) - 1.0(SUF)EL)",
                                     {{"DL", 0.75}, {"LL", 0.75}, {"LR", 0.75}, {"EL", -0.75}}},
    {"6",  strength, "",             "1.4DL + 1.7(LL+LR)",                          {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}}},
    {"7",  strength, "no LL, no LR", "0.75(1.4DL + 1.7WL)",                         {{"DL", near1_05}, {"WL", 1.275}}},
    {"8",  strength, "no LL, no LR", "0.75(1.4DL - 1.7WL)",                         {{"DL", near1_05}, {"WL", -1.275}}},
    {"9",  strength, "LL or LR",     "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",
                                     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", 1.275}}},
    {"10", strength, "LL or LR",     "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)",
                                     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", -1.275}}},
    {"11", strength, "",             "0.9DL + 1.3WL",                               {{"DL", 0.9}, {"WL", 1.3}}},
    {"12", strength, "",             "0.9DL - 1.3WL",                               {{"DL", 0.9}, {"WL", -1.3}}},
    {"13", strength, "no LL, no LR", "0.75(1.4DL + 1.7(SUF)(1.1EL))",               {{"DL", near1_05}, {"EL", 1.4025}}},
    {"14", strength, "no LL, no LR", "0.75(1.4DL - 1.7(SUF)(1.1EL))",               {{"DL", near1_05}, {"EL", -1.4025}}},
    {"15", strength, "LL or LR",     "0.75(1.4DL + 1.7(LL+LR) + 1.7(SUF)(1.1EL))",
                                     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", 1.4025}}},
    {"16", strength, "LL or LR",     "0.75(1.4DL + 1.7(LL+LR) - 1.7(SUF)(1.1EL))",
                                     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", -1.4025}}},
    {"17", strength, "",             "0.9DL + 1.3(SUF)(1.1EL)",                     {{"DL", 0.9}, {"EL", 1.43}}},
    {"18", strength, "",             "0.9DL - 1.3(SUF)(1.1EL)",                     {{"DL", 0.9}, {"EL", -1.43}}},
    {"19", strength, "",             "0.75(1.4DL + 1.7(LL+LR))",                    {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}}},
    {"20", strength, "",             "1.4DL",                                       {{"DL", 1.4}}},
    {"21", strength, "",             "1.4DL + 1.7(LL+LR) + 1.4FP",                  {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.4}}},
    {"22", strength, "",             "0.9DL + 1.7(LL+LR) + 1.4FP",                  {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.4}}},
    {"23", strength, "",             "1.4DL + 1.4FP",                               {{"DL", 1.4}, {"FP", 1.4}}},
    {"24", strength, "",             "0.9DL + 1.4FP",                               {{"DL", 0.9}, {"FP", 1.4}}},
    {"25", strength, "",             "1.4DL + 1.7(LL+LR) + 1.7(EP+WP)",
                                     {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.7}, {"WP", 1.7}}},
    {"26", strength, "",             "0.9DL + 1.7(LL+LR) + 1.7(EP+WP)",
                                     {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.7}, {"WP", 1.7}}},
    {"27", strength, "",             "1.4DL + 1.7(EP+WP)",                          {{"DL", 1.4}, {"EP", 1.7}, {"WP", 1.7}}},
    {"28", strength, "",             "0.9DL + 1.7(EP+WP)",                          {{"DL", 0.9}, {"EP", 1.7}, {"WP", 1.7}}},
};
static_assert(std::size(aci318_89_rows) == 28);
static_assert(textsNameTheirGroups(aci318_89_rows) && signsAreClear(aci318_89_rows));

inline constexpr Part aci318_89_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(aci318_89_rows, 1, 5)},
    {"Strength", Reads::nothing, "",   rows(aci318_89_rows, 6, 28)},
};

inline constexpr CodeTable aci318_89{aci318_89_parts};

}  // namespace zel::codes
