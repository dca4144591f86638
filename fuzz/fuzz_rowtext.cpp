// Texts of rows and names of load cases, as odd as they come. The first byte chooses the treatment, the first line behind it is a row's
// text, each further line the name of a load case.
//
// The steps of a formula's rewriting give the same one by one and at once, two runs give the same, and every item's key exists.

#include "loadcomb/generation/description.h"
#include "loadcomb/generation/generator.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace zel::loadcomb;

constexpr const char* types[] = {"D", "L", "LR", "W", "E", "S", "R", "FP", "EP", "WP", "EH", "EV", "E", "W", "WA", "WT", "EEP"};

std::string_view cutLine(std::string_view& rest)
{
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    return line;
}

/// Bit n of the treatment.
bool chosen(unsigned treatment, unsigned n)
{
    return (treatment >> n & 1U) != 0;
}

GeneratorModel modelOf(std::string_view names, unsigned treatment)
{
    GeneratorModel model;
    while (!names.empty() && model.cases.size() < std::size(types)) {
        const auto key = static_cast<std::uint32_t>(model.cases.size() + 1);
        model.cases.push_back({key, std::string(cutLine(names)), types[key - 1]});
    }
    if (chosen(treatment, 0)) {
        model.windSets.emplace();
        model.windSets->sets = {{0, 1, 4, 15, 16, 2.2, 0.8}, {0, 0, 14, 15, 0, 2.0, 0.5}};
    }
    model.orthogonal.emplace();
    model.orthogonal->pairs = {{5, 13}};
    model.underground.emplace();
    model.underground->groups = {{5, 0, {17}, {11}}, {5, 1, {}, {11}}};
    model.seismic.emplace();
    model.seismic->shortPeriodCoefficient = 0.5;
    model.undergroundSeismic.emplace();
    model.undergroundSeismic->shortPeriodCoefficient = 0.5;
    return model;
}

std::vector<T_LCOM_D> run(std::string_view text, std::string_view names, unsigned treatment)
{
    GeneratorOptions options;
    options.orthoOption = chosen(treatment, 1);
    if (chosen(treatment, 2))
        options.eccentricCases = {{5, 6}, {13, 7}};
    if (chosen(treatment, 3))
        options.scaleFactors = {{5, 1.25}};
    options.combType = zel::codes::combTypes[(treatment >> 4U) % 5U];
    Generator generator(modelOf(names, treatment), options);
    generator.readOrthogonalPairs();
    generator.readWindSets();
    generator.readUndergroundSets();
    generator.readSeismicFactors();
    std::vector<RowFactor> pairs;
    for (const _CCmd_Loadcase& group : generator.groups())
        pairs.push_back({text.find(group.name) == std::string_view::npos ? 0.0 : 1.5, &group});
    generator.addRow(chosen(treatment, 7) ? 1 : 11, text, pairs);
    for (const T_LCOM_D& row : generator.rows()) {
        for (const T_LCOM_ITEM& item : row.items) {
            if (!generator.state().exists(item.key))
                std::abort();
        }
    }
    return generator.rows();
}

void rewriteInSteps(std::string& text)
{
    deleteAlphaTokens(text);
    deleteLooseSigns(text);
    deleteShortParentheses(text);
    shortenGroupNames(text);
}

void compareRewriting(std::string_view first, std::string_view second)
{
    const SharedRewriting shared{std::string(first), std::string(second)};
    for (const std::string_view text : {first, second}) {
        std::string steps(text);
        std::string atOnce(text);
        std::string together(text);
        rewriteInSteps(steps);
        rewriteDescription(atOnce);
        shared.rewrite(together);
        if (steps != atOnce || steps != together)
            std::abort();
        cutDescription(steps);
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0 || size > 2000)
        return 0;
    const unsigned treatment = data[0];
    std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string_view text = cutLine(rest);
    compareRewriting(text, rest.substr(0, rest.find('\n')));
    if (run(text, rest, treatment) != run(text, rest, treatment))
        std::abort();
    return 0;
}
