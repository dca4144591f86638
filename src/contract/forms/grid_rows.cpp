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
        m_currentRow = Row::of(GetDataRowCount() > 0 ? GetDataRowCount() : GetRowCount());
    rowsReset();
    repaint();
}

template <class Change> void CTBGrid::shiftStyles(Change newRow)
{
    if (m_styles.empty())
        return;
    std::map<std::pair<Row, ColumnIndex>, zel::GridCellStyle> shifted;
    for (auto& [place, style] : m_styles)
        if (const Row row = newRow(place.first); row > 0)
            shifted.emplace(std::pair{row, place.second}, std::move(style));
    m_styles = std::move(shifted);
}

void CTBGrid::InsertRecord(Row row)
{
    if (row < 1 || row > GetDataRowCount() + 1)
        return;
    const bool onAppendRow = IsAppendRow(m_currentRow);
    m_rows->insert(row);
    if (onAppendRow)
        m_currentRow = GetAppendRow();
    shiftStyles([row](Row old) { return old >= row ? old + 1 : old; });
    m_selectionStale = true;
    rowInserted(row);
    repaint();
}

void CTBGrid::DeleteRecord(Row row)
{
    if (!IsDataRow(row))
        return;
    const bool onAppendRow = IsAppendRow(m_currentRow);
    m_rows->erase(row);
    if (onAppendRow)
        m_currentRow = GetAppendRow();
    else if (m_currentRow > GetDataRowCount())
        m_currentRow = Row::of(GetDataRowCount() > 0 ? GetDataRowCount() : GetRowCount());
    shiftStyles([row](Row old) { return old == row ? Row() : old > row ? old - 1 : old; });
    m_selectionStale = true;
    rowDeleted(row);
    repaint();
}

void CTBGrid::MoveRecords(const CArray<Row>& rows, Row target)
{
    CArray<Row> moved;
    std::vector<bool> seen(static_cast<std::size_t>(GetDataRowCount()), false);
    for (const Row row : rows) {
        if (!IsDataRow(row) || seen[row.place()])
            continue;
        seen[row.place()] = true;
        moved.push_back(row);
    }
    const CArray<Row> place = m_rows->move(moved, Row::of(std::clamp(target.number(), 1, GetDataRowCount() + 1)));
    const auto newRow = [&](Row old) { return IsDataRow(old) ? place[old.place()] : old; };
    shiftStyles(newRow);
    m_selectionStale = true;
    m_currentRow = newRow(m_currentRow);
    rowsMoved(place);
    repaint();
}

void CTBGrid::SetRowHidden(Row row, bool hidden)
{
    if (!IsDataRow(row))
        return;
    m_rows->setHidden(row, hidden);
    repaint();
}

bool CTBGrid::IsRowHidden(Row row) const
{
    return IsDataRow(row) && m_rows->hidden(row);
}

void CTBGrid::SetRowKey(Row row, std::uint32_t key)
{
    if (IsDataRow(row))
        m_rows->setKey(row, key);
}

std::uint32_t CTBGrid::GetRowKey(Row row) const
{
    return IsDataRow(row) ? m_rows->key(row) : 0;
}

CString CTBGrid::storedText(Row row, ColumnIndex index) const
{
    if (!IsDataRow(row) || !hasIndex(index))
        return {};
    if (!m_rows->filled(row))
        const_cast<CTBGrid*>(this)->fillRow(row);  // reading a row is what fills it; nobody can see the difference
    return CString{m_rows->text(row, index)};
}

CString CTBGrid::TextAt(Row row, ColumnIndex index) const
{
    if (row == 0)
        return hasIndex(index) ? GetColInfo(index).header : CString{};
    return storedText(row, index);
}

void CTBGrid::SetTextAt(Row row, ColumnIndex index, const CString& text)
{
    if (!IsDataRow(row) || !hasIndex(index))
        return;
    m_rows->setText(row, index, text);
    repaint();
}

CArray<CString> CTBGrid::GetRowTexts(Row row) const
{
    CArray<CString> texts;
    texts.reserve(m_columns.size());
    for (const ColumnIndex index : GetAllColumns())
        texts.push_back(TextAt(row, index));
    return texts;
}

void CTBGrid::SetRowTexts(Row row, const CArray<CString>& texts)
{
    if (!IsDataRow(row))
        return;
    m_rows->setTexts(row, texts);
    m_rows->setFilled(row, true);
    repaint();
}

CString CTBGrid::GetShownText(Row row, ColumnIndex index) const
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

const zel::GridCellStyle* CTBGrid::cellStyle(Row row, ColumnIndex index) const
{
    if (m_styles.empty())
        return nullptr;
    const auto found = m_styles.find({row, index});
    return found == m_styles.end() ? nullptr : &found->second;
}

void CTBGrid::SetCellStyle(Row row, ColumnIndex index, const zel::GridCellStyle& style)
{
    m_styles[{row, index}] = style;
    repaint();
}

zel::GridCellStyle CTBGrid::GetCellStyle(Row row, ColumnIndex index) const
{
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return style ? *style : zel::GridCellStyle{};
}

zel::GridKind CTBGrid::GetCellKind(Row row, ColumnIndex index) const
{
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return style && style->kind ? *style->kind : GetColInfo(index).kind;
}

std::vector<CString> CTBGrid::GetCellChoices(Row row, ColumnIndex index) const
{
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return style && style->choices ? *style->choices : GetColInfo(index).choices;
}

bool CTBGrid::IsValidCell(Row row, ColumnPlace column) const
{
    const ColumnIndex index = GetColIndex(column);
    if (index < 0 || row < 1 || row > GetRowCount() || IsRowHidden(row) || GetColInfo(index).hidden)
        return false;
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return !(style && style->disabled ? *style->disabled : GetColInfo(index).disabled);
}

bool CTBGrid::IsCellEditable(Row row, ColumnIndex index) const
{
    if (!hasIndex(index) || !IsValidCell(row, columnOf(index)))
        return false;
    const zel::GridKind kind = GetCellKind(row, index);
    if (kind == zel::GridKind::button || kind == zel::GridKind::heading)
        return false;
    const zel::GridCellStyle* const style = cellStyle(row, index);
    return !(style && style->readOnly ? *style->readOnly : GetColInfo(index).readOnly);
}
