#include "contract/forms/grid_browser.h"

#include "contract/forms/expression.h"
#include "contract/forms/grid_row_store.h"
#include "contract/number_text.h"
#include "contract/user_interface.h"

#include <algorithm>
#include <array>
#include <cstdio>

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
    for (const int row : GetSelectedRows()) {
        const auto key = zel::number::read(TextBeforeEdit(row, GetKeyColID()));
        keys.push_back(key && *key >= 0.0 && *key <= 4294967295.0 ? static_cast<std::uint32_t>(*key) : GetRowKey(row));
    }
    return static_cast<int>(keys.size());
}

bool CTBBrowserWnd::AddToDB(int /*row*/)
{
    return true;
}

bool CTBBrowserWnd::AddToDB(const zel::GridValues& /*keys*/, const zel::GridValues& /*records*/)
{
    return true;
}

bool CTBBrowserWnd::DeleteFromDB(int /*row*/)
{
    return true;
}

bool CTBBrowserWnd::DeleteFromDB(const CArray<int>& rows)
{
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        if (!DeleteFromDB(*row))
            return false;
    return true;
}

bool CTBBrowserWnd::ModifyToDB(int /*row*/)
{
    return true;
}

bool CTBBrowserWnd::ModifyToDB(const zel::GridValues& /*oldKeys*/, const zel::GridValues& /*keys*/, const zel::GridValues& /*records*/)
{
    return true;
}

CString CTBBrowserWnd::GetDefValue(int column)
{
    const CArray<CString>& values = GetDefValueArray();
    return column >= 0 && static_cast<std::size_t>(column) < values.size() ? values[static_cast<std::size_t>(column)] : CString{};
}

const CArray<CString>& CTBBrowserWnd::GetDefValueArray()
{
    static const CArray<CString> none;
    return none;
}

bool CTBBrowserWnd::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<int>& columns, zel::GridValues& keys, zel::GridValues& records)
{
    for (std::size_t i = 0; i < columns.size() && i < texts.size(); ++i)
        if (!ValidateField(texts[i], columns[i]))
            return false;
    if (!ValidateRecord(texts, columns))
        return false;
    const auto key = static_cast<std::size_t>(GetKeyColID());
    keys.emplace_back(key < texts.size() ? texts[key] : CString{});
    records.emplace_back(texts);
    return true;
}

void CTBBrowserWnd::DeleteKeyAndDataArray(zel::GridValues& keys, zel::GridValues& records)
{
    keys.clear();
    records.clear();
}

bool CTBBrowserWnd::ValidateField(const CString& /*text*/, int /*column*/)
{
    return true;
}

bool CTBBrowserWnd::ValidateRecord(const CArray<CString>& /*texts*/, const CArray<int>& /*columns*/)
{
    return true;
}

void CTBBrowserWnd::MakeItemFiltered(int /*count*/, const CArray<int>& /*rows*/, const CArray<int>& /*columns*/) {}

void CTBBrowserWnd::MakeItemNormal(int /*count*/, const CArray<int>& /*columns*/) {}

void CTBBrowserWnd::MakeItemEditingRecord(int /*row*/, const CArray<CString>& /*texts*/) {}

// Rows and cells

void CTBBrowserWnd::RebuildRows()
{
    const zel::GridPaintLock lock{*this};
    const int count = GetCountData();
    m_rebuilding = true;
    SetRowCount(count);
    if (m_onDemand)
        for (int row = 0; row < count; ++row)
            rows().setFilled(row, false);
    MakeItemNormal(count, GetAllColumns());
    m_rebuilding = false;
}

void CTBBrowserWnd::fillRow(int row)
{
    fillRows(row, row);
}

void CTBBrowserWnd::fillRows(int firstRow, int lastRow)
{
    CArray<int> missing;
    for (int row = firstRow; row <= lastRow; ++row)
        if (IsDataRow(row) && !rows().filled(row - 1))
            missing.push_back(row);
    if (missing.empty())
        return;
    for (const int row : missing)
        rows().setFilled(row - 1, true);
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
    CArray<CString> texts = m_edit->texts;
    if (m_edit->open)
        texts[static_cast<std::size_t>(m_edit->index)] = m_edit->cell;
    m_convertingEdit = true;
    MakeItemEditingRecord(editedRow(), texts);
    m_convertingEdit = false;
}

