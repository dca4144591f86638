#include "contract/forms/grid_browser.h"

#include "contract/forms/grid_row_edit.h"

#include <algorithm>

// Life of a cell and of a row under edit. What the grid of the program is asked may open message boxes or change rows, so
// the edit is looked at again after each call of it.

CArray<CString> CTBBrowserWnd::newRowTexts()
{
    CArray<CString> texts;
    for (const ColumnIndex index : GetAllColumns())
        texts.push_back(GetDefValue(index));
    if (const ColumnIndex key = GetKeyColID(); hasIndex(key))
        texts[key.place()] = GetNewKey();
    return texts;
}

CArray<CString> CTBBrowserWnd::writtenTexts(const CArray<CString>& texts) const
{
    CArray<CString> written = texts;
    for (std::size_t place = 0; place < written.size(); ++place)
        if (GetColInfo(ColumnIndex::at(place)).kind == zel::GridKind::real)
            written[place] = ConvertFormulaToValue(written[place]);
    return written;
}

void CTBBrowserWnd::openEdit(Row row)
{
    if (!m_edit->isNone())
        return;
    if (IsAppendRow(row))
        m_edit->beginNew(newRowTexts());
    else
        m_edit->begin(row, GetRowTexts(row));
    repaint();
}

bool CTBBrowserWnd::closeCell()
{
    if (!m_edit->hasOpenCell())
        return true;
    if (!m_edit->isCellTyped()) {
        cancelCell();
        return true;
    }
    const ColumnIndex index = m_edit->openCell();
    m_warning.clear();
    if (!ValidateField(CString{m_edit->text(index)}, index)) {
        showWarning();
        return false;
    }
    m_shownWarning.clear();
    if (!m_edit->hasOpenCell())
        return true;

    const Row row = editedRow();
    m_edit->keepCell();
    const CArray<ColumnIndex> all = GetAllColumns();
    m_edit->settle(m_edit->isAdded() || std::any_of(all.begin(), all.end(), [&](ColumnIndex other) { return m_edit->text(other) != storedText(row, other); }));
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
    if (m_edit->isNone())
        return true;
    if (!m_edit->isTyped()) {
        cancelRow();
        return true;
    }
    m_warning.clear();
    if (!ValidateRecord(CArray<CString>{m_edit->texts()}, GetAllColumns())) {
        showWarning();
        return false;
    }
    return m_edit->isNone() || writeRow();
}

bool CTBBrowserWnd::writeRow()
{
    const zel::GridPaintLock lock{*this};
    const bool added = m_edit->isAdded();
    const Row row = editedRow();
    const bool onAppendRow = IsAppendRow(GetCurrentRow());
    m_edit->beginWriting();
    bool written = false;
    const bool mirrored = touchesRows([&] { written = added ? AddToDB(row) : ModifyToDB(row); });
    if (!written) {
        m_edit->refuseWriting();
        showWarning();
        repaint();
        return false;
    }
    m_shownWarning.clear();
    const CArray<CString> texts = writtenTexts(m_edit->texts());
    const Row rowNow = editedRow();
    m_edit->end();
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
    const Row row = Row::of(GetDataRowCount() + 1);
    InsertRecord(row);
    CTBGrid::SetRowTexts(row, texts);
}

void CTBBrowserWnd::mirrorChanged(Row row, const CArray<CString>& texts)
{
    CTBGrid::SetRowTexts(row, texts);
}

void CTBBrowserWnd::cancelCell()
{
    if (!m_edit->hasOpenCell())
        return;
    const Row row = editedRow();
    const ColumnIndex index = m_edit->openCell();
    m_edit->dropCell();
    m_shownWarning.clear();
    repaint();
    OnCancelEditing(row, index);
}

void CTBBrowserWnd::cancelRow()
{
    cancelCell();
    if (!IsEdit())
        return;
    m_edit->end();
    m_shownWarning.clear();
    repaint();
}

int CTBBrowserWnd::OnTerminate(int mode)
{
    if (m_edit->isNone())
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

int CTBBrowserWnd::SetCurrentCell(Row row, ColumnPlace column)
{
    if (IsEdit() && (row != editedRow() || (m_edit->hasOpenCell() && !m_edit->isOpen(GetColIndex(column)))))
        return 0;
    return CTBGrid::SetCurrentCell(row, column);
}

/// Closes what is open elsewhere than at the cell; `row` follows its record while rows come and go.
bool CTBBrowserWnd::leaveFor(Row& row, ColumnIndex index)
{
    if (!IsEdit())
        return true;
    if (row == editedRow())
        return !m_edit->hasOpenCell() || m_edit->isOpen(index) || closeCell();
    const bool toAppend = IsAppendRow(row);
    CArray<Row> followed{row};
    bool closed = false;
    following(followed, [&] { closed = closeRow(); });
    row = followed.front();
    row = toAppend ? GetAppendRow() : std::clamp(row, Row{1}, std::max(Row::of(GetRowCount()), Row{1}));
    return closed;
}

bool CTBBrowserWnd::goTo(Row row, ColumnPlace column)
{
    if (!leaveFor(row, GetColIndex(column)))
        return false;
    if (!IsValidCell(row, column))
        return false;
    Row formerRow;
    ColumnPlace formerColumn;
    GetCurrentCell(formerRow, formerColumn);
    setCurrent(row, column);
    if (row != formerRow || column != formerColumn)
        OnCurrentCellChanged(row, column);
    return true;
}

bool CTBBrowserWnd::goToRow(Row row)
{
    Row currentRow;
    ColumnPlace column;
    GetCurrentCell(currentRow, column);
    const auto take = [&](auto fits) {
        for (ColumnPlace candidate = 0; !fits(column) && candidate <= GetColCount(); ++candidate)
            column = candidate;
        return fits(column);
    };
    if (take([&](ColumnPlace candidate) { return IsValidCell(row, candidate); }))
        return goTo(row, column);
    if (!leaveFor(row, -1))
        return false;
    if (take([&](ColumnPlace candidate) { return GetColIndex(candidate) >= 0 && !GetColInfo(GetColIndex(candidate)).hidden; }))
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

int CTBBrowserWnd::MakeRowCurrent(Row row)
{
    if (row < 1 || row > GetRowCount() || (IsEdit() && row != editedRow()) || !goToRow(row))
        return 0;
    tellCurrentRow();
    return 1;
}

void CTBBrowserWnd::goOn()
{
    Row row;
    ColumnPlace column;
    if (GetCurrentCell(row, column) == 0)
        return;
    const int rowCount = GetRowCount();
    for (ColumnPlace next = column + 1; next <= GetColCount(); ++next)
        if (IsValidCell(row, next)) {
            goTo(row, next);
            return;
        }
    for (Row below = row + 1; below <= rowCount; ++below)
        for (ColumnPlace next = 1; next <= GetColCount(); ++next)
            if (IsValidCell(below, next)) {
                goTo(below, next);
                return;
            }
    if (IsAppendRow(row) && closeRow())  // from the end of a new row to the beginning of the next one
        for (ColumnPlace next = 1; next <= GetColCount(); ++next)
            if (IsValidCell(GetAppendRow(), next)) {
                goTo(GetAppendRow(), next);
                return;
            }
}

void CTBBrowserWnd::goDown()
{
    Row row;
    ColumnPlace column;
    if (GetCurrentCell(row, column) == 0)
        return;
    for (Row below = row + 1; below <= GetRowCount(); ++below)
        if (IsValidCell(below, column)) {
            goTo(below, column);
            return;
        }
    closeRow();
}
