#pragma once

#include "object_style/tables/row.h"

// ACI318-89, ACI318-95 and ACI318-99 as this generator holds them: structural concrete, American Concrete Institute. 14 rows, the
// same for the three editions.
//
// Covered: dead, live, wind and earthquake; 5 service and 9 strength rows. All other load types stand in no combination.
namespace zel::object_style {

inline constexpr Row aci318_89_rows[] = {
    // flag    text                                  kind and factor
    {service,  "1.0DL+1.0LL",                         {{"D", 1.0}, {"L", 1.0}}},
    {service,  "0.75(1.0DL+1.0LL+1.0WL)",             {{"D", 0.75}, {"L", 0.75}, {"W", 0.75}}},
    {service,  "0.75(1.0DL+1.0LL-1.0WL)",             {{"D", 0.75}, {"L", 0.75}, {"W", -0.75}}},
    {service,  "0.75(1.0DL+1.0LL+1.0*SF*EL)",         {{"D", 0.75}, {"L", 0.75}, {"E", 0.75}}},
    {service,  "0.75(1.0DL+1.0LL-1.0*SF*EL)",         {{"D", 0.75}, {"L", 0.75}, {"E", -0.75}}},
    {strength, "1.4DL+1.7LL",                         {{"D", 1.4}, {"L", 1.7}}},
    {strength, "0.75(1.4DL+1.7LL+1.7WL)",             {{"D", 1.05}, {"L", 1.275}, {"W", 1.275}}},
    {strength, "0.75(1.4DL+1.7LL-1.7WL)",             {{"D", 1.05}, {"L", 1.275}, {"W", -1.275}}},
    {strength, "0.9DL+1.3WL",                         {{"D", 0.9}, {"W", 1.3}}},
    {strength, "0.9DL-1.3WL",                         {{"D", 0.9}, {"W", -1.3}}},
    {strength, "0.75(1.4DL+1.7LL+1.7(1.1*SF*EL))",    {{"D", 1.05}, {"L", 1.275}, {"E", 1.4025}}},
    {strength, "0.75(1.4DL+1.7LL-1.7(1.1*SF*EL))",    {{"D", 1.05}, {"L", 1.275}, {"E", -1.4025}}},
    {strength, "0.9DL+1.3(1.1*SF*EL)",                {{"D", 0.9}, {"E", 1.43}}},
    {strength, "0.9DL-1.3(1.1*SF*EL)",                {{"D", 0.9}, {"E", -1.43}}},
};
static_assert(std::size(aci318_89_rows) == 14);
static_assert(textsNameTheirKinds(aci318_89_rows));

}  // namespace zel::object_style
