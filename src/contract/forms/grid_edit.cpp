#include "contract/forms/grid_browser.h"

#include <algorithm>

// Life of a cell and of a row under edit. What the grid of the program is asked may open message boxes or change rows, so
// the edit is looked at again after each call of it.

CArray<CString> CTBBrowserWnd::newRowTexts()
{
    CArray<CString> texts;
    for (int index = 0; index < GetColCount(); ++index)
        texts.push_back(GetDefValue(index));
    if (const int key = GetKeyColID(); hasIndex(key))
        texts[static_cast<std::size_t>(key)] = GetNewKey();
    return texts;
}

CArray<CString> CTBBrowserWnd::writtenTexts(const CArray<CString>& texts) const
{
    CArray<CString> written = texts;
    for (std::size_t index = 0; index < written.size(); ++index)
        if (GetColInfo(static_cast<int>(index)).kind == zel::GridKind::real)
            written[index] = ConvertFormulaToValue(written[index]);
    return written;
}

void CTBBrowserWnd::openEdit(int row)
{
    if (m_edit)
        return;
    RowEdit edit;
    edit.added = IsAppendRow(row);
    edit.row = edit.added ? 0 : row;
    edit.texts = edit.added ? newRowTexts() : GetRowTexts(row);
    m_edit = std::move(edit);
    repaint();
}

bool CTBBrowserWnd::closeCell()
{
    if (!m_edit || !m_edit->open || m_edit->writing)
        return true;
    if (!m_edit->cellTyped) {
        cancelCell();
        return true;
    }
    const int index = m_edit->index;
    m_warning.clear();
    if (!ValidateField(CString{m_edit->cell}, index)) {
        showWarning();
        return false;
    }
    m_shownWarning.clear();
    if (!m_edit || !m_edit->open)
        return true;

    const int row = editedRow();
    m_edit->open = false;
    m_edit->texts[static_cast<std::size_t>(index)] = std::exchange(m_edit->cell, {});
    bool differs = m_edit->added;
    for (int other = 0; other < GetColCount() && !differs; ++other)
        differs = m_edit->texts[static_cast<std::size_t>(other)] != storedText(row, other);
    if (differs)
        m_edit->typed = true;
    else
        m_edit.reset();
    repaint();
    OnEndEditing(row, index);
    return !m_writeEachCell || closeRow();
}

bool CTBBrowserWnd::closeRow()
{
    if (isWriting())
        return true;
    if (!closeCell())
        return false;
    if (!m_edit)
        return true;
    if (!m_edit->typed) {
        cancelRow();
        return true;
    }
    m_warning.clear();
    if (!ValidateRecord(CArray<CString>{m_edit->texts}, GetAllColumns())) {
        showWarning();
        return false;
    }
    return !m_edit || writeRow();
}

bool CTBBrowserWnd::writeRow()
{
    const zel::GridPaintLock lock{*this};
    const bool added = m_edit->added;
    const int row = editedRow();
    const bool onAppendRow = IsAppendRow(GetCurrentRow());
    m_edit->writing = true;
    bool written = false;
    const bool mirrored = touchesRows([&] { written = added ? AddToDB(row) : ModifyToDB(row); });
    m_edit->writing = false;
    if (!written) {
        if (!added && m_edit->row == 0)
            m_edit.reset();  // the row that was refused is no longer there
        showWarning();
        repaint();
        return false;
    }
    m_shownWarning.clear();
    const CArray<CString> texts = writtenTexts(m_edit->texts);
    const int rowNow = editedRow();
    m_edit.reset();
    if (!mirrored && added)
        mirrorAdded(texts);
    else if (!mirrored)
        mirrorChanged(rowNow, texts);
    if (added && onAppendRow)
        followCurrent(GetAppendRow());
    repaint();
    return true;
}

void CTBBrowserWnd::mirrorAdded(const CArray<CString>& texts)
{
    const int row = GetDataRowCount() + 1;
    InsertRecord(row);
    CTBGrid::SetRowTexts(row, texts);
}

void CTBBrowserWnd::mirrorChanged(int row, const CArray<CString>& texts)
{
    CTBGrid::SetRowTexts(row, texts);
}

void CTBBrowserWnd::cancelCell()
{
    if (!m_edit || !m_edit->open || m_edit->writing)
        return;
    const int row = editedRow();
    const int index = m_edit->index;
    m_edit->open = false;
    m_edit->cell.clear();
    if (!m_edit->typed)
        m_edit.reset();
    m_shownWarning.clear();
    repaint();
    OnCancelEditing(row, index);
}

