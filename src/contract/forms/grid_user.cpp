#include "contract/forms/grid_browser.h"

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

CString CTBBrowserWnd::userName(int row, int index) const
{
    const CString& title = GetColInfo(index).title;
    const CString column = title.empty() ? "column " + std::to_string(columnOf(index) - 1) : "column \"" + title + "\"";
    return IsAppendRow(row) ? column + " of the row for a new entry" : column + " of row " + std::to_string(row - 1);
}

Taken CTBBrowserWnd::focusCell(int row, int column, int& gridRow, int& gridColumn)
{
    if (Taken focused = focus(); !focused)
        return focused;
    gridRow = toRow(row);
    if (gridRow < 0 && row == append)
        return refuse("has no row for a new entry");
    if (gridRow < 0)
        return refuse("has no row " + std::to_string(row) + ": it has " + std::to_string(GetDataRowCount()) + " rows, from 0");
    gridColumn = column + 1;
    const int index = GetColIndex(gridColumn);
    if (index < 0)
        return refuse("has no column " + std::to_string(column) + ": it has " + std::to_string(GetColCount()) + " columns, from 0");
    if (GetColInfo(index).hidden)
        return refuse("does not show its " + userName(gridRow, index));
    if (IsRowHidden(gridRow))
        return refuse("does not show its row " + std::to_string(row));
    return {};
}

Taken CTBBrowserWnd::toRows(const std::vector<int>& rows, CArray<int>& gridRows) const
{
    std::vector<bool> seen(static_cast<std::size_t>(GetDataRowCount()), false);
    for (const int row : rows) {
        const int gridRow = row == append ? -1 : toRow(row);
        if (gridRow < 0)
            return refuse("has no row " + std::to_string(row) + ": it has " + std::to_string(GetDataRowCount()) + " rows, from 0");
        if (!seen[static_cast<std::size_t>(row)])
            gridRows.push_back(gridRow);
        seen[static_cast<std::size_t>(row)] = true;
    }
    return {};
}

Taken CTBBrowserWnd::editable(int row, int column) const
{
    if (Taken free = changeable(); !free)
        return free;
    const int index = GetColIndex(column);
    if (!IsValidCell(row, column))
        return refuse("has " + userName(row, index) + " disabled");
    if (!IsCellEditable(row, index))
        return refuse("has " + userName(row, index) + " for reading only");
    return {};
}

Taken CTBBrowserWnd::offers(int row, int index, const CString& text) const
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

Taken CTBBrowserWnd::typeCell(int row, int column, const CString& text)
{
    const zel::UserAction action;
    int gridRow = 0;
    int gridColumn = 0;
    if (Taken there = focusCell(row, column, gridRow, gridColumn); !there)
        return there;
    if (Taken free = editable(gridRow, gridColumn); !free)
        return free;
    if (Taken offered = offers(gridRow, GetColIndex(gridColumn), text); !offered)
        return offered;
    if (openAt(gridRow, gridColumn)) {
        m_edit->cell = text;
        m_edit->cellTyped = true;
        closeCell();
    }
    tellCurrentRow();
    return {};
}

bool CTBBrowserWnd::openAt(int row, int column)
{
    if (!goTo(row, column))
        return false;
    selectByUser({});
    openEdit(GetCurrentRow());
    if (!m_edit->open) {
        m_edit->open = true;
        m_edit->index = GetColIndex(column);
        m_edit->cell = m_edit->texts[static_cast<std::size_t>(m_edit->index)];
        m_edit->cellTyped = false;
        repaint();
    }
    return true;
}

Taken CTBBrowserWnd::openCell(int row, int column)
{
    const zel::UserAction action;
    int gridRow = 0;
    int gridColumn = 0;
    if (Taken there = focusCell(row, column, gridRow, gridColumn); !there)
        return there;
    if (Taken free = editable(gridRow, gridColumn); !free)
        return free;
    openAt(gridRow, gridColumn);
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::typeText(const CString& text)
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (GetOpenCell() < 0)
        return refuse("has no open cell to type into");
    if (Taken offered = offers(editedRow(), m_edit->index, text); !offered)
        return offered;
    m_edit->cell = text;
    m_edit->cellTyped = true;
    repaint();
    return {};
}

