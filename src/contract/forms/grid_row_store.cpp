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

std::uint32_t GridRowStore::end(const Row& row, int column)
{
    std::uint32_t value = 0;
    std::memcpy(&value, row.block.data() + static_cast<std::size_t>(column) * endSize, endSize);
    return value;
}

void GridRowStore::setEnd(Row& row, int column, std::uint32_t end)
{
    std::memcpy(row.block.data() + static_cast<std::size_t>(column) * endSize, &end, endSize);
}

void GridRowStore::addColumn()
{
    for (Row* row : m_rows) {
        if (row->block.empty())
            continue;
        const std::uint32_t last = m_columns > 0 ? end(*row, m_columns - 1) : 0;
        row->block.insert(head(), endSize, '\0');
        setEnd(*row, m_columns, last);
    }
    ++m_columns;
}

GridRowStore::Row* GridRowStore::newRow()
{
    if (m_unused.empty())
        return &m_pool.emplace_back();
    Row* const row = m_unused.back();
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

void GridRowStore::insert(int row)
{
    m_rows.insert(m_rows.begin() + row, newRow());
}

void GridRowStore::erase(int row)
{
    at(row) = {};
    m_unused.push_back(&at(row));
    m_rows.erase(m_rows.begin() + row);
}

std::vector<int> GridRowStore::move(const std::vector<int>& rows, int target)
{
    std::vector<bool> moved(m_rows.size(), false);
    for (const int row : rows)
        moved[static_cast<std::size_t>(row)] = true;

    std::vector<int> order;  // old rows in their new order
    order.reserve(m_rows.size());
    for (int row = 0; row < target; ++row)
        if (!moved[static_cast<std::size_t>(row)])
            order.push_back(row);
    order.insert(order.end(), rows.begin(), rows.end());
    for (int row = target; row < count(); ++row)
        if (!moved[static_cast<std::size_t>(row)])
            order.push_back(row);

    std::vector<Row*> sorted(m_rows.size());
    std::vector<int> place(m_rows.size());
    for (std::size_t to = 0; to < order.size(); ++to) {
        sorted[to] = m_rows[static_cast<std::size_t>(order[to])];
        place[static_cast<std::size_t>(order[to])] = static_cast<int>(to);
    }
    m_rows = std::move(sorted);
    return place;
}

void GridRowStore::select(const std::vector<int>& rows)
{
    for (Row* row : m_rows)
        row->selected = 0;
    std::uint32_t number = 0;
    for (const int row : rows)
        if (at(row).selected == 0)
            at(row).selected = ++number;
}

std::vector<int> GridRowStore::selected() const
{
    std::vector<int> found;
    for (int row = 0; row < count(); ++row)
        if (at(row).selected != 0)
            found.push_back(row);
    std::sort(found.begin(), found.end(), [this](int a, int b) { return at(a).selected < at(b).selected; });
    return found;
}

std::string_view GridRowStore::text(int row, int column) const
{
    const Row& stored = at(row);
    if (stored.block.empty())
        return {};
    const std::uint32_t from = column > 0 ? end(stored, column - 1) : 0;
    return std::string_view{stored.block}.substr(head() + from, end(stored, column) - from);
}

void GridRowStore::setText(int row, int column, std::string_view text)
{
    Row& stored = at(row);
    if (stored.block.empty()) {
        if (text.empty())
            return;
        stored.block.assign(head(), '\0');
    }
    const std::uint32_t from = column > 0 ? end(stored, column - 1) : 0;
    const std::uint32_t oldEnd = end(stored, column);
    const auto newEnd = static_cast<std::uint32_t>(from + text.size());
    stored.block.replace(head() + from, oldEnd - from, text);
    for (int other = column; other < m_columns; ++other)
        setEnd(stored, other, end(stored, other) - oldEnd + newEnd);
}

CArray<CString> GridRowStore::texts(int row) const
{
    CArray<CString> found(static_cast<std::size_t>(m_columns));
    for (int column = 0; column < m_columns; ++column)
        found[static_cast<std::size_t>(column)] = CString{text(row, column)};
    return found;
}

void GridRowStore::setTexts(int row, const CArray<CString>& texts)
{
    Row& stored = at(row);
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
