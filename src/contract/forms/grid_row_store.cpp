#include "contract/forms/grid_row_store.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace zel {

namespace {

constexpr std::size_t endSize = sizeof(std::uint32_t);

}  // namespace

std::size_t GridRowStore::head() const
{
    return static_cast<std::size_t>(m_columns) * endSize;
}

std::uint32_t GridRowStore::end(const Stored& row, int column)
{
    std::uint32_t value = 0;
    std::memcpy(&value, row.block.data() + static_cast<std::size_t>(column) * endSize, endSize);
    return value;
}

void GridRowStore::setEnd(Stored& row, int column, std::uint32_t end)
{
    std::memcpy(row.block.data() + static_cast<std::size_t>(column) * endSize, &end, endSize);
}

void GridRowStore::addColumn()
{
    for (Stored* row : m_rows) {
        if (row->block.empty())
            continue;
        const std::uint32_t last = begin(*row, m_columns);
        row->block.insert(head(), endSize, '\0');
        setEnd(*row, m_columns, last);
    }
    ++m_columns;
}

GridRowStore::Stored* GridRowStore::newRow()
{
    if (m_unused.empty())
        return &m_pool.emplace_back();
    Stored* const row = m_unused.back();
    m_unused.pop_back();
    return row;
}

void GridRowStore::reset(int count, bool filled)
{
    m_rows.clear();
    m_unused.clear();
    m_pool.clear();
    m_rows.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int row = 0; row < count; ++row) {
        m_rows.push_back(newRow());
        m_rows.back()->filled = filled;
    }
}

void GridRowStore::insert(Row row)
{
    m_rows.insert(m_rows.begin() + (row - 1).number(), newRow());
}

void GridRowStore::erase(Row row)
{
    at(row) = {};
    m_unused.push_back(&at(row));
    m_rows.erase(m_rows.begin() + (row - 1).number());
}

CArray<Row> GridRowStore::move(const CArray<Row>& rows, Row target)
{
    std::vector<bool> moved(m_rows.size(), false);
    for (const Row row : rows)
        moved[row.place()] = true;

    CArray<Row> order;  // old rows in their new order
    order.reserve(m_rows.size());
    for (Row row = 1; row < target; ++row)
        if (!moved[row.place()])
            order.push_back(row);
    order.insert(order.end(), rows.begin(), rows.end());
    for (Row row = target; row <= count(); ++row)
        if (!moved[row.place()])
            order.push_back(row);

    std::vector<Stored*> sorted(m_rows.size());
    CArray<Row> place(m_rows.size());
    for (std::size_t to = 0; to < order.size(); ++to) {
        sorted[to] = m_rows[order[to].place()];
        place[order[to].place()] = Row::at(to);
    }
    m_rows = std::move(sorted);
    return place;
}

void GridRowStore::select(const CArray<Row>& rows)
{
    for (Stored* row : m_rows)
        row->selected = 0;
    std::uint32_t number = 0;
    for (const Row row : rows)
        if (at(row).selected == 0)
            at(row).selected = ++number;
}

CArray<Row> GridRowStore::selected() const
{
    CArray<Row> found;
    for (Row row = 1; row <= count(); ++row)
        if (at(row).selected != 0)
            found.push_back(row);
    std::sort(found.begin(), found.end(), [this](Row a, Row b) { return at(a).selected < at(b).selected; });
    return found;
}

std::uint32_t GridRowStore::begin(const Stored& row, int column)
{
    return column > 0 ? end(row, column - 1) : 0;
}

std::string_view GridRowStore::text(Row row, ColumnIndex column) const
{
    const Stored& stored = at(row);
    if (stored.block.empty())
        return {};
    const std::uint32_t from = begin(stored, column.number());
    return std::string_view{stored.block}.substr(head() + from, end(stored, column.number()) - from);
}

void GridRowStore::setText(Row row, ColumnIndex column, std::string_view text)
{
    Stored& stored = at(row);
    if (stored.block.empty()) {
        if (text.empty())
            return;
        stored.block.assign(head(), '\0');
    }
    const std::uint32_t from = begin(stored, column.number());
    const std::uint32_t oldEnd = end(stored, column.number());
    const auto newEnd = static_cast<std::uint32_t>(from + text.size());
    stored.block.replace(head() + from, oldEnd - from, text);
    for (int other = column.number(); other < m_columns; ++other)
        setEnd(stored, other, end(stored, other) - oldEnd + newEnd);
}

CArray<CString> GridRowStore::texts(Row row) const
{
    CArray<CString> found(static_cast<std::size_t>(m_columns));
    for (ColumnIndex column = 0; column < m_columns; ++column)
        found[column.place()] = CString{text(row, column)};
    return found;
}

void GridRowStore::setTexts(Row row, const CArray<CString>& texts)
{
    Stored& stored = at(row);
    const auto given = std::min(texts.size(), static_cast<std::size_t>(m_columns));
    const std::size_t size = std::accumulate(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(given), std::size_t{0},
                                             [](std::size_t sum, const CString& text) { return sum + text.size(); });
    stored.block.clear();
    if (size == 0)
        return;
    stored.block.reserve(head() + size);
    stored.block.assign(head(), '\0');
    std::uint32_t last = 0;
    for (int column = 0; column < m_columns; ++column) {
        if (static_cast<std::size_t>(column) < given) {
            const CString& text = texts[static_cast<std::size_t>(column)];
            stored.block += text;
            last += static_cast<std::uint32_t>(text.size());
        }
        setEnd(stored, column, last);
    }
}

}  // namespace zel