void CTBBrowserWnd::cancelRow()
{
    cancelCell();
    if (!m_edit || m_edit->writing)
        return;
    m_edit.reset();
    m_shownWarning.clear();
    repaint();
}

int CTBBrowserWnd::OnTerminate(int mode)
{
    if (!m_edit)
        return 1;
    if (mode == 0) {
        cancelRow();
        return 0;
    }
    const bool closed = closeRow();
    if (!closed && mode == 2)
        cancelRow();
    return closed ? 1 : 0;
}

void CTBBrowserWnd::onDestroying()
{
    OnTerminate(0);
}

// Going from cell to cell

int CTBBrowserWnd::SetCurrentCell(int row, int column)
{
    if (IsEdit() && (row != editedRow() || (m_edit->open && GetColIndex(column) != m_edit->index)))
        return 0;
    return CTBGrid::SetCurrentCell(row, column);
}

/// Closes what is open elsewhere than at the cell; `row` follows its record while rows come and go.
bool CTBBrowserWnd::leaveFor(int& row, int index)
{
    if (!IsEdit())
        return true;
    if (row == editedRow())
        return !m_edit->open || m_edit->index == index || closeCell();
    const bool toAppend = IsAppendRow(row);
    CArray<int> followed{row};
    bool closed = false;
    following(followed, [&] { closed = closeRow(); });
    row = followed.front();
    row = toAppend ? GetAppendRow() : std::clamp(row, 1, std::max(GetRowCount(), 1));
    return closed;
}

bool CTBBrowserWnd::goTo(int row, int column)
{
    if (!leaveFor(row, GetColIndex(column)))
        return false;
    if (!IsValidCell(row, column))
        return false;
    int formerRow = 0;
    int formerColumn = 0;
    GetCurrentCell(formerRow, formerColumn);
    setCurrent(row, column);
    if (row != formerRow || column != formerColumn)
        OnCurrentCellChanged(row, column);
    return true;
}

bool CTBBrowserWnd::goToRow(int row)
{
    int currentRow = 0;
    int column = 0;
    GetCurrentCell(currentRow, column);
    const auto take = [&](auto fits) {
        for (int candidate = 0; !fits(column) && candidate <= GetColCount(); ++candidate)
            column = candidate;
        return fits(column);
    };
    if (take([&](int candidate) { return IsValidCell(row, candidate); }))
        return goTo(row, column);
    if (!leaveFor(row, -1))
        return false;
    if (take([&](int candidate) { return GetColIndex(candidate) >= 0 && !GetColInfo(GetColIndex(candidate)).hidden; }))
        setCurrent(row, column);
    return true;
}

void CTBBrowserWnd::ShowCurrentRow()
{
    m_toldRow = GetCurrentRow();
    if (m_onCurrentRow)
        m_onCurrentRow(dialog(), m_toldRow);
}

void CTBBrowserWnd::tellCurrentRow()
{
    if (GetCurrentRow() != m_toldRow)
        ShowCurrentRow();
}

int CTBBrowserWnd::MakeRowCurrent(int row)
{
    if (row < 1 || row > GetRowCount() || (IsEdit() && row != editedRow()) || !goToRow(row))
        return 0;
    tellCurrentRow();
    return 1;
}

void CTBBrowserWnd::goOn()
{
    int row = 0;
    int column = 0;
    if (GetCurrentCell(row, column) == 0)
        return;
    const int rowCount = GetRowCount();
    for (int next = column + 1; next <= GetColCount(); ++next)
        if (IsValidCell(row, next)) {
            goTo(row, next);
            return;
        }
    for (int below = row + 1; below <= rowCount; ++below)
        for (int next = 1; next <= GetColCount(); ++next)
            if (IsValidCell(below, next)) {
                goTo(below, next);
                return;
            }
    if (IsAppendRow(row) && closeRow())  // from the end of a new row to the beginning of the next one
        for (int next = 1; next <= GetColCount(); ++next)
            if (IsValidCell(GetAppendRow(), next)) {
                goTo(GetAppendRow(), next);
                return;
            }
}

void CTBBrowserWnd::goDown()
{
    int row = 0;
    int column = 0;
    if (GetCurrentCell(row, column) == 0)
        return;
    for (int below = row + 1; below <= GetRowCount(); ++below)
        if (IsValidCell(below, column)) {
            goTo(below, column);
            return;
        }
    closeRow();
}
