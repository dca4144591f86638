#include "contract/forms/grid.h"

#include "contract/forms/grid_row_store.h"

#include <algorithm>

int CTBGrid::GetCurrentCell(Row& row, ColumnPlace& column) const
{
    if (m_currentRow == 0)
        return 0;
    row = m_currentRow;
    column = columnOf(m_currentIndex);
    return 1;
}

int CTBGrid::SetCurrentCell(Row row, ColumnPlace column)
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

void CTBGrid::setCurrent(Row row, ColumnPlace column)
{
    const ColumnIndex index = GetColIndex(column);
    if (row == m_currentRow && index == m_currentIndex)
        return;
    m_currentRow = row;
    m_currentIndex = index;
    repaint();
}

int CTBGrid::setValidCell(Row row, ColumnPlace column, int rowStep, int columnStep)
{
    Row nextRow = row + rowStep;
    ColumnPlace nextColumn = column + columnStep;
    while (nextRow >= 1 && nextRow <= GetRowCount() && nextColumn >= 1 && nextColumn <= GetColCount()) {
        if (IsValidCell(nextRow, nextColumn))
            return SetCurrentCell(nextRow, nextColumn);
        nextRow = nextRow + rowStep;
        nextColumn = nextColumn + columnStep;
    }
    return 0;
}

int CTBGrid::SetRightValidCell(Row row, ColumnPlace column)
{
    return setValidCell(row, column, 0, 1);
}

int CTBGrid::SetLeftValidCell(Row row, ColumnPlace column)
{
    return setValidCell(row, column, 0, -1);
}

int CTBGrid::SetDownValidCell(Row row, ColumnPlace column)
{
    return setValidCell(row, column, 1, 0);
}

void CTBGrid::SelectRows(const CArray<Row>& rows)
{
    CArray<Row> selected;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(selected), [this](Row row) { return IsDataRow(row); });
    m_rows->select(selected);
    m_selectionStale = true;
    repaint();
}

const CArray<zel::Row>& CTBGrid::GetSelectedRows() const
{
    if (m_selectionStale) {
        m_selected = m_rows->selected();
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

zel::Row CTBGrid::toRow(UserRow userRow) const
{
    if (userRow == append)
        return m_appendRow ? GetAppendRow() : Row{-1};
    return userRow >= 0 && userRow < GetDataRowCount() ? Row::at(userRow.place()) : Row{-1};
}

zel::UserRow CTBGrid::toUserRow(Row row) const
{
    return IsAppendRow(row) ? append : UserRow(row.number() - 1);
}

CString CTBGrid::shownText(UserRow userRow, UserColumn column) const
{
    const Row row = toRow(userRow);
    return row < 0 ? CString{} : GetShownText(row, GetColIndex(toColumn(column)));
}

void CTBGrid::describe(zel::IFieldWriter& writer) const
{
    std::vector<zel::ColumnView> columns;
    for (const ColumnIndex index : m_order) {
        const zel::GridColumn& each = GetColInfo(index);
        columns.push_back({each.header, each.width, !each.hidden, each.choices});
    }
    writer.columns("columns", columns);

    const_cast<CTBGrid*>(this)->fillRows(1, Row::of(GetDataRowCount()));  // reading fills rows that are read on demand
    std::vector<std::vector<CString>> texts;
    texts.reserve(static_cast<std::size_t>(GetDataRowCount()));
    for (Row row = 1; row <= GetDataRowCount(); ++row) {
        std::vector<CString>& line = texts.emplace_back();
        line.reserve(m_order.size());
        for (const ColumnIndex index : m_order)
            line.push_back(GetShownText(row, index));
    }
    writer.rows("rows", texts);

    if (m_currentRow == 0)
        writer.number("current", std::nullopt);
    else
        writer.cell("current", IsAppendRow(m_currentRow) ? std::nullopt : std::optional{toUserRow(m_currentRow).number()},
                    toUserColumn(columnOf(m_currentIndex)).number());

    const Row edited = editedRow();
    if (IsAppendRow(edited))
        writer.text("editing", "append");
    else
        writer.number("editing", edited == 0 ? std::nullopt : std::optional{toUserRow(edited).number()});
    writer.flag("appendRow", m_appendRow);

    std::vector<int> selected;
    for (const Row row : GetSelectedRows())
        selected.push_back(toUserRow(row).number());
    writer.numbers("selected", selected);
}
