#include "loadcomb/handed_rows.h"

#include "loadcomb/generation/code_rows.h"
#include "loadcomb/generation/row_text.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <stdexcept>

namespace handed {

namespace {

using zel::loadcomb::WrittenRow;

/// Whether the analysis of the row's text lets a model with cases in `groups` pass.
bool isFed(const WrittenRow& row, const std::vector<std::string_view>& groups)
{
    std::vector<_CCmd_Loadcase> own;
    for (const WrittenRow::Factor& factor : row.factors) {
        _CCmd_Loadcase group;
        group.name = factor.group;
        if (std::find(groups.begin(), groups.end(), factor.group) != groups.end())
            group.cases.push_back(1);
        own.push_back(group);
    }
    std::string text = row.text;
    const int level = zel::loadcomb::analyseText(text, own);
    return zel::loadcomb::testFeasibility(text, own, level).feasible;
}

std::string numberText(double value)
{
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

template <class Test>
Rows filtered(const Rows& rows, Test test)
{
    Rows kept;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(kept), test);
    return kept;
}

}  // namespace

std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        found.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

Rows rowsOf(const zel::codes::CodeTable& table, std::string_view groups, int type)
{
    const std::vector<std::string_view> present = words(groups);
    zel::codes::Facts facts = zel::loadcomb::typeFact(static_cast<zel::codes::CombType>(type));
    for (const std::string_view group : present) {
        facts |= zel::codes::fact(zel::codes::wordOf(group));
        if (group == "LR" || group == "SL" || group == "RL")
            facts |= zel::codes::fact(zel::codes::Word::X);
    }
    Rows found;
    for (const zel::codes::Part& part : table.parts) {
        if (!part.when.met(facts))
            continue;
        zel::loadcomb::writeRows(part, table.wind, facts, {alphaH, S, V, verticalForceFactor}, [&found, &present](const WrittenRow& row) {
            if (!isFed(row, present))
                return;
            HandedRow handed{row.flag, row.text, {}};
            for (const WrittenRow::Factor& factor : row.factors)
                handed.factors.emplace_back(factor.group, factor.factor);
            found.push_back(handed);
        });
    }
    return found;
}

Rows rowsOf(std::string_view code, std::string_view groups, int type)
{
    const zel::codes::CodeEntry* entry = zel::codes::findCode(code);
    if (entry == nullptr)
        throw std::invalid_argument("no such code: " + std::string(code));
    return rowsOf(*entry->table, groups, type);
}

Rows joined(std::initializer_list<Rows> rows)
{
    Rows all;
    for (const Rows& some : rows)
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

Rows rowsWith(std::string_view part, const Rows& rows)
{
    return filtered(rows, [part](const HandedRow& row) { return row.text.find(part) != std::string::npos; });
}

Rows rowsWithout(std::string_view part, const Rows& rows)
{
    return filtered(rows, [part](const HandedRow& row) { return row.text.find(part) == std::string::npos; });
}

Rows serviceRowsWith(std::string_view part, const Rows& rows)
{
    return filtered(rowsWith(part, rows), [](const HandedRow& row) { return row.flag == service; });
}

Rows strengthRowsWith(std::string_view part, const Rows& rows)
{
    return filtered(rowsWith(part, rows), [](const HandedRow& row) { return row.flag == strength; });
}

Rows plusRows(const Rows& rows)
{
    return filtered(rows, [](const HandedRow& row) {
        return std::none_of(row.factors.begin(), row.factors.end(),
                            [](const auto& factor) { return (factor.first == "WL" || factor.first == "EL") && factor.second < 0.0; });
    });
}

std::vector<std::string> texts(const Rows& rows)
{
    std::vector<std::string> all;
    for (const HandedRow& row : rows)
        all.push_back(row.text);
    return all;
}

std::vector<std::string> lines(const Rows& rows)
{
    std::vector<std::string> all;
    for (const HandedRow& row : rows) {
        std::string line = (row.flag == service ? "service | " : "strength | ") + row.text + " |";
        for (const auto& [group, factor] : row.factors)
            line += " " + group + " " + numberText(factor);
        all.push_back(line);
    }
    return all;
}

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    const std::size_t at = text.find(from);
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

}  // namespace handed
