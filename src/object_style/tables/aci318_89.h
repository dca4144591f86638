#pragma once

#include "loadcomb/tables/code_table.h"

// ACI318-89, ACI318-95 and ACI318-99 as this generator holds them: structural concrete, American Concrete Institute. 14 rows, the
// same for the three editions.
//
// Covered: dead, live, wind and earthquake; 5 service and 9 strength rows. All other load types stand in no combination.
namespace zel::codes::object_style {

inline constexpr Row aci318_89_rows[] = {
    // row  flag      when text                                  group and factor
    {"1",  service,  "", "1.0DL+1.0LL",                         {{"DL", 1.0}, {"LL", 1.0}}},
    {"2",  service,  "", "0.75(1.0DL+1.0LL+1.0WL)",             {{"DL", 0.75}, {"LL", 0.75}, {"WL", 0.75}}},
    {"3",  service,  "", "0.75(1.0DL+1.0LL-1.0WL)",             {{"DL", 0.75}, {"LL", 0.75}, {"WL", -0.75}}},
    {"4",  service,  "", "0.75(1.0DL+1.0LL+1.0*SF*EL)",         {{"DL", 0.75}, {"LL", 0.75}, {"EL", 0.75}}},
    {"5",  service,  "", "0.75(1.0DL+1.0LL-1.0*SF*EL)",         {{"DL", 0.75}, {"LL", 0.75}, {"EL", -0.75}}},
    {"6",  strength, "", "1.4DL+1.7LL",                         {{"DL", 1.4}, {"LL", 1.7}}},
    {"7",  strength, "", "0.75(1.4DL+1.7LL+1.7WL)",             {{"DL", 1.05}, {"LL", 1.275}, {"WL", 1.275}}},
    {"8",  strength, "", "0.75(1.4DL+1.7LL-1.7WL)",             {{"DL", 1.05}, {"LL", 1.275}, {"WL", -1.275}}},
    {"9",  strength, "", "0.9DL+1.3WL",                         {{"DL", 0.9}, {"WL", 1.3}}},
    {"10", strength, "", "0.9DL-1.3WL",                         {{"DL", 0.9}, {"WL", -1.3}}},
    {"11", strength, "", "0.75(1.4DL+1.7LL+1.7(1.1*SF*EL))",    {{"DL", 1.05}, {"LL", 1.275}, {"EL", 1.4025}}},
    {"12", strength, "", "0.75(1.4DL+1.7LL-1.7(1.1*SF*EL))",    {{"DL", 1.05}, {"LL", 1.275}, {"EL", -1.4025}}},
    {"13", strength, "", "0.9DL+1.3(1.1*SF*EL)",                {{"DL", 0.9}, {"EL", 1.43}}},
    {"14", strength, "", "0.9DL-1.3(1.1*SF*EL)",                {{"DL", 0.9}, {"EL", -1.43}}},
};
static_assert(std::size(aci318_89_rows) == 14);
static_assert(textsNameTheirGroups(aci318_89_rows));

inline constexpr Part aci318_89_parts[] = {
    // title      reads           when  rows
    {"Service",  Reads::nothing, "",   rows(aci318_89_rows, 1, 5)},
    {"Strength", Reads::nothing, "",   rows(aci318_89_rows, 6, 14)},
};

inline constexpr CodeTable aci318_89{aci318_89_parts};

}  // namespace zel::codes::object_style
