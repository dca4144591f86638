#include "contract/forms/grid_browser.h"

#include "contract/forms/grid_row_edit.h"

#include <algorithm>

using zel::Taken;

Taken CTBBrowserWnd::changeable() const
{
    if (m_displayOnly)
        return refuse("is for display only: its cells take no input");
    if (isWriting())
        return refuse("is writing a row");
    return {};
}

CString CTBBrowserWnd::userName(Row row, ColumnIndex index) const
{
    const CString& title = GetColInfo(index).title;
    const CString column = title.empty() ? "column " + std::to_string(toUserColumn(columnOf(index)).number()) : "column \"" + title + "\"";
    return IsAppendRow(row) ? column + " of the row for a new entry" : column + " of row " + std::to_string(toUserRow(row).number());
}

Taken CTBBrowserWnd::focusCell(UserRow row, UserColumn column, Row& gridRow, ColumnPlace& gridColumn)
{
    if (Taken focused = focus(); !focused)
        return focused;
    gridRow = toRow(row);
    if (gridRow < 0 && row == append)
        return refuse("has no row for a new entry");
    if (gridRow < 0)
        return refuse("has no row " + std::to_string(row.number()) + ": it has " + std::to_string(GetDataRowCount()) + " rows, from 0");
    gridColumn = toColumn(column);
    const ColumnIndex index = GetColIndex(gridColumn);
    if (index < 0)
        return refuse("has no column " + std::to_string(column.number()) + ": it has " + std::to_string(GetColCount()) + " columns, from 0");
    if (GetColInfo(index).hidden)
        return refuse("does not show its " + userName(gridRow, index));
    if (IsRowHidden(gridRow))
        return refuse("does not show its row " + std::to_string(row.number()));
    return {};
}

Taken CTBBrowserWnd::toRows(const std::vector<int>& rows, CArray<Row>& gridRows) const
{
    std::vector<bool> seen(static_cast<std::size_t>(GetDataRowCount()), false);
    for (const int row : rows) {
        const Row gridRow = toRow(row);
        if (!IsDataRow(gridRow))
            return refuse("has no row " + std::to_string(row) + ": it has " + std::to_string(GetDataRowCount()) + " rows, from 0");
        if (!seen[gridRow.place()])
            gridRows.push_back(gridRow);
        seen[gridRow.place()] = true;
    }
    return {};
}

Taken CTBBrowserWnd::editable(Row row, ColumnPlace column) const
{
    if (Taken free = changeable(); !free)
        return free;
    const ColumnIndex index = GetColIndex(column);
    if (!IsValidCell(row, column))
        return refuse("has " + userName(row, index) + " disabled");
    if (!IsCellEditable(row, index))
        return refuse("has " + userName(row, index) + " for reading only");
    return {};
}

Taken CTBBrowserWnd::offers(Row row, ColumnIndex index, const CString& text) const
{
    if (GetCellKind(row, index) == zel::GridKind::check && text != "0" && text != "1")
        return refuse("takes only 0 or 1 in " + userName(row, index) + ", not \"" + text + "\"");
    if (!GetColInfo(index).choicesOnly)
        return {};
    const std::vector<CString> choices = GetCellChoices(row, index);
    if (choices.empty() || std::find(choices.begin(), choices.end(), text) != choices.end())
        return {};
    return refuse("does not offer \"" + text + "\" in " + userName(row, index));
}

Taken CTBBrowserWnd::typeCell(UserRow row, UserColumn column, const CString& text)
{
    return atCell(row, column, [&](Row gridRow, ColumnPlace gridColumn) -> Taken {
        if (Taken free = editable(gridRow, gridColumn); !free)
            return free;
        if (Taken offered = offers(gridRow, GetColIndex(gridColumn), text); !offered)
            return offered;
        if (openAt(gridRow, gridColumn)) {
            m_edit->type(text);
            closeCell();
        }
        tellCurrentRow();
        return {};
    });
}

bool CTBBrowserWnd::openAt(Row row, ColumnPlace column)
{
    if (!goTo(row, column))
        return false;
    selectByUser({});
    openEdit(GetCurrentRow());
    if (!m_edit->hasOpenCell()) {
        m_edit->openCell(GetColIndex(column));
        repaint();
    }
    return true;
}

Taken CTBBrowserWnd::openCell(UserRow row, UserColumn column)
{
    return atCell(row, column, [&](Row gridRow, ColumnPlace gridColumn) -> Taken {
        if (Taken free = editable(gridRow, gridColumn); !free)
            return free;
        openAt(gridRow, gridColumn);
        tellCurrentRow();
        return {};
    });
}

Taken CTBBrowserWnd::typeText(const CString& text)
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (GetOpenCell() < 0)
        return refuse("has no open cell to type into");
    if (Taken offered = offers(editedRow(), GetOpenCell(), text); !offered)
        return offered;
    m_edit->type(text);
    repaint();
    return {};
}

Taken CTBBrowserWnd::leaveCell()
{
    return inReach([this] {
        closeCell();
        tellCurrentRow();
    });
}

Taken CTBBrowserWnd::leaveRow()
{
    return inReach([this] {
        closeRow();
        tellCurrentRow();
    });
}

Taken CTBBrowserWnd::escape()
{
    return inReach([this] {
        if (m_edit->hasOpenCell())
            cancelCell();
        else
            cancelRow();
    });
}

