#include "contract/forms/list_ctrl.h"

#include "contract/forms/field_writer.h"
#include "contract/forms/row_numbers.h"

#include <algorithm>

using zel::Taken;

namespace {

const CString nothing;

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

}  // namespace

CListCtrl::CListCtrl(const zel::Place& place, std::string_view id, zel::Action<> onSelect, Selection selection)
    : CListCtrl(place, id, std::vector<Column>{}, std::move(onSelect), selection)
{
}

CListCtrl::CListCtrl(const zel::Place& place, std::string_view id, std::vector<Column> columns, zel::Action<> onSelect, Selection selection)
    : Control(place, id, {}), m_onSelect(std::move(onSelect)), m_columns(std::move(columns)), m_multiple(selection == Selection::multiple)
{
}

int CListCtrl::InsertColumn(int index, const CString& title, int width, Align align)
{
    const int place = std::clamp(index, 0, static_cast<int>(m_columns.size()));
    m_columns.insert(m_columns.begin() + place, {title, width, align, true});
    for (Row& row : m_rows) {
        if (place < static_cast<int>(row.texts.size()))
            row.texts.insert(row.texts.begin() + place, CString());
    }
    changed();
    return place;
}

int CListCtrl::AddColumn(const CString& title, int width, Align align)
{
    return InsertColumn(static_cast<int>(m_columns.size()), title, width, align);
}

void CListCtrl::SetColumnTitle(int column, const CString& title)
{
    if (column < 0 || at(column) >= m_columns.size())
        return;
    m_columns[at(column)].title = title;
    changed();
}

void CListCtrl::ShowColumn(int column, bool show)
{
    if (column < 0 || at(column) >= m_columns.size())
        return;
    m_columns[at(column)].visible = show;
    changed();
}

void CListCtrl::DeleteAllColumns()
{
    m_columns.clear();
    for (Row& row : m_rows)
        row.texts.clear();
    changed();
}

int CListCtrl::InsertItem(int row, const CString& text, std::uintptr_t data)
{
    const int place = std::clamp(row, 0, GetItemCount());
    m_rows.insert(m_rows.begin() + place, {{text}, data, false});
    if (m_focused >= place)
        ++m_focused;
    changed();
    return place;
}

int CListCtrl::DeleteItem(int row)
{
    if (!has(row))
        return 0;
    m_rows.erase(m_rows.begin() + row);
    if (m_focused == row)
        m_focused = -1;
    else if (m_focused > row)
        --m_focused;
    changed();
    return 1;
}

void CListCtrl::DeleteAllItems()
{
    m_rows.clear();
    m_focused = -1;
    m_inSight = -1;
    changed();
}

void CListCtrl::SetItemText(int row, int column, const CString& text)
{
    if (!has(row) || column < 0)
        return;
    std::vector<CString>& texts = m_rows[at(row)].texts;
    if (texts.size() <= at(column))
        texts.resize(at(column) + 1);
    texts[at(column)] = text;
    changed();
}

void CListCtrl::SetItemTexts(int row, const std::vector<CString>& texts)
{
    if (!has(row))
        return;
    m_rows[at(row)].texts = texts;
    changed();
}

const CString& CListCtrl::GetItemText(int row, int column) const
{
    const bool there = has(row) && column >= 0 && at(column) < m_rows[at(row)].texts.size();
    return there ? m_rows[at(row)].texts[at(column)] : nothing;
}

void CListCtrl::SetItemData(int row, std::uintptr_t data)
{
    if (has(row))
        m_rows[at(row)].data = data;
}

std::uintptr_t CListCtrl::GetItemData(int row) const
{
    return has(row) ? m_rows[at(row)].data : 0;
}

int CListCtrl::FindData(std::uintptr_t data) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [data](const Row& row) { return row.data == data; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void CListCtrl::SelectItem(int row, bool selected)
{
    if (!has(row))
        return;
    if (selected && !m_multiple) {
        for (Row& other : m_rows)
            other.selected = false;
    }
    m_rows[at(row)].selected = selected;
    if (selected)
        m_focused = row;
    changed();
}

void CListCtrl::SelectOnly(int row)
{
    for (Row& other : m_rows)
        other.selected = false;
    if (has(row)) {
        m_rows[at(row)].selected = true;
        m_focused = row;
        m_inSight = row;
    }
    changed();
}

int CListCtrl::GetFirstSelected() const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.selected; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

std::vector<int> CListCtrl::GetSelectedItems() const
{
    std::vector<int> rows;
    for (int row = 0; row < GetItemCount(); ++row) {
        if (IsSelected(row))
            rows.push_back(row);
    }
    return rows;
}

void CListCtrl::EnsureVisible(int row)
{
    if (!has(row))
        return;
    m_inSight = row;
    changed();
}

Taken CListCtrl::select(const std::vector<int>& rows)
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (const CString fault = zel::faultOfRows(rows, GetItemCount(), m_multiple); !fault.empty())
        return refuse(fault);
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    for (Row& row : m_rows)
        row.selected = false;
    for (const int row : rows) {
        m_rows[at(row)].selected = true;
        m_focused = row;
    }
    changed();
    fire(m_onSelect);
    return {};
}

Taken CListCtrl::doubleClick(int row)
{
    const zel::UserAction action;
    if (Taken selected = select({row}); !selected)
        return selected;
    if (reach())  // the first click may have closed the dialog
        fire(m_onDoubleClick);
    return {};
}

void CListCtrl::describe(zel::IFieldWriter& writer) const
{
    std::vector<zel::ColumnView> columns;
    for (const Column& column : m_columns)
        columns.push_back({column.title, column.width, column.visible, {}});
    std::vector<std::vector<CString>> rows;
    for (const Row& row : m_rows) {
        rows.push_back(row.texts);
        rows.back().resize(std::max(m_columns.size(), row.texts.size()));
    }
    writer.columns("columns", columns);
    writer.rows("rows", rows);
    writer.numbers("selected", GetSelectedItems());
}

int CExtListCtrl::InsertData(Key key, const std::vector<CString>& texts)
{
    if (FindKey(key) >= 0)
        return 0;
    const int row = InsertItem(placeOf(key), {}, key);
    SetItemTexts(row, texts);
    return 1;
}

int CExtListCtrl::ModifyData(Key oldKey, Key newKey, const std::vector<CString>& texts)
{
    const int row = FindKey(oldKey);
    if (row < 0 || (newKey != oldKey && FindKey(newKey) >= 0))
        return 0;
    const bool selected = IsSelected(row);
    DeleteItem(row);
    const bool ordered = m_position || m_compare;
    const int place = InsertItem(ordered ? placeOf(newKey) : row, {}, newKey);
    SetItemTexts(place, texts);
    if (selected)
        SelectItem(place);
    return 1;
}

int CExtListCtrl::DeleteData(Key key)
{
    return DeleteItem(FindKey(key));
}

std::vector<CExtListCtrl::Key> CExtListCtrl::GetSelectedKeys() const
{
    std::vector<Key> keys;
    for (const int row : GetSelectedItems())
        keys.push_back(GetKey(row));
    return keys;
}

int CExtListCtrl::placeOf(Key key) const
{
    if (m_position)
        return m_position(key);
    if (!m_compare)
        return GetItemCount();
    int row = 0;
    while (row < GetItemCount() && m_compare(key, GetKey(row)) >= 0)
        ++row;
    return row;
}
