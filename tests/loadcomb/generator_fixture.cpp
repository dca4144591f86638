#include "loadcomb/generator_fixture.h"

#include <charconv>

namespace generated {

namespace {

std::string shortest(double value)
{
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

const zel::loadcomb::LoadCase* find(const GeneratorModel& model, std::uint32_t key)
{
    for (const auto& loadCase : model.cases) {
        if (loadCase.key == key)
            return &loadCase;
    }
    return nullptr;
}

}  // namespace

GeneratorModel model(std::string_view cases)
{
    GeneratorModel made;
    while (!cases.empty()) {
        const std::string_view word = cases.substr(0, cases.find(' '));
        cases.remove_prefix(std::min(word.size() + 1, cases.size()));
        const std::size_t colon = word.find(':');
        made.cases.push_back({static_cast<std::uint32_t>(made.cases.size() + 1), std::string(word.substr(0, colon)), std::string(word.substr(colon + 1))});
    }
    return made;
}

std::uint32_t key(const GeneratorModel& model, std::string_view name)
{
    for (const auto& loadCase : model.cases) {
        if (loadCase.name == name)
            return loadCase.key;
    }
    return 0;
}

std::string items(const std::vector<T_LCOM_ITEM>& items, const GeneratorModel& model)
{
    std::string text;
    for (const T_LCOM_ITEM& item : items) {
        const auto* loadCase = find(model, item.key);
        text.append(text.empty() ? "" : ", ").append(loadCase != nullptr ? loadCase->name : "?").append(" ").append(shortest(item.factor));
        if (item.type != 1)
            text.append(" of type ").append(std::to_string(item.type));
    }
    return text;
}

Lines lines(const std::vector<T_LCOM_D>& rows, const GeneratorModel& model)
{
    Lines made;
    for (const T_LCOM_D& row : rows)
        made.push_back(std::to_string(row.active) + " | " + items(row.items, model) + " | " + row.description);
    return made;
}

Lines run(const GeneratorModel& model, std::string_view code, const GeneratorOptions& options)
{
    Generator generator(model, options);
    generator.dispatch(code);
    return lines(generator.rows(), model);
}

void give(Generator& generator, int flag, std::string_view text, std::initializer_list<Factor> factors)
{
    std::vector<zel::loadcomb::RowFactor> pairs;
    for (const Factor& factor : factors)
        pairs.push_back({factor.factor, factor.group.empty() ? nullptr : &generator.groups()[static_cast<std::size_t>(zel::codes::wordOf(factor.group))]});
    generator.addRow(flag, text, pairs);
}

Lines add(Generator& generator, const GeneratorModel& model, int flag, std::string_view text, std::initializer_list<Factor> factors)
{
    give(generator, flag, text, factors);
    return lines(generator.rows(), model);
}

Lines addTo(const GeneratorModel& model, const GeneratorOptions& options, int flag, std::string_view text, std::initializer_list<Factor> factors)
{
    Generator generator(model, options);
    generator.readOrthogonalPairs();
    generator.readWindSets();
    return add(generator, model, flag, text, factors);
}

}  // namespace generated
