#include "contract/forms/grid.h"

#include "contract/forms/grid_row_store.h"

#include <algorithm>

int CTBGrid::GetDataRowCount() const
{
    return m_rows->count();
}

void CTBGrid::SetAppendRow(bool there)
{
    m_appendRow = there;
    if (m_currentRow > GetRowCount())
        ResetCurrentCell();
    repaint();
}

void CTBGrid::SetRowCount(int count)
{
    const bool onAppendRow = IsAppendRow(m_currentRow);
    m_rows->reset(count, true);
    m_styles.clear();
    m_selectionStale = true;
    if (onAppendRow)
        m_currentRow = GetAppendRow();
    else if (m_currentRow > GetDataRowCount())
        m_currentRow = GetDataRowCount() > 0 ? GetDataRowCount() : GetRowCount();
    rowsReset();
    repaint();
}

template <class Change> void CTBGrid::shiftStyles(Change newRow)
{
    if (m_styles.empty())
        return;
    std::map<std::pair<int, int>, zel::GridCellStyle> shifted;
    for (auto& [place, style] : m_styles)
        if (const int row = newRow(place.first); row > 0)
            shifted.emplace(std::pair{row, place.second}, std::move(style));
    m_styles = std::move(shifted);
}

void CTBGrid::InsertRecord(int row)
{
    if (row < 1 || row > GetDataRowCount() + 1)
        return;
    const bool onAppendRow = IsAppendRow(m_currentRow);
    m_rows->insert(row - 1);
    if (onAppendRow)
        m_currentRow = GetAppendRow();
    shiftStyles([row](int old) { return old >= row ? old + 1 : old; });
    m_selectionStale = true;
    rowInserted(row);
    repaint();
}

void CTBGrid::DeleteRecord(int row)
{
    if (!IsDataRow(row))
        return;
    const bool onAppendRow = IsAppendRow(m_currentRow);
    m_rows->erase(row - 1);
    if (onAppendRow)
        m_currentRow = GetAppendRow();
    else if (m_currentRow > GetDataRowCount())
        m_currentRow = GetDataRowCount() > 0 ? GetDataRowCount() : GetRowCount();
    shiftStyles([row](int old) { return old == row ? 0 : old > row ? old - 1 : old; });
    m_selectionStale = true;
    rowDeleted(row);
    repaint();
}

void CTBGrid::MoveRecords(const CArray<int>& rows, int target)
{
    CArray<int> moved;
    std::vector<bool> seen(static_cast<std::size_t>(GetDataRowCount()), false);
    for (const int row : rows) {
        if (!IsDataRow(row) || seen[static_cast<std::size_t>(row - 1)])
            continue;
        seen[static_cast<std::size_t>(row - 1)] = true;
        moved.push_back(row - 1);
    }
    const std::vector<int> place = m_rows->move(moved, std::clamp(target, 1, GetDataRowCount() + 1) - 1);
    const auto newRow = [&](int old) { return IsDataRow(old) ? place[static_cast<std::size_t>(old - 1)] + 1 : old; };
    shiftStyles(newRow);
    m_selectionStale = true;
    m_currentRow = newRow(m_currentRow);
    rowsMoved(place);
    repaint();
}

void CTBGrid::SetRowHidden(int row, bool hidden)
{
    if (!IsDataRow(row))
        return;
    m_rows->setHidden(row - 1, hidden);
    repaint();
}

bool CTBGrid::IsRowHidden(int row) const
{
    return IsDataRow(row) && m_rows->hidden(row - 1);
}

void CTBGrid::SetRowKey(int row, std::uint32_t key)
{
    if (IsDataRow(row))
        m_rows->setKey(row - 1, key);
}

std::uint32_t CTBGrid::GetRowKey(int row) const
{
    return IsDataRow(row) ? m_rows->key(row - 1) : 0;
}

CString CTBGrid::storedText(int row, int index) const
{
    if (!IsDataRow(row) || !hasIndex(index))
        return {};
    if (!m_rows->filled(row - 1))
        const_cast<CTBGrid*>(this)->fillRow(row);  // reading a row is what fills it; nobody can see the difference
    return CString{m_rows->text(row - 1, index)};
}

CString CTBGrid::TextAt(int row, int index) const
{
    if (row == 0)
        return hasIndex(index) ? GetColInfo(index).header : CString{};
    return storedText(row, index);
}

void CTBGrid::SetTextAt(int row, int index, const CString& text)
{
    if (!IsDataRow(row) || !hasIndex(index))
        return;
    m_rows->setText(row - 1, index, text);
    repaint();
}

CArray<CString> CTBGrid::GetRowTexts(int row) const
{
    CArray<CString> texts;
    texts.reserve(m_columns.size());
    for (int index = 0; index < GetColCount(); ++index)
        texts.push_back(TextAt(row, index));
    return texts;
}

void CTBGrid::SetRowTexts(int row, const CArray<CString>& texts)
{
    if (!IsDataRow(row))
        return;
    m_rows->setTexts(row - 1, texts);
    m_rows->setFilled(row - 1, true);
    repaint();
}

CString CTBGrid::GetShownText(int row, int index) const
{
    const CString text = TextAt(row, index);
    if (row == 0 || !hasIndex(index) || text.empty())
        return text;
    const zel::GridKind kind = GetCellKind(row, index);
    if (kind != zel::GridKind::integer && kind != zel::GridKind::real)
        return text;
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return zel::gridNumberText(text, style && style->number ? *style->number : GetColInfo(index).number);
}

const zel::GridCellStyle* CTBGrid::cellStyle(int row, int index) const
{
    if (m_styles.empty())
        return nullptr;
    const auto found = m_styles.find({row, index});
    return found == m_styles.end() ? nullptr : &found->second;
}

void CTBGrid::SetCellStyle(int row, int index, const zel::GridCellStyle& style)
{
    m_styles[{row, index}] = style;
    repaint();
}

zel::GridCellStyle CTBGrid::GetCellStyle(int row, int index) const
{
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return style ? *style : zel::GridCellStyle{};
}

zel::GridKind CTBGrid::GetCellKind(int row, int index) const
{
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return style && style->kind ? *style->kind : GetColInfo(index).kind;
}

std::vector<CString> CTBGrid::GetCellChoices(int row, int index) const
{
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return style && style->choices ? *style->choices : GetColInfo(index).choices;
}

bool CTBGrid::IsValidCell(int row, int column) const
{
    const int index = GetColIndex(column);
    if (index < 0 || row < 1 || row > GetRowCount() || IsRowHidden(row) || GetColInfo(index).hidden)
        return false;
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return !(style && style->disabled ? *style->disabled : GetColInfo(index).disabled);
}

bool CTBGrid::IsCellEditable(int row, int index) const
{
    if (!hasIndex(index) || !IsValidCell(row, columnOf(index)))
        return false;
    const zel::GridKind kind = GetCellKind(row, index);
    if (kind == zel::GridKind::button || kind == zel::GridKind::heading)
        return false;
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return !(style && style->readOnly ? *style->readOnly : GetColInfo(index).readOnly);
}
