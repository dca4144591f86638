#include "loadcomb/table_lines.h"

#include "loadcomb/generation/generator.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace tables {

namespace {

using namespace zel::codes;
using zel::loadcomb::Generator;
using zel::loadcomb::GeneratorModel;
using zel::loadcomb::GeneratorOptions;
using zel::loadcomb::RowSource;

// No two of the factors below come out as the same number.
constexpr double shortPeriodCoefficient = 0.6;
constexpr double verticalLoadFactor = 0.35;
constexpr double verticalForceFactor = 0.37;

/// A model with one load case in each group, named like the group and with the type of the group.
GeneratorModel modelOf(std::string_view groups)
{
    constexpr std::string_view types[groupCount] = {"D", "L", "LR", "W", "E", "S", "EEP", "R", "FP", "EP", "WP", "EH", "EV"};
    GeneratorModel model;
    while (!groups.empty()) {
        const std::string_view group = groups.substr(0, groups.find(' '));
        groups.remove_prefix(std::min(group.size() + 1, groups.size()));
        const auto key = static_cast<std::uint32_t>(model.cases.size() + 1);
        model.cases.push_back({key, CString(group), CString(types[static_cast<std::size_t>(wordOf(group))])});
    }
    model.seismic.emplace();
    model.seismic->shortPeriodCoefficient = shortPeriodCoefficient;
    model.seismic->verticalLoadFactor = verticalLoadFactor;
    model.seismic->verticalForceFactor = verticalForceFactor;
    return model;
}

std::string numberText(double value)
{
    constexpr double spectrum = shortPeriodCoefficient * verticalLoadFactor;
    const struct {
        double value;
        const char* text;
    } printed[] = {
        {2.0 / 3.0, "2/3"},
        {0.7 * (2.0 / 3.0), "0.7*2/3"},
        {1.0 / 1.35, "1/1.35"},
        {0.75 * 1.4, "0.75*1.4"},
        {0.75 * 1.4 + spectrum, "0.75*1.4 + S*V"},
        {0.75 * 1.4 - spectrum, "0.75*1.4 - S*V"},
        {0.9 - spectrum, "0.9 - S*V"},
        {verticalForceFactor, "VER"},
    };
    for (const auto& one : printed) {
        if (value == one.value || value == -one.value)
            return (value < 0.0 ? "-" : "") + std::string(one.text);
    }
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

/// Whether the row was added by a pass that takes SL for LR: its text is not the printed one.
bool readsSnow(const CodeTable& table, const RowSource& source)
{
    for (const Part& part : table.parts) {
        for (const Row& row : part.rows) {
            if (row.text == source.text)
                return false;
        }
    }
    return true;
}

struct Line {
    std::string flag;
    std::string row;
    bool snow = false;
    std::string items;
};

std::vector<Line> linesOf(const CodeTable& table, std::string_view groups, Word type)
{
    const GeneratorModel model = modelOf(groups);
    GeneratorOptions options;
    options.combType = static_cast<CombType>(static_cast<int>(type) - static_cast<int>(Word::typeStrength));
    Generator generator(model, options);
    generator.trace();
    generator.runTable(table);

    std::vector<Line> found;
    for (std::size_t i = 0; i < generator.rows().size(); ++i) {
        const T_LCOM_D& record = generator.rows()[i];
        const RowSource& source = generator.outcomes()[generator.origins()[i].row].source;
        Line line{record.active == 0 ? "service" : "strength", source.block, readsSnow(table, source), {}};
        for (const T_LCOM_ITEM& item : record.items)
            line.items += (line.items.empty() ? "" : ", ") + model.cases[item.key - 1].name + " " + numberText(item.factor);
        found.push_back(line);
    }
    return found;
}

}  // namespace

Lines lines(const CodeTable& table, std::string_view groups, Word type)
{
    Lines texts;
    for (const Line& line : linesOf(table, groups, type))
        texts.push_back(line.flag + " " + line.row + (line.snow ? " with snow: " : ": ") + line.items);
    return texts;
}

std::string rowNumbers(const CodeTable& table, std::string_view groups, Word type)
{
    std::string text;
    std::string heading;
    int first = 0;
    int last = 0;
    const auto append = [&text](const std::string& word) { text += (text.empty() ? "" : " ") + word; };
    const auto closeRun = [&] {
        if (first != 0)
            append(std::to_string(first) + (last == first ? "" : "-" + std::to_string(last)));
        first = 0;
    };
    for (const Line& line : linesOf(table, groups, type)) {
        const int number = std::atoi(line.row.c_str());
        const std::string lineHeading = line.flag + (line.snow ? " with snow" : "");
        if (first == 0 || number != last + 1 || lineHeading != heading)
            closeRun();
        if (lineHeading != heading)
            append(heading = lineHeading);
        if (first == 0)
            first = number;
        last = number;
    }
    closeRun();
    return text;
}

}  // namespace tables
