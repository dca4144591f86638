#include "loadcomb/table_lines.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <set>

namespace tables {

namespace {

using namespace zel::codes;

/// "DL LL" cut at its blanks.
std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0)
            found.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

Facts factsOf(std::string_view groups, Word type)
{
    Facts facts = fact(type) | fact(Word::firstPass);
    for (const std::string_view group : words(groups))
        facts |= fact(wordOf(group));
    if ((facts & (fact(Word::LR) | fact(Word::SL) | fact(Word::RL))) != 0)
        facts |= fact(Word::X);
    return facts;
}

/// The facts as a pass with snow in the place of roof live load sees them.
Facts withSnow(Facts facts)
{
    facts &= ~(fact(Word::LR) | fact(Word::firstPass));
    return (facts & fact(Word::SL)) != 0 ? facts | fact(Word::LR) : facts;
}

bool has(Facts facts, std::string_view group) { return (facts & fact(wordOf(group))) != 0; }

/// A word of the text with both parentheses needs one of its groups, any other word needs each of its groups.
bool canFeed(const Row& row, Facts facts)
{
    for (const std::string_view word : words(row.text)) {
        int present = 0;
        int absent = 0;
        for (const Pair& pair : row.pairs) {
            if (!pair.group.name.empty() && word.find(pair.group.name) != std::string_view::npos)
                ++(has(facts, pair.group.name) ? present : absent);
        }
        const bool choice = word.find('(') != std::string_view::npos && word.find(')') != std::string_view::npos;
        if (absent > 0 && (!choice || present == 0))
            return false;
    }
    return true;
}

std::string numberText(double value)
{
    const struct {
        double value;
        const char* text;
    } printed[] = {{2.0 / 3.0, "2/3"}, {0.7 * (2.0 / 3.0), "0.7*2/3"}, {1.0 / 1.35, "1/1.35"}, {0.75 * 1.4, "0.75*1.4"}};
    for (const auto& one : printed) {
        if (value == one.value || value == -one.value)
            return (value < 0.0 ? "-" : "") + std::string(one.text);
    }
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

std::string factorText(const Pair& pair)
{
    switch (pair.with) {
    case plusSpectrum: return numberText(pair.factor) + " + S*V";
    case minusSpectrum: return numberText(pair.factor) + " - S*V";
    case verticalForce: return numberText(pair.factor) + "*VER";
    default: return numberText(pair.factor);
    }
}

struct Line {
    std::string flag;
    std::string row;
    bool snow = false;
    std::string items;
};

std::vector<Line> linesOf(const CodeTable& table, std::string_view groups, Word type)
{
    const Facts model = factsOf(groups, type);
    std::vector<Line> found;
    std::set<std::string> known;
    for (const Part& part : table.parts) {
        const Facts facts = part.liveRoofIsSnow ? withSnow(model) : model;
        if (!part.when.met(facts))
            continue;
        for (const Row& row : part.rows) {
            if (!row.when.met(facts) || !canFeed(row, facts))
                continue;
            Line line{row.flag == service ? "service" : "strength", std::string(row.block), part.liveRoofIsSnow, {}};
            for (const Pair& pair : row.pairs) {
                if (pair.group.name.empty() || !has(facts, pair.group.name))
                    continue;
                const bool snow = part.liveRoofIsSnow && pair.group.name == "LR";
                line.items += (line.items.empty() ? "" : ", ") + std::string(snow ? "SL" : pair.group.name) + " " + factorText(pair);
            }
            if (known.insert(line.flag + line.items).second)
                found.push_back(line);
        }
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
