#pragma once

#include "loadcomb/generation/generator.h"

#include <cstdint>
#include <string>

namespace zel::bench {

/// One load case each of D, L, LR and S, wind sets of three cases, 8 earthquake cases in 4 orthogonal pairs, each with an eccentric partner.
struct Tower {
    static constexpr const char* code = "KDS 41 20 : 2022";

    loadcomb::GeneratorModel model;
    loadcomb::GeneratorOptions options;

    explicit Tower(std::int64_t windSets)
    {
        add("DL", "D");
        add("LL", "L");
        add("LR", "LR");
        add("SL", "S");
        model.windSets.emplace();
        for (std::int64_t i = 1; i <= windSets; ++i) {
            T_LCWD_BASE set;
            const std::string number = std::to_string(i);
            set.along = add("W" + number, "W");
            set.across = add("WA" + number, "WA");
            set.torsion = add("WT" + number, "WT");
            model.windSets->sets.push_back(set);
        }
        model.orthogonal.emplace();
        for (int i = 1; i <= 4; ++i) {
            const std::string number = std::to_string(i);
            const std::uint32_t x = add("RX" + number, "E");
            const std::uint32_t y = add("RY" + number, "E");
            model.orthogonal->pairs.push_back({x, y});
            for (const std::uint32_t key : {x, y}) {
                options.scaleFactors[key] = 1.0 + 0.05 * i;
                options.eccentricCases[key] = add((key == x ? "ESX" : "ESY") + number, "E");
            }
        }
        options.orthoOption = true;
    }

    std::uint32_t add(const std::string& name, const char* type)
    {
        const auto key = static_cast<std::uint32_t>(model.cases.size() + 1);
        model.cases.push_back({key, name, type});
        return key;
    }
};

}  // namespace zel::bench
