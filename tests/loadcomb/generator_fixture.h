#pragma once

#include "loadcomb/generation/generator.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// Models and results of the generator as short texts.
namespace generated {

using Lines = std::vector<std::string>;
using zel::loadcomb::Generator;
using zel::loadcomb::GeneratorModel;
using zel::loadcomb::GeneratorOptions;

/// A model with load cases "NAME:TYPE", with the keys 1, 2, 3, ... in this order: "DL:D WX:W".
GeneratorModel model(std::string_view cases);

/// The key of the case of that name; 0 if there is none.
std::uint32_t key(const GeneratorModel& model, std::string_view name);

/// One line a combination: "1 | DL 1.4, LL -1.7 | 1.4D - 1.7L". The first number is `active`.
Lines lines(const std::vector<T_LCOM_D>& rows, const GeneratorModel& model);

/// The lines of a run of a code.
Lines run(const GeneratorModel& model, std::string_view code, const GeneratorOptions& options = {});

/// The same of one row that is added by itself. Each factor belongs to a group: {"DL", 1.4}.
struct Factor {
    std::string_view group;
    double factor;
};
Lines add(Generator& generator, const GeneratorModel& model, int flag, std::string_view text, std::initializer_list<Factor> factors);
Lines addTo(const GeneratorModel& model, const GeneratorOptions& options, int flag, std::string_view text, std::initializer_list<Factor> factors);

/// Adds a row without looking at what comes of it.
void give(Generator& generator, int flag, std::string_view text, std::initializer_list<Factor> factors);

/// "EX 1, ES -1"
std::string items(const std::vector<T_LCOM_ITEM>& items, const GeneratorModel& model);

}  // namespace generated
