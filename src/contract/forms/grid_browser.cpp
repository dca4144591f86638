#include "contract/forms/grid_browser.h"

#include "contract/format_text.h"
#include "contract/forms/expression.h"
#include "contract/forms/grid_row_edit.h"
#include "contract/forms/grid_row_store.h"
#include "contract/number_text.h"
#include "contract/user_interface.h"

#include <algorithm>

CTBBrowserWnd::CTBBrowserWnd(const zel::Place& place, std::string_view id, zel::Action<Row> onCurrentRow)
    : CTBGrid(place, id), m_onCurrentRow(std::move(onCurrentRow)), m_edit(std::make_unique<zel::RowEdit>())
{
}

CTBBrowserWnd::~CTBBrowserWnd() = default;

// What a grid of the program overrides

void CTBBrowserWnd::Initialize()
{
    const zel::GridPaintLock lock{*this};
    UpdateHeaders();
    RebuildRows();
}

int CTBBrowserWnd::GetSelectedKeys(CArray<std::uint32_t>& keys)
{
    keys.clear();
    for (const Row row : GetSelectedRows()) {
        const auto key = zel::number::read(TextBeforeEdit(row, GetKeyColID()));
        keys.push_back(key && *key >= 0.0 && *key <= 4294967295.0 ? static_cast<std::uint32_t>(*key) : GetRowKey(row));
    }
    return static_cast<int>(keys.size());
}

bool CTBBrowserWnd::AddToDB(Row /*row*/)
{
    return true;
}

bool CTBBrowserWnd::DeleteFromDB(Row /*row*/)
{
    return true;
}

bool CTBBrowserWnd::DeleteFromDB(const CArray<Row>& rows)
{
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        if (!DeleteFromDB(*row))
            return false;
    return true;
}

bool CTBBrowserWnd::ModifyToDB(Row /*row*/)
{
    return true;
}

CString CTBBrowserWnd::GetDefValue(ColumnIndex column)
{
    const CArray<CString>& values = GetDefValueArray();
    return column >= 0 && column.place() < values.size() ? values[column.place()] : CString{};
}

const CArray<CString>& CTBBrowserWnd::GetDefValueArray()
{
    static const CArray<CString> none;
    return none;
}

bool CTBBrowserWnd::ValidateField(const CString& /*text*/, ColumnIndex /*column*/)
{
    return true;
}

bool CTBBrowserWnd::ValidateRecord(const CArray<CString>& /*texts*/, const CArray<ColumnIndex>& /*columns*/)
{
    return true;
}

void CTBBrowserWnd::MakeItemFiltered(int /*count*/, const CArray<Row>& /*rows*/, const CArray<ColumnIndex>& /*columns*/) {}

void CTBBrowserWnd::MakeItemNormal(int /*count*/, const CArray<ColumnIndex>& /*columns*/) {}

void CTBBrowserWnd::MakeItemEditingRecord(Row /*row*/, const CArray<CString>& /*texts*/) {}

// Rows and cells

void CTBBrowserWnd::RebuildRows()
{
    const zel::GridPaintLock lock{*this};
    const int count = GetCountData();
    m_rebuilding = true;
    SetRowCount(count);
    if (m_onDemand)
        for (Row row = 1; row <= count; ++row)
            rows().setFilled(row, false);
    MakeItemNormal(count, GetAllColumns());
    m_rebuilding = false;
}

void CTBBrowserWnd::fillRow(Row row)
{
    fillRows(row, row);
}

void CTBBrowserWnd::fillRows(Row firstRow, Row lastRow)
{
    CArray<Row> missing;
    for (Row row = firstRow; row <= lastRow; ++row)
        if (IsDataRow(row) && !rows().filled(row))
            missing.push_back(row);
    if (missing.empty())
        return;
    for (const Row row : missing)
        rows().setFilled(row, true);
    const bool touched = m_rowsTouched;
    inSilence([&] { MakeItemFiltered(static_cast<int>(missing.size()), missing, GetAllColumns()); });
    m_rowsTouched = touched;
}

void CTBBrowserWnd::ChangeUnits()
{
    const zel::GridPaintLock lock{*this};
    UnitChanged();
    UpdateHeaders();
    if (!IsEdit())
        return;
    CArray<CString> texts = m_edit->texts();
    if (m_edit->hasOpenCell())
        texts[m_edit->openCell().place()] = m_edit->text(m_edit->openCell());
    m_convertingEdit = true;
    MakeItemEditingRecord(editedRow(), texts);
    m_convertingEdit = false;
}

CString CTBBrowserWnd::TextAt(Row row, ColumnIndex index) const
{
    if (row > 0 && row == editedRow() && hasIndex(index))
        return m_edit->text(index);
    return CTBGrid::TextAt(row, index);
}

void CTBBrowserWnd::SetTextAt(Row row, ColumnIndex index, const CString& text)
{
    if (m_convertingEdit && IsEdit() && row == editedRow() && hasIndex(index)) {
        m_edit->replaceText(index, text);
        repaint();
        return;
    }
    m_rowsTouched = true;
    CTBGrid::SetTextAt(row, index, text);
}

