#pragma once

#include "object_style/tables/aik_usd94.h"

// KCI-USD99 as this generator holds it: ultimate strength design of concrete, Korea Concrete Institute, 1999. 16 rows, of which the
// first eight are those of AIK-USD94.
//
// Covered: dead, live, wind and earthquake; 5 service and 11 strength rows. All other load types stand in no combination.
namespace zel::object_style {

inline constexpr std::span<const Row> kci_usd99_shared = std::span(aik_usd94_rows).first(8);

inline constexpr Row kci_usd99_rows[] = {
    // flag    text                              kind and factor
    {strength, "0.75(1.4DL+1.7WL)",               {{"D", 1.05}, {"W", 1.275}}},
    {strength, "0.75(1.4DL-1.7WL)",               {{"D", 1.05}, {"W", -1.275}}},
    {strength, "0.9DL+1.3WL",                     {{"D", 0.9}, {"W", 1.3}}},
    {strength, "0.9DL-1.3WL",                     {{"D", 0.9}, {"W", -1.3}}},
    {strength, "0.75(1.4DL+1.7LL+1.8*SF*EL)",     {{"D", 1.05}, {"L", 1.275}, {"E", 1.35}}},
    {strength, "0.75(1.4DL+1.7LL-1.8*SF*EL)",     {{"D", 1.05}, {"L", 1.275}, {"E", -1.35}}},
    {strength, "0.9DL+1.4EL",                     {{"D", 0.9}, {"E", 1.4}}},
    {strength, "0.9DL-1.4EL",                     {{"D", 0.9}, {"E", -1.4}}},
};
static_assert(std::size(kci_usd99_shared) + std::size(kci_usd99_rows) == 16);
static_assert(textsNameTheirKinds(kci_usd99_rows));

}  // namespace zel::object_style