Taken CTBBrowserWnd::leaveCell()
{
    const zel::UserAction action;
    if (Taken reached = reach(); !reached)
        return reached;
    closeCell();
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::leaveRow()
{
    const zel::UserAction action;
    if (Taken reached = reach(); !reached)
        return reached;
    closeRow();
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::escape()
{
    const zel::UserAction action;
    if (Taken reached = reach(); !reached)
        return reached;
    if (GetOpenCell() >= 0)
        cancelCell();
    else
        cancelRow();
    return {};
}

Taken CTBBrowserWnd::clickCell(int row, int column)
{
    const zel::UserAction action;
    int gridRow = 0;
    int gridColumn = 0;
    if (Taken there = focusCell(row, column, gridRow, gridColumn); !there)
        return there;
    if (GetColInfo(GetColIndex(gridColumn)).frozen) {
        if (!goToRow(gridRow))
            return {};
        selectByUser(IsDataRow(GetCurrentRow()) ? CArray<int>{GetCurrentRow()} : CArray<int>{});
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
}

Taken CTBBrowserWnd::doubleClickCell(int row, int column)
{
    const zel::UserAction action;
    if (Taken clicked = clickCell(row, column); !clicked)
        return clicked;
    OnDoubleClickCell(GetCurrentRow(), column + 1);
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::rightDoubleClickCell(int row, int column)
{
    const zel::UserAction action;
    if (Taken clicked = clickCell(row, column); !clicked)
        return clicked;
    OnRightDoubleClickCell(GetCurrentRow(), column + 1);
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::doubleClick(int row)
{
    int current = 0;
    int column = 0;
    GetCurrentCell(current, column);
    for (int candidate = 1; !IsValidCell(toRow(row), column) && candidate <= GetColCount(); ++candidate)
        column = candidate;
    return doubleClickCell(row, column - 1);
}

Taken CTBBrowserWnd::pressCell(int row, int column)
{
    const zel::UserAction action;
    if (Taken clicked = clickCell(row, column); !clicked)
        return clicked;
    const int index = GetColIndex(column + 1);
    if (GetCellKind(GetCurrentRow(), index) != zel::GridKind::button)
        return refuse("has no button in " + userName(GetCurrentRow(), index));
    OnButtonCell(GetCurrentRow(), index);
    return {};
}

void CTBBrowserWnd::selectByUser(const CArray<int>& rows)
{
    if (rows.empty() && GetSelectedRows().empty())
        return;
    SelectRows(rows);
    const CArray<int> selected = GetSelectedRows();
    OnChangedSelectionPublic(selected, static_cast<int>(selected.size()));
}

Taken CTBBrowserWnd::select(const std::vector<int>& rows)
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    CArray<int> gridRows;
    if (Taken there = toRows(rows, gridRows); !there)
        return there;
    if (!gridRows.empty()) {
        bool gone = false;
        following(gridRows, [&] { gone = goToRow(gridRows.back()); });
        if (!gone)
            return {};
    }
    SelectRows(gridRows);
    const CArray<int> selected = GetSelectedRows();
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
    CArray<int> gridRows;
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
        for (const int row : gridRows)
            DeleteRecord(row);
    }
    if (deleted && selected && GetSelectedRows().empty())
        OnChangedSelectionPublic({}, 0);
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::dropText(int row, int column, const CString& text)
{
    const zel::UserAction action;
    int gridRow = 0;
    int gridColumn = 0;
    if (Taken there = focusCell(row, column, gridRow, gridColumn); !there)
        return there;
    if (Taken free = changeable(); !free)
        return free;
    m_warning.clear();
    const bool taken = OnDropText(gridRow, gridColumn, text);
    if (!m_warning.empty())
        showWarning();
    else if (!taken)
        return refuse("has no use for what was dropped");
    tellCurrentRow();
    return {};
}

Taken CTBBrowserWnd::resizeColumn(int column, int width)
{
    if (Taken reached = reach(); !reached)
        return reached;
    const int index = GetColIndex(column + 1);
    if (index < 0)
        return refuse("has no column " + std::to_string(column) + ": it has " + std::to_string(GetColCount()) + " columns, from 0");
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
        if (!m_edit)
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