Taken CTBBrowserWnd::clickCell(UserRow row, UserColumn column)
{
    return atCell(row, column, [&](Row gridRow, ColumnPlace gridColumn) -> Taken {
        if (GetColInfo(GetColIndex(gridColumn)).frozen) {
            if (!goToRow(gridRow))
                return {};
            selectByUser(IsDataRow(GetCurrentRow()) ? CArray<Row>{GetCurrentRow()} : CArray<Row>{});
        } else if (!IsValidCell(gridRow, gridColumn)) {
            return refuse("has " + userName(gridRow, GetColIndex(gridColumn)) + " disabled");
        } else if (goTo(gridRow, gridColumn)) {
            selectByUser({});
        } else {
            return {};
        }
        OnClickCell(GetCurrentRow(), gridColumn);
        tellCurrentRow();
        return {};
    });
}

Taken CTBBrowserWnd::doubleClickCell(UserRow row, UserColumn column)
{
    const zel::UserAction action;
    if (Taken clicked = clickCell(row, column); !clicked)
        return clicked;
    OnDoubleClickCell(GetCurrentRow(), toColumn(column));
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::rightDoubleClickCell(UserRow row, UserColumn column)
{
    const zel::UserAction action;
    if (Taken clicked = clickCell(row, column); !clicked)
        return clicked;
    OnRightDoubleClickCell(GetCurrentRow(), toColumn(column));
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::doubleClick(int row)
{
    Row current;
    ColumnPlace column;
    GetCurrentCell(current, column);
    for (ColumnPlace candidate = 1; !IsValidCell(toRow(row), column) && candidate <= GetColCount(); ++candidate)
        column = candidate;
    return doubleClickCell(row, toUserColumn(column));
}

Taken CTBBrowserWnd::pressCell(UserRow row, UserColumn column)
{
    const zel::UserAction action;
    if (Taken clicked = clickCell(row, column); !clicked)
        return clicked;
    const ColumnIndex index = GetColIndex(toColumn(column));
    if (GetCellKind(GetCurrentRow(), index) != zel::GridKind::button)
        return refuse("has no button in " + userName(GetCurrentRow(), index));
    OnButtonCell(GetCurrentRow(), index);
    return {};
}

void CTBBrowserWnd::selectByUser(const CArray<Row>& rows)
{
    if (rows.empty() && GetSelectedRows().empty())
        return;
    SelectRows(rows);
    const CArray<Row> selected = GetSelectedRows();
    OnChangedSelectionPublic(selected, static_cast<int>(selected.size()));
}

Taken CTBBrowserWnd::select(const std::vector<int>& rows)
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    CArray<Row> gridRows;
    if (Taken there = toRows(rows, gridRows); !there)
        return there;
    if (!gridRows.empty()) {
        bool gone = false;
        following(gridRows, [&] { gone = goToRow(gridRows.back()); });
        if (!gone)
            return {};
    }
    SelectRows(gridRows);
    const CArray<Row> selected = GetSelectedRows();
    OnChangedSelectionPublic(selected, static_cast<int>(selected.size()));
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::deleteRows(const std::vector<int>& rows)
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (Taken free = changeable(); !free)
        return free;
    CArray<Row> gridRows;
    if (Taken there = toRows(rows, gridRows); !there)
        return there;
    if (gridRows.empty())
        return refuse("was given no rows to delete");

    if (std::find(gridRows.begin(), gridRows.end(), editedRow()) != gridRows.end()) {
        cancelRow();
    } else if (IsEdit()) {
        bool closed = false;
        following(gridRows, [&] { closed = closeRow(); });
        if (!closed)
            return {};
    }
    const bool selected = !GetSelectedRows().empty();
    m_warning.clear();
    bool deleted = false;
    const bool mirrored = touchesRows([&] { deleted = DeleteFromDB(gridRows); });
    showWarning();
    if (deleted && !mirrored) {
        const zel::GridUpdate update{*this};
        std::sort(gridRows.rbegin(), gridRows.rend());
        for (const Row row : gridRows)
            DeleteRecord(row);
    }
    if (deleted && selected && GetSelectedRows().empty())
        OnChangedSelectionPublic({}, 0);
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::dropText(UserRow row, UserColumn column, const CString& text)
{
    return changeAtCell(row, column, [&](Row gridRow, ColumnPlace gridColumn) -> Taken {
        m_warning.clear();
        const bool taken = OnDropText(gridRow, gridColumn, text);
        if (!m_warning.empty())
            showWarning();
        else if (!taken)
            return refuse("has no use for what was dropped");
        tellCurrentRow();
        return {};
    });
}

Taken CTBBrowserWnd::resizeColumn(UserColumn column, int width)
{
    if (Taken reached = reach(); !reached)
        return reached;
    const ColumnIndex index = GetColIndex(toColumn(column));
    if (index < 0)
        return refuse("has no column " + std::to_string(column.number()) + ": it has " + std::to_string(GetColCount()) + " columns, from 0");
    if (!GetColInfo(index).resizable)
        return refuse("keeps the width of column \"" + GetColInfo(index).title + "\"");
    SetColWidth(index, width);
    return {};
}

bool CTBBrowserWnd::onKey(zel::UserKey key)
{
    if (GetCurrentRow() == 0)
        return false;
    if (key == zel::UserKey::escape) {
        if (m_edit->isNone())
            return false;
        (void)escape();
    } else if (key == zel::UserKey::tab) {
        goOn();
    } else {
        goDown();
    }
    OnKeyCell(key);
    tellCurrentRow();
    return true;
}
