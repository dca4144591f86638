#pragma once

#include "object_style/tables/row.h"

// AIK-USD94 as this generator holds it: ultimate strength design of concrete, Architectural Institute of Korea, 1994. 14 rows.
//
// Covered: dead, live, wind and earthquake; 5 service and 9 strength rows. All other load types stand in no combination.
// Two peculiarities are kept on purpose: the wind factor of rows 9 and 10 is 0.3, not the 1.3 of their text, and in rows 13 and 14
// the 0.9 lies on live load, not on dead load. No other code shares them.
namespace zel::object_style {

inline constexpr Row aik_usd94_rows[] = {
    // flag    text                                  kind and factor
    {service,  "1.0DL+1.0LL",                         {{"D", 1.0}, {"L", 1.0}}},
    {service,  "(1.0DL+1.0LL+1.0WL)/1.5",             {{"D", twoThirds}, {"L", twoThirds}, {"W", twoThirds}}},
    {service,  "(1.0DL+1.0LL-1.0WL)/1.5",             {{"D", twoThirds}, {"L", twoThirds}, {"W", -twoThirds}}},
    {service,  "(1.0DL+1.0LL+1.0*SF*EL)/1.5",         {{"D", twoThirds}, {"L", twoThirds}, {"E", twoThirds}}},
    {service,  "(1.0DL+1.0LL-1.0*SF*EL)/1.5",         {{"D", twoThirds}, {"L", twoThirds}, {"E", -twoThirds}}},
    {strength, "1.4DL+1.7LL",                         {{"D", 1.4}, {"L", 1.7}}},
    {strength, "0.75(1.4DL+1.7LL+1.7WL)",             {{"D", 1.05}, {"L", 1.275}, {"W", 1.275}}},
    {strength, "0.75(1.4DL+1.7LL-1.7WL)",             {{"D", 1.05}, {"L", 1.275}, {"W", -1.275}}},
    {strength, "0.9DL+1.3WL",                         {{"D", 0.9}, {"W", 0.3}}},
    {strength, "0.9DL-1.3WL",                         {{"D", 0.9}, {"W", -0.3}}},
    {strength, "0.75(1.4DL+1.7LL+1.7(1.1*SF*EL))",    {{"D", 1.05}, {"L", 1.275}, {"E", 1.4025}}},
    {strength, "0.75(1.4DL+1.7LL-1.7(1.1*SF*EL))",    {{"D", 1.05}, {"L", 1.275}, {"E", -1.4025}}},
    {strength, "0.9DL+1.3(1.1*SF*EL)",                {{"L", 0.9}, {"E", 1.43}}},
    {strength, "0.9DL-1.3(1.1*SF*EL)",                {{"L", 0.9}, {"E", -1.43}}},
};
static_assert(std::size(aik_usd94_rows) == 14);
static_assert(textsNameTheirKinds(std::span(aik_usd94_rows).first(12)));

}  // namespace zel::object_style
