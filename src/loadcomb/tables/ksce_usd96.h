#pragma once

#include "loadcomb/tables/code_table.h"

// KSCE-USD96: ultimate strength design of concrete, Korean Society of Civil Engineers, 1996. 24 rows.
//
// Covered: dead, live, roof live, wind, earthquake, fluid, earth and water pressure; 5 service and 19 strength rows. The service rows
// divide by 1.25 with wind and by 1.35 with earthquake.
// Left out: snow, rain, EH, EV. Cases of these types stand in no combination. The rows are the same for every type of combinations; no
// seismic factors, wind sets or underground sets are read.
namespace zel::codes {

inline constexpr Row ksce_usd96_rows[] = {
    // row  flag      when text and factors
    {"1",  service,  "", "1.0DL + 1.0(LL+LR)",                      {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}}},
    {"2",  service,  "", "(1.0DL + 1.0(LL+LR) + 1.0WL)/1.25",       {{"DL", 0.8}, {"LL", 0.8}, {"LR", 0.8}, {"WL", 0.8}}},
    {"3",  service,  "", "(1.0DL + 1.0(LL+LR) - 1.0WL)/1.25",       {{"DL", 0.8}, {"LL", 0.8}, {"LR", 0.8}, {"WL", -0.8}}},
    {"4",  service,  "", "(1.0DL + 1.0(LL+LR) + 1.0(SUF)EL)/1.35",
                         {{"DL", over1_35}, {"LL", over1_35}, {"LR", over1_35}, {"EL", over1_35}}},
    {"5",  service,  "", "(1.0DL + 1.0(LL+LR) - 1.0(SUF)EL)/1.35",
                         {{"DL", over1_35}, {"LL", over1_35}, {"LR", over1_35}, {"EL", -over1_35}}},
    {"6",  strength, "", "1.5DL + 1.8(LL+LR)",                      {{"DL", 1.5}, {"LL", 1.8}, {"LR", 1.8}}},
    {"7",  strength, "", "0.75(1.5DL + 1.8(LL+LR) + 1.8WL)",        {{"DL", 1.125}, {"LL", 1.35}, {"LR", 1.35}, {"WL", 1.35}}},
    {"8",  strength, "", "0.75(1.5DL + 1.8(LL+LR) - 1.8WL)",        {{"DL", 1.125}, {"LL", 1.35}, {"LR", 1.35}, {"WL", -1.35}}},
    {"9",  strength, "", "0.9DL + 1.4WL",                           {{"DL", 0.9}, {"WL", 1.4}}},
    {"10", strength, "", "0.9DL - 1.4WL",                           {{"DL", 0.9}, {"WL", -1.4}}},
    {"11", strength, "", "0.75(1.5DL + 1.8(LL+LR) + 1.8(SUF)EL)",   {{"DL", 1.125}, {"LL", 1.35}, {"LR", 1.35}, {"EL", 1.35}}},
    {"12", strength, "", "0.75(1.5DL + 1.8(LL+LR) - 1.8(SUF)EL)",   {{"DL", 1.125}, {"LL", 1.35}, {"LR", 1.35}, {"EL", -1.35}}},
    {"13", strength, "", "0.9DL + 1.4(SUF)EL",                      {{"DL", 0.9}, {"EL", 1.4}}},
    {"14", strength, "", "0.9DL - 1.4(SUF)EL",                      {{"DL", 0.9}, {"EL", -1.4}}},
    {"15", strength, "", "0.75(1.5DL + 1.8(LL+LR))",                {{"DL", 1.125}, {"LL", 1.35}, {"LR", 1.35}}},
    {"16", strength, "", "1.5DL",                                   {{"DL", 1.5}}},
    {"17", strength, "", "1.5DL + 1.8(LL+LR) + 1.5FP",              {{"DL", 1.5}, {"LL", 1.8}, {"LR", 1.8}, {"FP", 1.5}}},
    {"18", strength, "", "0.9DL + 1.8(LL+LR) + 1.5FP",              {{"DL", 0.9}, {"LL", 1.8}, {"LR", 1.8}, {"FP", 1.5}}},
    {"19", strength, "", "1.5DL + 1.5FP",                           {{"DL", 1.5}, {"FP", 1.5}}},
    {"20", strength, "", "0.9DL + 1.5FP",                           {{"DL", 0.9}, {"FP", 1.5}}},
    {"21", strength, "", "1.5DL + 1.8(LL+LR) + 1.8(EP+WP)",         {{"DL", 1.5}, {"LL", 1.8}, {"LR", 1.8}, {"EP", 1.8}, {"WP", 1.8}}},
    {"22", strength, "", "0.9DL + 1.8(LL+LR) + 1.8(EP+WP)",         {{"DL", 0.9}, {"LL", 1.8}, {"LR", 1.8}, {"EP", 1.8}, {"WP", 1.8}}},
    {"23", strength, "", "1.5DL + 1.8(EP+WP)",                      {{"DL", 1.5}, {"EP", 1.8}, {"WP", 1.8}}},
    {"24", strength, "", "0.9DL + 1.8(EP+WP)",                      {{"DL", 0.9}, {"EP", 1.8}, {"WP", 1.8}}},
};
static_assert(std::size(ksce_usd96_rows) == 24);
static_assert(textsNameTheirGroups(ksce_usd96_rows) && signsAreClear(ksce_usd96_rows));

inline constexpr Part ksce_usd96_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(ksce_usd96_rows, 1, 5)},
    {"Strength", Reads::nothing, "",   rows(ksce_usd96_rows, 6, 24)},
};

inline constexpr CodeTable ksce_usd96{ksce_usd96_parts};

}  // namespace zel::codes
