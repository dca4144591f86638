#include "contract/forms/grid.h"

#include "contract/forms/grid_row_store.h"

#include <algorithm>

int CTBGrid::GetCurrentCell(int& row, int& column) const
{
    if (m_currentRow == 0)
        return 0;
    row = m_currentRow;
    column = columnOf(m_currentIndex);
    return 1;
}

int CTBGrid::SetCurrentCell(int row, int column)
{
    if (!IsValidCell(row, column))
        return 0;
    setCurrent(row, column);
    return 1;
}

void CTBGrid::ResetCurrentCell()
{
    m_currentRow = 0;
    m_currentIndex = -1;
    repaint();
}

void CTBGrid::setCurrent(int row, int column)
{
    const int index = GetColIndex(column);
    if (row == m_currentRow && index == m_currentIndex)
        return;
    m_currentRow = row;
    m_currentIndex = index;
    repaint();
}

int CTBGrid::setValidCell(int row, int column, int rowStep, int columnStep)
{
    int nextRow = row + rowStep;
    int nextColumn = column + columnStep;
    while (nextRow >= 1 && nextRow <= GetRowCount() && nextColumn >= 1 && nextColumn <= GetColCount()) {
        if (IsValidCell(nextRow, nextColumn))
            return SetCurrentCell(nextRow, nextColumn);
        nextRow += rowStep;
        nextColumn += columnStep;
    }
    return 0;
}

int CTBGrid::SetRightValidCell(int row, int column)
{
    return setValidCell(row, column, 0, 1);
}

int CTBGrid::SetLeftValidCell(int row, int column)
{
    return setValidCell(row, column, 0, -1);
}

int CTBGrid::SetDownValidCell(int row, int column)
{
    return setValidCell(row, column, 1, 0);
}

void CTBGrid::SelectRows(const CArray<int>& rows)
{
    std::vector<int> selected;
    for (const int row : rows)
        if (IsDataRow(row))
            selected.push_back(row - 1);
    m_rows->select(selected);
    m_selectionStale = true;
    repaint();
}

const CArray<int>& CTBGrid::GetSelectedRows() const
{
    if (m_selectionStale) {
        m_selected = m_rows->selected();
        for (int& row : m_selected)
            ++row;
        m_selectionStale = false;
    }
    return m_selected;
}

void CTBGrid::ResetSelection()
{
    if (!GetSelectedRows().empty())
        SelectRows({});
}

bool CTBGrid::UnlockPainting()
{
    if (m_paintLocks > 0)
        --m_paintLocks;
    if (m_paintLocks > 0)
        return false;
    if (m_repaint) {
        m_repaint = false;
        changed();
    }
    return true;
}

void CTBGrid::repaint()
{
    if (m_paintLocks > 0)
        m_repaint = true;
    else
        changed();
}

int CTBGrid::toRow(int userRow) const
{
    if (userRow == append)
        return m_appendRow ? GetAppendRow() : -1;
    return IsDataRow(userRow + 1) ? userRow + 1 : -1;
}

int CTBGrid::toUserRow(int row) const
{
    return IsAppendRow(row) ? append : row - 1;
}

CString CTBGrid::shownText(int userRow, int column) const
{
    const int row = toRow(userRow);
    return row < 0 ? CString{} : GetShownText(row, GetColIndex(column + 1));
}

void CTBGrid::describe(zel::IFieldWriter& writer) const
{
    std::vector<zel::ColumnView> columns;
    for (const int index : m_order) {
        const zel::GridColumn& each = GetColInfo(index);
        columns.push_back({each.header, each.width, !each.hidden, each.choices});
    }
    writer.columns("columns", columns);

    const_cast<CTBGrid*>(this)->fillRows(1, GetDataRowCount());  // reading fills rows that are read on demand
    std::vector<std::vector<CString>> texts;
    texts.reserve(static_cast<std::size_t>(GetDataRowCount()));
    for (int row = 1; row <= GetDataRowCount(); ++row) {
        std::vector<CString>& line = texts.emplace_back();
        line.reserve(m_order.size());
        for (const int index : m_order)
            line.push_back(GetShownText(row, index));
    }
    writer.rows("rows", texts);

    if (m_currentRow == 0)
        writer.number("current", std::nullopt);
    else
        writer.cell("current", IsAppendRow(m_currentRow) ? std::nullopt : std::optional{m_currentRow - 1}, columnOf(m_currentIndex) - 1);

    const int edited = editedRow();
    if (IsAppendRow(edited))
        writer.text("editing", "append");
    else
        writer.number("editing", edited == 0 ? std::nullopt : std::optional{edited - 1});
    writer.flag("appendRow", m_appendRow);

    std::vector<int> selected;
    for (const int row : GetSelectedRows())
        selected.push_back(row - 1);
    writer.numbers("selected", selected);
}