void CTBBrowserWnd::SetRowTexts(Row row, const CArray<CString>& texts)
{
    if (m_convertingEdit && IsEdit() && row == editedRow()) {
        for (std::size_t place = 0; place < texts.size(); ++place)
            SetTextAt(row, ColumnIndex::at(place), texts[place]);
        return;
    }
    m_rowsTouched = true;
    CTBGrid::SetRowTexts(row, texts);
}

CString CTBBrowserWnd::GetShownText(Row row, ColumnIndex index) const
{
    if (m_edit->isOpen(index) && row == editedRow())
        return m_edit->text(index);
    return CTBGrid::GetShownText(row, index);
}

bool CTBBrowserWnd::IsEdit() const
{
    return m_edit->isEditing();
}

bool CTBBrowserWnd::IsAppend() const
{
    return m_edit->isAdded();
}

bool CTBBrowserWnd::isWriting() const
{
    return m_edit->isWriting();
}

zel::ColumnIndex CTBBrowserWnd::GetOpenCell() const
{
    return m_edit->openCell();
}

zel::Row CTBBrowserWnd::editedRow() const
{
    return m_edit->isAdded() ? GetAppendRow() : m_edit->dataRow();
}

void CTBBrowserWnd::followEditedRow(Row former)
{
    if (IsEdit() && m_edit->dataRow() != former && GetCurrentRow() == former)
        followCurrent(m_edit->dataRow());
}

void CTBBrowserWnd::rowInserted(Row row)
{
    m_rowsTouched = true;
    for (Row& tracked : m_tracked)
        if (tracked >= row)
            ++tracked;
    const Row former = m_edit->dataRow();
    m_edit->rowInserted(row);
    followEditedRow(former);
}

void CTBBrowserWnd::rowDeleted(Row row)
{
    m_rowsTouched = true;
    for (Row& tracked : m_tracked)
        if (tracked > row)
            --tracked;
    const Row former = m_edit->dataRow();
    m_edit->rowDeleted(row);
    followEditedRow(former);
}

void CTBBrowserWnd::rowsReset()
{
    m_rowsTouched = true;
    m_edit->rowsReset(m_rebuilding ? GetDataRowCount() : 0);
}

void CTBBrowserWnd::rowsMoved(const CArray<Row>& place)
{
    m_rowsTouched = true;
    for (Row& tracked : m_tracked)
        if (IsDataRow(tracked))
            tracked = place[tracked.place()];
    m_edit->rowsMoved(place);
}

// Settings

void CTBBrowserWnd::SetModeDisplayOnly(int displayOnly)
{
    m_displayOnly = displayOnly != 0;
    if (m_displayOnly)
        cancelRow();
    repaint();
}

void CTBBrowserWnd::showWarning()
{
    m_shownWarning = std::exchange(m_warning, {});
    if (m_shownWarning.empty())
        return;
    if (zel::IUserInterface* host = zel::userInterface())
        host->gridWarning(*this, m_shownWarning);
}

// Numbers in cells

CString CTBBrowserWnd::ConvertFormulaToValue(const CString& text)
{
    double plain = 0.0;
    if (CStrParser::GetFloatNumber(text, plain) != 0)
        return text;
    const zel::Expression expression = zel::evaluateExpression(text);
    if (expression.fault != zel::ExpressionFault::none)
        return text;
    return zel::formatText("%.15g", expression.value);
}

bool CTBBrowserWnd::IsValidDoubleNumber(const CString& text, int& reason)
{
    reason = 0;
    if (text.find_first_not_of(" \t") == CString::npos)
        return true;
    reason = static_cast<int>(zel::evaluateExpression(text).fault);
    return reason == 0;
}

// Updates

zel::GridUpdate::GridUpdate(CTBBrowserWnd& grid) : m_grid(grid)
{
    m_grid.LockPainting();
    m_grid.GetCurrentCell(m_row, m_column);
    m_onAppendRow = m_grid.IsAppendRow(m_row);
    m_key = currentKey();
}

CString zel::GridUpdate::currentKey() const
{
    const Row row = m_grid.GetCurrentRow();
    return m_grid.IsDataRow(row) ? m_grid.TextBeforeEdit(row, m_grid.GetKeyColID()) : CString{};
}

zel::GridUpdate::~GridUpdate()
{
    if (m_row > 0 && !m_grid.IsAppend()) {
        const Row last = Row::of(m_onAppendRow || m_grid.GetDataRowCount() == 0 ? m_grid.GetRowCount() : m_grid.GetDataRowCount());
        const Row row = m_onAppendRow ? last : std::min(m_row, last);
        if (m_grid.SetCurrentCell(row, m_column) == 0 && m_grid.SetRightValidCell(row, m_column) == 0)
            m_grid.SetLeftValidCell(row, m_column);
        if (currentKey() != m_key)
            m_grid.ShowCurrentRow();
    }
    m_grid.UnlockPainting();
}
