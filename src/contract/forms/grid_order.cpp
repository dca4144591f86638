#include "contract/forms/grid_browser_ex.h"

#include "contract/number_text.h"

#include <algorithm>

using zel::Taken;

int CTBBrowserWndEx::compare(ColumnIndex index, const CString& a, const CString& b) const
{
    const zel::GridKind kind = GetColInfo(index).kind;
    if (kind == zel::GridKind::integer || kind == zel::GridKind::real) {
        const auto first = zel::number::read(a);
        const auto second = zel::number::read(b);
        if (first && second)
            return *first < *second ? -1 : *first > *second ? 1 : 0;
        if (first || second)
            return first ? -1 : 1;  // numbers stand before other texts
    }
    return a.compare(b);
}

int CTBBrowserWndEx::FindRecordByKey(const CArray<CString>& sortTexts, Row& row) const
{
    const std::size_t sorted = std::min(sortTexts.size(), m_sort.size());
    const auto compareRow = [&](Row candidate) {
        for (std::size_t i = 0; i < sorted; ++i)
            if (const int order = compare(m_sort[i], TextBeforeEdit(candidate, m_sort[i]), sortTexts[i]); order != 0)
                return order;
        return 0;
    };
    if (sorted == 0) {
        row = Row::of(GetDataRowCount() + 1);
        return 0;
    }
    Row first = 1;
    Row behind = Row::of(GetDataRowCount() + 1);
    while (first < behind) {
        const Row middle = first + (behind - first) / 2;
        if (compareRow(middle) < 0)
            first = middle + 1;
        else
            behind = middle;
    }
    row = first;
    return IsDataRow(first) && compareRow(first) == 0 ? 1 : 0;
}

CArray<CString> CTBBrowserWndEx::SortTextsOf(const CArray<CString>& texts) const
{
    CArray<CString> found;
    for (const ColumnIndex index : m_sort)
        found.push_back(index.place() < texts.size() ? texts[index.place()] : CString{});
    return found;
}

void CTBBrowserWndEx::mirrorAdded(const CArray<CString>& texts)
{
    Row row;
    FindRecordByKey(SortTextsOf(texts), row);
    InsertRecord(row);
    CTBGrid::SetRowTexts(row, texts);
}

void CTBBrowserWndEx::mirrorChanged(Row row, const CArray<CString>& texts)
{
    const CArray<CString> sortTexts = SortTextsOf(texts);
    bool stays = true;
    for (std::size_t i = 0; i < m_sort.size() && stays; ++i)
        stays = compare(m_sort[i], TextBeforeEdit(row, m_sort[i]), sortTexts[i]) == 0;
    if (stays) {
        CTBGrid::SetRowTexts(row, texts);
        return;
    }
    const std::uint32_t key = GetRowKey(row);
    DeleteRecord(row);
    Row place;
    FindRecordByKey(sortTexts, place);
    InsertRecord(place);
    SetRowKey(place, key);
    CTBGrid::SetRowTexts(place, texts);
}

bool CTBBrowserWndEx::OnSelDragRowsDrop(Row /*firstRow*/, Row /*lastRow*/, Row /*targetRow*/)
{
    return !IsEdit();
}

bool CTBBrowserWndEx::dropRows(Row firstRow, Row lastRow, Row targetRow)
{
    const bool moves = OnSelDragRowsDrop(firstRow, lastRow, targetRow);
    if (moves)
        MoveRecords(CArray<Row>{GetSelectedRows()}, targetRow);
    tellCurrentRow();
    return moves;
}

Taken CTBBrowserWndEx::dragRows(const std::vector<int>& rows, UserRow to)
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (!isRowDrag())
        return refuse("keeps its rows where they are: they can't be dragged");
    CArray<Row> gridRows;
    if (Taken there = toRows(rows, gridRows); !there)
        return there;
    if (to != append && (to < 0 || to > GetDataRowCount()))
        return refuse("has no row " + std::to_string(to.number()) + " to drop rows before: it has " + std::to_string(GetDataRowCount()) + " rows");

    if (gridRows != GetSelectedRows() && !IsEdit()) {
        if (Taken selected = select(rows); !selected)
            return selected;
    } else if (gridRows != GetSelectedRows()) {
        selectByUser(gridRows);  // a row under edit is not left by a drag: the grid may want to refuse it
    }
    const Row target = Row::of((to == append ? GetDataRowCount() : to.number()) + 1);
    const auto [first, last] = std::minmax_element(gridRows.begin(), gridRows.end());
    const bool none = gridRows.empty();
    dropRows(none ? GetCurrentRow() : *first, none ? GetCurrentRow() : *last, target);
    return {};
}

Taken CTBBrowserWndEx::moveRows(int step)
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (!isRowDrag())
        return refuse("keeps its rows where they are: they can't be moved");
    const CArray<Row> selected = GetSelectedRows();
    const Row first = selected.empty() ? GetCurrentRow() : *std::min_element(selected.begin(), selected.end());
    const Row last = selected.empty() ? GetCurrentRow() : *std::max_element(selected.begin(), selected.end());
    const Row target = step < 0 ? first - 1 : last + 2;
    dropRows(first, last, std::clamp(target, Row{1}, Row::of(GetRowCount() + 1)));
    return {};
}

Taken CTBBrowserWndEx::dragColumns(UserColumn first, UserColumn last, UserColumn to)
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (first < 0 || last < first || last >= GetColCount() || to < 0 || to > GetColCount())
        return refuse("has no such columns: it has " + std::to_string(GetColCount()) + " columns, from 0");
    if (!isColDrag() || !OnSelDragColsDrop(toColumn(first), toColumn(last), toColumn(to)))
        return refuse("keeps these columns where they are");
    MoveColumns(toColumn(first), toColumn(last), toColumn(to));
    return {};
}
