#include "cli/sheet.h"

#include "cli/shortest.h"
#include "cli/shown_text.h"
#include "contract/tables/static_load_case_table.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <utility>

namespace zel::cli {

namespace {

constexpr std::int32_t loadCaseItem = 1;

/// A load case, or whatever else an item refers to.
using Reference = std::pair<std::int32_t, std::uint32_t>;
/// What a combination takes of each, in no order.
using Factors = std::vector<std::pair<Reference, double>>;

std::string titleOf(const Reference& reference)
{
    const std::string name = reference.first == loadCaseItem ? CDataStld().GetNameByKey(reference.second) : std::string();
    if (!name.empty())
        return name;
    return (reference.first == loadCaseItem ? "#" : std::to_string(reference.first) + ":#") + std::to_string(reference.second);
}

/// Adds up the factors of a reference that stands more than once.
void addUp(const T_LCOM_D& record, Factors& factors)
{
    factors.clear();
    for (const T_LCOM_ITEM& item : record.items)
        factors.emplace_back(Reference(item.type, item.key), 0.0 + item.factor);  // never "-0"
    std::stable_sort(factors.begin(), factors.end(), [](const auto& left, const auto& right) { return left.first < right.first; });
    std::size_t last = 0;
    for (std::size_t i = 1; i < factors.size(); ++i) {
        if (factors[i].first == factors[last].first)
            factors[last].second += factors[i].second;
        else
            factors[++last] = factors[i];
    }
    factors.resize(factors.empty() ? 0 : last + 1);
}

using FactorText = std::string (*)(double);

/// How texts and factors are written in a kind of sheet.
struct Style {
    FactorText factor;
    std::string (*text)(std::string_view);
};

struct Column {
    std::string title;
    bool right = false;
    std::size_t width = 0;  ///< characters of its widest text
};

/// The columns of some combinations. Making them is the first way through; the second one prints a row at a time.
class Sheet {
public:
    Sheet(const EachCombination& combinations, const Style& style) : m_combinations(combinations), m_style(style)
    {
        std::map<Reference, std::size_t> used;  // with the width of its widest factor
        std::size_t fixedWidths[fixedColumns] = {};
        int firstKind = 0;
        m_combinations([&](const PrintedCombination& each) {
            firstKind = firstKind == 0 ? each.kind : firstKind;
            m_withKind = m_withKind || each.kind != firstKind;
            writeFixed(each);
            for (std::size_t i = 0; i < fixedColumns; ++i)
                fixedWidths[i] = std::max(fixedWidths[i], characterCount(m_fixed[i]));
            addUp(*each.record, m_factors);
            for (const auto& [reference, factor] : m_factors) {
                std::size_t& width = used[reference];
                width = std::max(width, characterCount(m_style.factor(factor)));
            }
        });
        static constexpr std::pair<const char*, bool> heads[fixedColumns] = {
            {"Kind", true}, {"No", true}, {"Name", false}, {"Active", true}, {"Formula", false}};
        for (std::size_t i = m_withKind ? 0 : 1; i < fixedColumns; ++i)
            addColumn(heads[i].first, heads[i].second, fixedWidths[i]);
        placeReferences(used);
    }

    [[nodiscard]] const std::vector<Column>& columns() const { return m_columns; }

    /// Gives the titles, then the cells of each combination.
    template <class Print> void eachRow(const Print& print)
    {
        m_cells.resize(m_columns.size());
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_cells[i] = m_columns[i].title;
        print(m_cells);
        m_combinations([&](const PrintedCombination& each) {
            writeFixed(each);
            const std::size_t fixed = m_withKind ? fixedColumns : fixedColumns - 1;
            std::copy(std::end(m_fixed) - static_cast<std::ptrdiff_t>(fixed), std::end(m_fixed), m_cells.begin());
            std::for_each(m_cells.begin() + static_cast<std::ptrdiff_t>(fixed), m_cells.end(), [](std::string& cell) { cell.clear(); });
            addUp(*each.record, m_factors);
            for (const auto& [reference, factor] : m_factors)
                m_cells[m_places.at(reference)] = m_style.factor(factor);
            print(m_cells);
        });
    }

private:
    static constexpr std::size_t fixedColumns = 5;

    void writeFixed(const PrintedCombination& each)
    {
        m_fixed[0] = std::to_string(each.kind);
        m_fixed[1] = std::to_string(each.number);
        m_fixed[2] = m_style.text(each.record->name);
        m_fixed[3] = std::to_string(each.record->active);
        m_fixed[4] = m_style.text(each.record->description);
    }

    void addColumn(std::string title, bool right, std::size_t width)
    {
        width = std::max(width, characterCount(title));
        m_columns.push_back({std::move(title), right, width});
    }

    /// Load cases in the sequence of the model, then all else.
    void placeReferences(std::map<Reference, std::size_t>& used)
    {
        const auto place = [&](const Reference& reference, std::size_t width) {
            m_places[reference] = m_columns.size();
            addColumn(m_style.text(titleOf(reference)), true, width);
        };
        std::vector<Key> keys;
        CDataStld().GetKeyList(keys);
        for (const Key key : keys) {
            if (const auto node = used.extract({loadCaseItem, key}))
                place(node.key(), node.mapped());
        }
        for (const auto& [reference, width] : used)
            place(reference, width);
    }

    const EachCombination& m_combinations;
    Style m_style;
    bool m_withKind = false;
    std::vector<Column> m_columns;
    std::map<Reference, std::size_t> m_places;
    // Of one row.
    std::string m_fixed[fixedColumns];
    Factors m_factors;
    std::vector<std::string> m_cells;
};

void addCsvCell(std::string& line, const std::string& cell)
{
    if (cell.find_first_of(",\"\r\n") == std::string::npos) {
        line += cell;
        return;
    }
    line += '"';
    for (const char letter : cell)
        line.append(letter == '"' ? 2 : 1, letter);
    line += '"';
}

}  // namespace

void printTable(const EachCombination& combinations, std::ostream& out)
{
    Sheet sheet(combinations, {readable, shownText});
    const std::vector<Column>& columns = sheet.columns();
    std::string line;
    sheet.eachRow([&](const std::vector<std::string>& cells) {
        line.clear();
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::size_t blanks = columns[i].width - characterCount(cells[i]);
            line.append(i > 0 ? 2 : 0, ' ').append(columns[i].right ? blanks : 0, ' ').append(cells[i]).append(columns[i].right ? 0 : blanks, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    });
}

void printCsv(const EachCombination& combinations, std::ostream& out)
{
    Sheet sheet(combinations, {shortest, [](std::string_view text) { return std::string(text); }});
    std::string line;
    sheet.eachRow([&](const std::vector<std::string>& cells) {
        line.clear();
        for (std::size_t i = 0; i < cells.size(); ++i) {
            line.append(i > 0 ? 1 : 0, ',');
            addCsvCell(line, cells[i]);
        }
        out << line << "\r\n";
    });
}

}  // namespace zel::cli
