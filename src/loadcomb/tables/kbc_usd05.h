#pragma once

#include "loadcomb/tables/code_table.h"

// KBC-USD05: strength design of concrete, Korean Building Code, 2005. 80 rows.
//
// Covered: dead, live, roof live, wind, earthquake, fluid, earth and water pressure; 9 service rows, and one of three strength blocks:
// ordinary, with special seismic load, with vertical seismic load.
// Left out: snow, rain, EH, EV; cases of these types stand in no combination. The two underground types get no strength rows. No wind
// sets and no underground sets are read.
//
// Rows with the flag `service` in the strength blocks are meant, they are stored with `active` 0: "0.75(1.4DL + 1.7WL)" with both signs in
// all three blocks, "0.75(1.4DL) + 1.0(SUF)EL" with both signs and its form with (OMG), and in the vertical block
// "0.9DL + 1.0(SUF)EL" with both signs.
namespace zel::codes {

inline constexpr Row kbc_usd05_rows[] = {
    // row  flag      when text and factors
    {"1",  service,  "", "1.0DL + 1.0(LL+LR)",                        {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}}},
    {"2",  service,  "", "(1.0DL + 1.0(LL+LR) + 1.0WL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"WL", twoThirds}}},
    {"3",  service,  "", "(1.0DL + 1.0(LL+LR) - 1.0WL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"WL", -twoThirds}}},
    {"4",  service,  "", "(1.0DL + 1.0WL)/1.5",                       {{"DL", twoThirds}, {"WL", twoThirds}}},
    {"5",  service,  "", "(1.0DL - 1.0WL)/1.5",                       {{"DL", twoThirds}, {"WL", -twoThirds}}},
    {"6",  service,  "", "(1.0DL + 1.0(LL+LR) + 0.7(SUF)EL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"EL", 0.7 * twoThirds}}},
    {"7",  service,  "", "(1.0DL + 1.0(LL+LR) - 0.7(SUF)EL)/1.5",
                         {{"DL", twoThirds}, {"LL", twoThirds}, {"LR", twoThirds}, {"EL", -0.7 * twoThirds}}},
    {"8",  service,  "", "(1.0DL + 0.7(SUF)EL)/1.5",                  {{"DL", twoThirds}, {"EL", 0.7 * twoThirds}}},
    {"9",  service,  "", "(1.0DL - 0.7(SUF)EL)/1.5",                  {{"DL", twoThirds}, {"EL", -0.7 * twoThirds}}},
    {"10", strength, "", "1.4DL + 1.7(LL+LR)",                        {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}}},
    {"11", strength, "", "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",          {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", 1.275}}},
    {"12", strength, "", "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)",          {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", -1.275}}},
    // Rows 13, 14, 19 and 20: flag `service` in a strength block, meant.
    {"13", service,  "", "0.75(1.4DL + 1.7WL)",                       {{"DL", near1_05}, {"WL", 1.275}}},
    {"14", service,  "", "0.75(1.4DL - 1.7WL)",                       {{"DL", near1_05}, {"WL", -1.275}}},
    {"15", strength, "", "0.9DL + 1.3WL",                             {{"DL", 0.9}, {"WL", 1.3}}},
    {"16", strength, "", "0.9DL - 1.3WL",                             {{"DL", 0.9}, {"WL", -1.3}}},
    {"17", strength, "", "0.75(1.4DL + 1.7(LL+LR)) + 1.0(SUF)EL",     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", 1.0}}},
    {"18", strength, "", "0.75(1.4DL + 1.7(LL+LR)) - 1.0(SUF)EL",     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", -1.0}}},
    {"19", service,  "", "0.75(1.4DL) + 1.0(SUF)EL",                  {{"DL", near1_05}, {"EL", 1.0}}},
    {"20", service,  "", "0.75(1.4DL) - 1.0(SUF)EL",                  {{"DL", near1_05}, {"EL", -1.0}}},
    {"21", strength, "", "0.9DL + 1.0(SUF)EL",                        {{"DL", 0.9}, {"EL", 1.0}}},
    {"22", strength, "", "0.9DL - 1.0(SUF)EL",                        {{"DL", 0.9}, {"EL", -1.0}}},
    {"23", strength, "", "0.75(1.4DL + 1.7(LL+LR))",                  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}}},
    {"24", strength, "", "1.4DL",                                     {{"DL", 1.4}}},
    {"25", strength, "", "1.5DL + 1.7(LL+LR) + 1.5FP",                {{"DL", 1.5}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"26", strength, "", "0.9DL + 1.7(LL+LR) + 1.5FP",                {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"27", strength, "", "1.5DL + 1.5FP",                             {{"DL", 1.5}, {"FP", 1.5}}},
    {"28", strength, "", "0.9DL + 1.5FP",                             {{"DL", 0.9}, {"FP", 1.5}}},
    {"29", strength, "", "1.4DL + 1.7(LL+LR) + 1.8(EP+WP)",           {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"30", strength, "", "0.9DL + 1.7(LL+LR) + 1.8(EP+WP)",           {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"31", strength, "", "1.4DL + 1.8(EP+WP)",                        {{"DL", 1.4}, {"EP", 1.8}, {"WP", 1.8}}},
    {"32", strength, "", "0.9DL + 1.8(EP+WP)",                        {{"DL", 0.9}, {"EP", 1.8}, {"WP", 1.8}}},
    {"33", strength, "", "1.4DL + 1.7(LL+LR)",                        {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}}},
    {"34", strength, "", "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",          {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", 1.275}}},
    {"35", strength, "", "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)",          {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", -1.275}}},
    // Rows 36 and 37: flag `service` in a strength block, meant.
    {"36", service,  "", "0.75(1.4DL + 1.7WL)",                       {{"DL", near1_05}, {"WL", 1.275}}},
    {"37", service,  "", "0.75(1.4DL - 1.7WL)",                       {{"DL", near1_05}, {"WL", -1.275}}},
    {"38", strength, "", "0.9DL + 1.3WL",                             {{"DL", 0.9}, {"WL", 1.3}}},
    {"39", strength, "", "0.9DL - 1.3WL",                             {{"DL", 0.9}, {"WL", -1.3}}},
    // With special seismic load the dead load grows or shrinks by S * V.
    {"40", strength, "", "0.75(1.4DL + 1.7(LL+LR)) + 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",
                         {{"DL", near1_05, plusSpectrum}, {"LL", 1.275}, {"LR", 1.275}, {"EL", 1.0}}},
    {"41", strength, "", "0.75(1.4DL + 1.7(LL+LR)) - 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",
                         {{"DL", near1_05, plusSpectrum}, {"LL", 1.275}, {"LR", 1.275}, {"EL", -1.0}}},
    // Rows 42 and 43: flag `service` in a strength block, meant.
    {"42", service,  "", "0.75(1.4DL) + 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",
                         {{"DL", near1_05, minusSpectrum}, {"EL", 1.0}}},
    {"43", service,  "", "0.75(1.4DL) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",
                         {{"DL", near1_05, minusSpectrum}, {"EL", -1.0}}},
    {"44", strength, "", "0.9DL + 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",    {{"DL", 0.9, minusSpectrum}, {"EL", 1.0}}},
    {"45", strength, "", "0.9DL - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",    {{"DL", 0.9, minusSpectrum}, {"EL", -1.0}}},
    {"46", strength, "", "0.75(1.4DL + 1.7(LL+LR))",                  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}}},
    {"47", strength, "", "1.4DL",                                     {{"DL", 1.4}}},
    {"48", strength, "", "1.5DL + 1.7(LL+LR) + 1.5FP",                {{"DL", 1.5}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"49", strength, "", "0.9DL + 1.7(LL+LR) + 1.5FP",                {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"50", strength, "", "1.5DL + 1.5FP",                             {{"DL", 1.5}, {"FP", 1.5}}},
    {"51", strength, "", "0.9DL + 1.5FP",                             {{"DL", 0.9}, {"FP", 1.5}}},
    {"52", strength, "", "1.4DL + 1.7(LL+LR) + 1.8(EP+WP)",           {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"53", strength, "", "0.9DL + 1.7(LL+LR) + 1.8(EP+WP)",           {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"54", strength, "", "1.4DL + 1.8(EP+WP)",                        {{"DL", 1.4}, {"EP", 1.8}, {"WP", 1.8}}},
    {"55", strength, "", "0.9DL + 1.8(EP+WP)",                        {{"DL", 0.9}, {"EP", 1.8}, {"WP", 1.8}}},
    {"56", strength, "", "1.4DL + 1.7(LL+LR)",                        {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}}},
    {"57", strength, "", "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)",          {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", 1.275}}},
    {"58", strength, "", "0.75(1.4DL + 1.7(LL+LR) - 1.7WL)",          {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"WL", -1.275}}},
    // Rows 59, 60 and 65 to 68: flag `service` in a strength block, meant.
    {"59", service,  "", "0.75(1.4DL + 1.7WL)",                       {{"DL", near1_05}, {"WL", 1.275}}},
    {"60", service,  "", "0.75(1.4DL - 1.7WL)",                       {{"DL", near1_05}, {"WL", -1.275}}},
    {"61", strength, "", "0.9DL + 1.3WL",                             {{"DL", 0.9}, {"WL", 1.3}}},
    {"62", strength, "", "0.9DL - 1.3WL",                             {{"DL", 0.9}, {"WL", -1.3}}},
    {"63", strength, "", "0.75(1.4DL + 1.7(LL+LR)) + 1.0(SUF)EL",     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", 1.0}}},
    {"64", strength, "", "0.75(1.4DL + 1.7(LL+LR)) - 1.0(SUF)EL",     {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}, {"EL", -1.0}}},
    {"65", service,  "", "0.75(1.4DL) + 1.0(SUF)EL",                  {{"DL", near1_05}, {"EL", 1.0}}},
    {"66", service,  "", "0.75(1.4DL) - 1.0(SUF)EL",                  {{"DL", near1_05}, {"EL", -1.0}}},
    {"67", service,  "", "0.9DL + 1.0(SUF)EL",                        {{"DL", 0.9}, {"EL", 1.0}}},
    {"68", service,  "", "0.9DL - 1.0(SUF)EL",                        {{"DL", 0.9}, {"EL", -1.0}}},
    // The factor of DL is the negative of the vertical force factor in both rows.
    {"69", strength, "", "-(VER)DL + 1.0(SUF)EL",                     {{"DL", -1.0, verticalForce}, {"EL", 1.0}}},
    {"70", strength, "", "-(VER)DL - 1.0(SUF)EL",                     {{"DL", -1.0, verticalForce}, {"EL", -1.0}}},
    {"71", strength, "", "0.75(1.4DL + 1.7(LL+LR))",                  {{"DL", near1_05}, {"LL", 1.275}, {"LR", 1.275}}},
    {"72", strength, "", "1.4DL",                                     {{"DL", 1.4}}},
    {"73", strength, "", "1.5DL + 1.7(LL+LR) + 1.5FP",                {{"DL", 1.5}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"74", strength, "", "0.9DL + 1.7(LL+LR) + 1.5FP",                {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"FP", 1.5}}},
    {"75", strength, "", "1.5DL + 1.5FP",                             {{"DL", 1.5}, {"FP", 1.5}}},
    {"76", strength, "", "0.9DL + 1.5FP",                             {{"DL", 0.9}, {"FP", 1.5}}},
    {"77", strength, "", "1.4DL + 1.7(LL+LR) + 1.8(EP+WP)",           {{"DL", 1.4}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"78", strength, "", "0.9DL + 1.7(LL+LR) + 1.8(EP+WP)",           {{"DL", 0.9}, {"LL", 1.7}, {"LR", 1.7}, {"EP", 1.8}, {"WP", 1.8}}},
    {"79", strength, "", "1.4DL + 1.8(EP+WP)",                        {{"DL", 1.4}, {"EP", 1.8}, {"WP", 1.8}}},
    {"80", strength, "", "0.9DL + 1.8(EP+WP)",                        {{"DL", 0.9}, {"EP", 1.8}, {"WP", 1.8}}},
};
static_assert(std::size(kbc_usd05_rows) == 80);
static_assert(textsNameTheirGroups(kbc_usd05_rows) && signsAreClear(kbc_usd05_rows));

inline constexpr Part kbc_usd05_parts[] = {
    // title                           reads                  when        rows
    {"Service",                        Reads::nothing,        "",         rows(kbc_usd05_rows, 1, 9)},
    // The three pairs of bounds are meant as they stand, although three copies of one sequence would be split before row 33 and before
    // row 56: the ordinary block ends with a repetition of its first row, the special block has the first row at its end and
    // repeats row 34 behind it, and the vertical block has neither its first row nor "0.75(1.4DL + 1.7(LL+LR) + 1.7WL)".
    {"Strength",                       Reads::seismicFactors, "strength", rows(kbc_usd05_rows, 10, 33)},
    {"Strength, special seismic load", Reads::nothing,        "special",  rows(kbc_usd05_rows, 34, 57)},
    {"Strength, vertical seismic load", Reads::nothing,       "vertical", rows(kbc_usd05_rows, 58, 80)},
};

inline constexpr CodeTable kbc_usd05{kbc_usd05_parts};

}  // namespace zel::codes