CString CTBBrowserWnd::TextAt(int row, int index) const
{
    if (m_edit && row > 0 && row == editedRow() && hasIndex(index))
        return m_edit->open && index == m_edit->index ? m_edit->cell : m_edit->texts[static_cast<std::size_t>(index)];
    return CTBGrid::TextAt(row, index);
}

void CTBBrowserWnd::SetTextAt(int row, int index, const CString& text)
{
    if (m_convertingEdit && m_edit && row == editedRow() && hasIndex(index)) {
        m_edit->texts[static_cast<std::size_t>(index)] = text;
        if (m_edit->open && index == m_edit->index)
            m_edit->cell = text;
        repaint();
        return;
    }
    m_rowsTouched = true;
    CTBGrid::SetTextAt(row, index, text);
}

void CTBBrowserWnd::SetRowTexts(int row, const CArray<CString>& texts)
{
    if (m_convertingEdit && m_edit && row == editedRow()) {
        for (std::size_t index = 0; index < texts.size(); ++index)
            SetTextAt(row, static_cast<int>(index), texts[index]);
        return;
    }
    m_rowsTouched = true;
    CTBGrid::SetRowTexts(row, texts);
}

CString CTBBrowserWnd::GetShownText(int row, int index) const
{
    if (m_edit && m_edit->open && index == m_edit->index && row == editedRow())
        return m_edit->cell;
    return CTBGrid::GetShownText(row, index);
}

int CTBBrowserWnd::editedRow() const
{
    if (!m_edit)
        return 0;
    return m_edit->added ? GetAppendRow() : m_edit->row;
}

void CTBBrowserWnd::rowInserted(int row)
{
    m_rowsTouched = true;
    for (int& tracked : m_tracked)
        if (tracked >= row)
            ++tracked;
    if (!m_edit)
        return;
    if (!m_edit->added && m_edit->row >= row) {
        if (!m_edit->writing && GetCurrentRow() == m_edit->row)
            followCurrent(m_edit->row + 1);
        ++m_edit->row;
    }
}

void CTBBrowserWnd::rowDeleted(int row)
{
    m_rowsTouched = true;
    for (int& tracked : m_tracked)
        if (tracked > row)
            --tracked;
    if (!m_edit || m_edit->added)
        return;
    if (m_edit->row == row) {
        if (m_edit->writing)
            m_edit->row = 0;  // the row has gone, what was typed is still being written
        else
            m_edit.reset();
    } else if (m_edit->row > row) {
        if (!m_edit->writing && GetCurrentRow() == m_edit->row)
            followCurrent(m_edit->row - 1);
        --m_edit->row;
    }
}

void CTBBrowserWnd::rowsReset()
{
    m_rowsTouched = true;
    if (!m_edit || m_edit->added)
        return;
    if (m_edit->writing)
        m_edit->row = 0;
    else if (!m_rebuilding || m_edit->row > GetDataRowCount())
        m_edit.reset();
}

void CTBBrowserWnd::rowsMoved(const std::vector<int>& place)
{
    m_rowsTouched = true;
    for (int& tracked : m_tracked)
        if (IsDataRow(tracked))
            tracked = place[static_cast<std::size_t>(tracked - 1)] + 1;
    if (m_edit && !m_edit->added && m_edit->row > 0)
        m_edit->row = place[static_cast<std::size_t>(m_edit->row - 1)] + 1;
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
    std::array<char, 32> value{};
    std::snprintf(value.data(), value.size(), "%.15g", expression.value);
    return value.data();
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
    const int row = m_grid.GetCurrentRow();
    return m_grid.IsDataRow(row) ? m_grid.TextBeforeEdit(row, m_grid.GetKeyColID()) : CString{};
}

zel::GridUpdate::~GridUpdate()
{
    if (m_row > 0 && !m_grid.IsAppend()) {
        const int last = m_onAppendRow || m_grid.GetDataRowCount() == 0 ? m_grid.GetRowCount() : m_grid.GetDataRowCount();
        const int row = m_onAppendRow ? last : std::min(m_row, last);
        if (m_grid.SetCurrentCell(row, m_column) == 0 && m_grid.SetRightValidCell(row, m_column) == 0)
            m_grid.SetLeftValidCell(row, m_column);
        if (currentKey() != m_key)
            m_grid.ShowCurrentRow();
    }
    m_grid.UnlockPainting();
}
