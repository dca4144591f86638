#pragma once

#include "object_style/tables/row.h"

// KSCE-USD96 as this generator holds it: ultimate strength design of concrete, Korean Society of Civil Engineers, 1996. 14 rows.
//
// Covered: dead, live, wind and earthquake; 5 service and 9 strength rows. The service rows divide by 1.25 with wind and by 1.35 with
// earthquake. All other load types stand in no combination.
namespace zel::object_style {

inline constexpr Row ksce_usd96_rows[] = {
    // flag    text                              kind and factor
    {service,  "1.0DL+1.0LL",                     {{"D", 1.0}, {"L", 1.0}}},
    {service,  "(1.0DL+1.0LL+1.0WL)/1.25",        {{"D", 0.8}, {"L", 0.8}, {"W", 0.8}}},
    {service,  "(1.0DL+1.0LL-1.0WL)/1.25",        {{"D", 0.8}, {"L", 0.8}, {"W", -0.8}}},
    {service,  "(1.0DL+1.0LL+1.0*SF*EL)/1.35",    {{"D", over1_35}, {"L", over1_35}, {"E", over1_35}}},
    {service,  "(1.0DL+1.0LL-1.0*SF*EL)/1.35",    {{"D", over1_35}, {"L", over1_35}, {"E", -over1_35}}},
    {strength, "1.5DL+1.8LL",                     {{"D", 1.5}, {"L", 1.8}}},
    {strength, "0.75(1.5DL+1.8LL+1.8WL)",         {{"D", 1.125}, {"L", 1.35}, {"W", 1.35}}},
    {strength, "0.75(1.5DL+1.8LL-1.8WL)",         {{"D", 1.125}, {"L", 1.35}, {"W", -1.35}}},
    {strength, "0.9DL+1.4WL",                     {{"D", 0.9}, {"W", 1.4}}},
    {strength, "0.9DL-1.4WL",                     {{"D", 0.9}, {"W", -1.4}}},
    {strength, "0.75(1.5DL+1.8LL+1.8*SF*EL)",     {{"D", 1.125}, {"L", 1.35}, {"E", 1.35}}},
    {strength, "0.75(1.5DL+1.8LL-1.8*SF*EL)",     {{"D", 1.125}, {"L", 1.35}, {"E", -1.35}}},
    {strength, "0.9DL+1.4EL",                     {{"D", 0.9}, {"E", 1.4}}},
    {strength, "0.9DL-1.4EL",                     {{"D", 0.9}, {"E", -1.4}}},
};
static_assert(std::size(ksce_usd96_rows) == 14);
static_assert(textsNameTheirKinds(ksce_usd96_rows));

}  // namespace zel::object_style
