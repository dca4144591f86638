#pragma once

#include "loadcomb/tables/code_table.h"

// KCI-USD99: ultimate strength design of concrete, Korea Concrete Institute, 1999. 47 rows.
//
// Covered: dead, live, roof live, wind, earthquake, fluid, earth and water pressure; 14 service and 33 strength rows. A row with
// "(LL+LR)" is used in models with roof live load, its sister with "LL" alone in models without.
// Left out: snow, rain, EH, EV. Cases of these types stand in no combination. The rows are the same for every type of combinations; no
// seismic factors, wind sets or underground sets are read.
namespace zel::codes {

inline constexpr Row kci_usd99_rows[] = {
    // row  flag      when     text and factors
    {"1",  service,  "LR",    "1.0DL + 1.0(LL+LR)",                     {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}}},
    {"2",  service,  "LR",    "(1.0DL + 1.0(LL+LR) + 1.0WL)/1.5",
                              {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"WL", twoThirds}}},
    {"3",  service,  "LR",    "(1.0DL + 1.0(LL+LR) - 1.0WL)/1.5",
                              {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"WL", -twoThirds}}},
    {"4",  service,  "no LR", "1.0DL + 1.0LL",                          {{"DL", 1.0}, {"LL", 1.0}}},
    {"5",  service,  "no LR", "(1.0DL + 1.0LL + 1.0WL)/1.5",            {{"DL", twoThirds}, {"LL", twoThirds}, {"WL", twoThirds}}},
    {"6",  service,  "no LR", "(1.0DL + 1.0LL - 1.0WL)/1.5",            {{"DL", twoThirds}, {"LL", twoThirds}, {"WL", -twoThirds}}},
    {"7",  service,  "",      "(1.0DL + 1.0WL)/1.5",                    {{"DL", twoThirds}, {"WL", twoThirds}}},
    {"8",  service,  "",      "(1.0DL - 1.0WL)/1.5",                    {{"DL", twoThirds}, {"WL", -twoThirds}}},
    {"9",  service,  "LR",    "(1.0DL + 1.0(LL+LR) + 1.0(SUF)EL)/1.5",
                              {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"EL", twoThirds}}},
    {"10", service,  "LR",    "(1.0DL + 1.0(LL+LR) - 1.0(SUF)EL)/1.5",
                              {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"EL", -twoThirds}}},
    {"11", service,  "no LR", "(1.0DL + 1.0LL + 1.0(SUF)EL)/1.5",       {{"DL", twoThirds}, {"LL", twoThirds}, {"EL", twoThirds}}},
    {"12", service,  "no LR", "(1.0DL + 1.0LL - 1.0(SUF)EL)/1.5",       {{"DL", twoThirds}, {"LL", twoThirds}, {"EL", -twoThirds}}},
    {"13", service,  "",      "(1.0DL + 1.0(SUF)EL)/1.5",               {{"DL", twoThirds}, {"EL", twoThirds}}},
    {"14", service,  "",      "(1.0DL - 1.0(SUF)EL)/1.5",               {{"DL", twoThirds}, {"EL", -twoThirds}}},
    {"15", strength, "LR",    "1.4DL + 1.7(LL+LR)",                     {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}}},
    {"16", strength, "LR",    "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",       {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", 1.275}}},
    {"17", strength, "LR",    "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)",       {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", -1.275}}},
    {"18", strength, "no LR", "1.4DL + 1.7LL",                          {{"DL", 1.4}, {"LL", 1.7}}},
    {"19", strength, "no LR", "0.75(1.4DL + 1.7LL + 1.7WL)",            {{"DL", near1_05}, {"LL", 1.275}, {"WL", 1.275}}},
    {"20", strength, "no LR", "0.75(1.4DL + 1.7LL - 1.7WL)",            {{"DL", near1_05}, {"LL", 1.275}, {"WL", -1.275}}},
    {"21", strength, "",      "0.75(1.4DL + 1.7WL)",                    {{"DL", near1_05}, {"WL", 1.275}}},
    {"22", strength, "",      "0.75(1.4DL - 1.7WL)",                    {{"DL", near1_05}, {"WL", -1.275}}},
    {"23", strength, "",      "0.9DL + 1.3WL",                          {{"DL", 0.9}, {"WL", 1.3}}},
    {"24", strength, "",      "0.9DL - 1.3WL",                          {{"DL", 0.9}, {"WL", -1.3}}},
    {"25", strength, "LR",    "0.75(1.4DL + 1.7(LL+LR) + 1.8(SUF)EL)",  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", 1.35}}},
    {"26", strength, "LR",    "0.75(1.4DL + 1.7(LL+LR) - 1.8(SUF)EL)",  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", -1.35}}},
    {"27", strength, "no LR", "0.75(1.4DL + 1.7LL + 1.8(SUF)EL)",       {{"DL", near1_05}, {"LL", 1.275}, {"EL", 1.35}}},
    {"28", strength, "no LR", "0.75(1.4DL + 1.7LL - 1.8(SUF)EL)",       {{"DL", near1_05}, {"LL", 1.275}, {"EL", -1.35}}},
    {"29", strength, "",      "0.75(1.4DL + 1.8(SUF)EL)",               {{"DL", near1_05}, {"EL", 1.35}}},
    {"30", strength, "",      "0.75(1.4DL - 1.8(SUF)EL)",               {{"DL", near1_05}, {"EL", -1.35}}},
    {"31", strength, "",      "0.9DL + 1.4(SUF)EL",                     {{"DL", 0.9}, {"EL", 1.4}}},
    {"32", strength, "",      "0.9DL - 1.4(SUF)EL",                     {{"DL", 0.9}, {"EL", -1.4}}},
    {"33", strength, "LR",    "0.75(1.4DL + 1.7(LL+LR))",               {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}}},
    {"34", strength, "no LR", "0.75(1.4DL + 1.7LL)",                    {{"DL", near1_05}, {"LL", 1.275}}},
    {"35", strength, "",      "1.4DL",                                  {{"DL", 1.4}}},
    {"36", strength, "LR",    "1.5DL + 1.7(LL+LR) + 1.5FP",             {{"DL", 1.5}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"37", strength, "LR",    "0.9DL + 1.7(LL+LR) + 1.5FP",             {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"38", strength, "no LR", "1.5DL + 1.7LL + 1.5FP",                  {{"DL", 1.5}, {"LL", 1.7}, {"FP", 1.5}}},
    {"39", strength, "no LR", "0.9DL + 1.7LL + 1.5FP",                  {{"DL", 0.9}, {"LL", 1.7}, {"FP", 1.5}}},
    {"40", strength, "",      "1.5DL + 1.5FP",                          {{"DL", 1.5}, {"FP", 1.5}}},
    {"41", strength, "",      "0.9DL + 1.5FP",                          {{"DL", 0.9}, {"FP", 1.5}}},
    {"42", strength, "LR",    "1.4DL + 1.7(LL+LR) + 1.8(EP+WP)",        {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"43", strength, "LR",    "0.9DL + 1.7(LL+LR) + 1.8(EP+WP)",        {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"44", strength, "no LR", "1.4DL + 1.7LL + 1.8(EP+WP)",             {{"DL", 1.4}, {"LL", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"45", strength, "no LR", "0.9DL + 1.7LL + 1.8(EP+WP)",             {{"DL", 0.9}, {"LL", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"46", strength, "",      "1.4DL + 1.8(EP+WP)",                     {{"DL", 1.4}, {"EP", 1.8}, {"WP", 1.8}}},
    {"47", strength, "",      "0.9DL + 1.8(EP+WP)",                     {{"DL", 0.9}, {"EP", 1.8}, {"WP", 1.8}}},
};
static_assert(std::size(kci_usd99_rows) == 47);
static_assert(textsNameTheirGroups(kci_usd99_rows) && signsAreClear(kci_usd99_rows));

inline constexpr Part kci_usd99_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(kci_usd99_rows, 1, 14)},
    {"Strength", Reads::nothing, "",   rows(kci_usd99_rows, 15, 47)},
};

inline constexpr CodeTable kci_usd99{kci_usd99_parts};

}  // namespace zel::codes
