#include "cli/combination_printer.h"

#include "cli/lcb_writer.h"
#include "cli/shortest.h"
#include "contract/record.h"
#include "contract/tables/static_load_case_table.h"
#include "platform/modeldb/record_json.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>
#include <utility>

namespace zel::cli {

namespace {

constexpr std::int32_t loadCaseItem = 1;

/// A load case, or whatever else an item refers to.
using Reference = std::pair<std::int32_t, std::uint32_t>;

struct Column {
    std::string title;
    bool right = false;
};

/// Rows of texts under titles.
struct Sheet {
    std::vector<Column> columns;
    std::vector<std::vector<std::string>> rows;
};

/// The references in use, load cases in the sequence of the model first.
std::vector<Reference> references(const std::vector<PrintedCombination>& combinations)
{
    std::set<Reference> used;
    for (const PrintedCombination& each : combinations) {
        for (const T_LCOM_ITEM& item : each.record->items)
            used.emplace(item.type, item.key);
    }
    std::vector<Reference> ordered;
    std::vector<Key> keys;
    CDataStld().GetKeyList(keys);
    for (const Key key : keys) {
        if (used.erase({loadCaseItem, key}) != 0)
            ordered.emplace_back(loadCaseItem, key);
    }
    ordered.insert(ordered.end(), used.begin(), used.end());
    return ordered;
}

std::string titleOf(const Reference& reference)
{
    const std::string name = reference.first == loadCaseItem ? CDataStld().GetNameByKey(reference.second) : std::string();
    if (!name.empty())
        return name;
    return (reference.first == loadCaseItem ? "#" : std::to_string(reference.first) + ":#") + std::to_string(reference.second);
}

/// @param number  makes the text of a factor
Sheet makeSheet(const std::vector<PrintedCombination>& combinations, std::string (*number)(double))
{
    const std::vector<Reference> used = references(combinations);
    const bool kinds =
        std::any_of(combinations.begin(), combinations.end(), [&](const PrintedCombination& each) { return each.kind != combinations.front().kind; });
    Sheet sheet;
    if (kinds)
        sheet.columns.push_back({"Kind", true});
    sheet.columns.insert(sheet.columns.end(), {{"No", true}, {"Name", false}, {"Active", true}, {"Formula", false}});
    const std::size_t fixed = sheet.columns.size();
    std::map<Reference, std::size_t> places;
    for (const Reference& reference : used) {
        places[reference] = sheet.columns.size() - fixed;
        sheet.columns.push_back({titleOf(reference), true});
    }
    std::vector<double> sums(used.size());
    std::vector<bool> given(used.size());
    for (const PrintedCombination& each : combinations) {
        std::fill(sums.begin(), sums.end(), 0.0);
        std::fill(given.begin(), given.end(), false);
        for (const T_LCOM_ITEM& item : each.record->items) {
            const std::size_t place = places.at({item.type, item.key});
            sums[place] += item.factor;
            given[place] = true;
        }
        std::vector<std::string> row;
        if (kinds)
            row.push_back(std::to_string(each.kind));
        row.insert(row.end(), {std::to_string(each.number), each.record->name, std::to_string(each.record->active), each.record->description});
        for (std::size_t i = 0; i < used.size(); ++i)
            row.push_back(given[i] ? number(sums[i]) : std::string());
        sheet.rows.push_back(std::move(row));
    }
    return sheet;
}

void printCsvRow(const std::vector<std::string>& cells, std::ostream& out)
{
    const char* separator = "";
    for (const std::string& cell : cells) {
        out << std::exchange(separator, ",");
        if (cell.find_first_of(",\"\r\n") == std::string::npos) {
            out << cell;
            continue;
        }
        out << '"';
        for (const char letter : cell)
            out << (letter == '"' ? "\"\"" : std::string(1, letter));
        out << '"';
    }
    out << "\r\n";
}

std::vector<std::string> titles(const Sheet& sheet)
{
    std::vector<std::string> cells;
    for (const Column& column : sheet.columns)
        cells.push_back(column.title);
    return cells;
}

void printCsv(const Sheet& sheet, std::ostream& out)
{
    printCsvRow(titles(sheet), out);
    for (const std::vector<std::string>& row : sheet.rows)
        printCsvRow(row, out);
}

void printTableRow(const Sheet& sheet, const std::vector<std::string>& cells, const std::vector<std::size_t>& widths, std::ostream& out)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string blanks(widths[i] - characterCount(cells[i]), ' ');
        line += (i > 0 ? "  " : "") + (sheet.columns[i].right ? blanks + cells[i] : cells[i] + blanks);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

void printTable(const Sheet& sheet, std::ostream& out)
{
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < sheet.columns.size(); ++i) {
        std::size_t width = characterCount(sheet.columns[i].title);
        for (const std::vector<std::string>& row : sheet.rows)
            width = std::max(width, characterCount(row[i]));
        widths.push_back(width);
    }
    printTableRow(sheet, titles(sheet), widths, out);
    for (const std::vector<std::string>& row : sheet.rows)
        printTableRow(sheet, row, widths, out);
}

}  // namespace

void printCombinations(Format format, const std::vector<PrintedCombination>& combinations, std::ostream& out)
{
    switch (format) {
    case Format::table:
        printTable(makeSheet(combinations, readable), out);
        break;
    case Format::csv:
        printCsv(makeSheet(combinations, shortest), out);
        break;
    case Format::lcb:
        printLcb(combinations, out);
        break;
    case Format::json:
        printResultJson(true, {}, combinations, out);
        break;
    }
}

void printResultJson(bool ok, const std::vector<std::string>& messages, const std::vector<PrintedCombination>& combinations, std::ostream& out)
{
    out << "{\"ok\": " << (ok ? 1 : 0) << ", \"messages\": " << printJson(messages) << ", \"rows\": [";
    const char* separator = "";
    for (const PrintedCombination& each : combinations)
        out << std::exchange(separator, ", ") << printJson(fieldsToJson(describe<T_LCOM_D>(), each.record));
    out << "]}\n";
}

}  // namespace zel::cli
