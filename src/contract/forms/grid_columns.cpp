#include "contract/forms/grid.h"

#include "contract/forms/grid_row_store.h"
#include "contract/units.h"

#include <algorithm>
#include <numeric>

namespace {

/// A title as it is compared: runs of blanks and line breaks are one blank, none at the ends.
CString folded(std::string_view title)
{
    CString text;
    for (const char character : title) {
        if (character != ' ' && character != '\n' && character != '\r' && character != '\t')
            text += character;
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
    }
    if (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

}  // namespace

CTBGrid::CTBGrid(const zel::Place& place, std::string_view id, CString label)
    : zel::Control(place, id, std::move(label)), m_rows(std::make_unique<zel::GridRowStore>())
{
}

CTBGrid::~CTBGrid() = default;

zel::ColumnIndex CTBGrid::AddColInfo(const CString& title, int kind, int unitType)
{
    zel::GridColumn added;
    added.title = title;
    added.header = title;
    added.kind = static_cast<zel::GridKind>(kind);
    added.unitType = unitType;
    const bool isNumber = added.kind == zel::GridKind::integer || added.kind == zel::GridKind::real;
    added.align = isNumber ? zel::GridAlign::right : zel::GridAlign::left;
    m_columns.push_back(std::move(added));
    m_headers.emplace_back();
    const ColumnIndex index = ColumnIndex::of(GetColCount() - 1);
    m_order.push_back(index);
    m_rows->addColumn();
    repaint();
    return index;
}

void CTBGrid::RemoveColumns()
{
    SetRowCount(0);
    ResetCurrentCell();
    m_columns.clear();
    m_headers.clear();
    m_order.clear();
    m_rows = std::make_unique<zel::GridRowStore>();
    repaint();
}

zel::ColumnPlace CTBGrid::columnOf(ColumnIndex index) const
{
    const auto found = std::find(m_order.begin(), m_order.end(), index);
    return found == m_order.end() ? ColumnPlace() : ColumnPlace::at(static_cast<std::size_t>(found - m_order.begin()));
}

int CTBGrid::GetColumnNoFor(ColumnIndex index, ColumnPlace& column) const
{
    const ColumnPlace found = columnOf(index);
    if (found == 0)
        return 0;
    column = found;
    return 1;
}

int CTBGrid::GetColumnNoFor(const CString& title, ColumnPlace& column) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(), [&](const auto& each) { return each.title == title; });
    return found == m_columns.end() ? 0 : GetColumnNoFor(ColumnIndex::at(static_cast<std::size_t>(found - m_columns.begin())), column);
}

zel::ColumnIndex CTBGrid::GetColIndex(ColumnPlace column) const
{
    return column >= 1 && column <= GetColCount() ? m_order[column.place()] : ColumnIndex{-1};
}

CArray<zel::ColumnIndex> CTBGrid::GetAllColumns() const
{
    CArray<ColumnIndex> all(m_columns.size());
    std::iota(all.begin(), all.end(), ColumnIndex{0});
    return all;
}

zel::UserColumn CTBGrid::columnByTitle(std::string_view title) const
{
    const CString wanted = folded(title);
    const auto position = [&](auto textOf) {
        for (std::size_t place = 0; place < m_order.size(); ++place)
            if (folded(textOf(GetColInfo(m_order[place]))) == wanted)
                return UserColumn::at(place);
        return UserColumn(-1);
    };
    const UserColumn byHeader = position([](const zel::GridColumn& each) { return each.header; });
    return byHeader >= 0 ? byHeader : position([](const zel::GridColumn& each) { return each.title; });
}

template <class Value> void CTBGrid::setColumn(ColumnIndex index, Value zel::GridColumn::*field, const Value& value)
{
    columnAt(index).*field = value;
    repaint();
}

void CTBGrid::SetColKind(ColumnIndex index, zel::GridKind kind)
{
    setColumn(index, &zel::GridColumn::kind, kind);
}

void CTBGrid::SetColWidth(ColumnIndex index, int width)
{
    columnAt(index).width = std::max(width, 0);
    repaint();
}

void CTBGrid::SetColHidden(ColumnIndex index, bool hidden)
{
    columnAt(index).hidden = hidden;
    if (hidden && m_currentIndex == index) {
        const Row row = m_currentRow;
        const ColumnPlace column = columnOf(index);
        if (SetRightValidCell(row, column) == 0 && SetLeftValidCell(row, column) == 0)
            ResetCurrentCell();
    }
    repaint();
}

void CTBGrid::SetColAlign(ColumnIndex index, zel::GridAlign align)
{
    setColumn(index, &zel::GridColumn::align, align);
}

void CTBGrid::SetColNumber(ColumnIndex index, const zel::GridNumberStyle& number)
{
    setColumn(index, &zel::GridColumn::number, number);
}

void CTBGrid::SetColDisabled(ColumnIndex index, bool disabled)
{
    setColumn(index, &zel::GridColumn::disabled, disabled);
}

void CTBGrid::SetColReadOnly(ColumnIndex index, bool readOnly)
{
    setColumn(index, &zel::GridColumn::readOnly, readOnly);
}

void CTBGrid::SetColFrozen(ColumnIndex index, bool frozen)
{
    setColumn(index, &zel::GridColumn::frozen, frozen);
}

void CTBGrid::SetColResizable(ColumnIndex index, bool resizable)
{
    columnAt(index).resizable = resizable;
}

void CTBGrid::SetColChoices(ColumnIndex index, const std::vector<CString>& choices, bool only)
{
    columnAt(index).choices = choices;
    columnAt(index).choicesOnly = only;
    repaint();
}

void CTBGrid::ComposeHeader(ColumnIndex index, const CString& before, const CString& after, const CString& without)
{
    m_headers[index.place()] = {true, before, after, without};
    UpdateHeaders();
}

void CTBGrid::SetColHeader(ColumnIndex index, const CString& header)
{
    m_headers[index.place()] = {};
    columnAt(index).header = header;
    repaint();
}

void CTBGrid::SetColUnitType(ColumnIndex index, int unitType)
{
    columnAt(index).unitType = unitType;
    UpdateHeaders();
}

void CTBGrid::UpdateHeaders()
{
    for (const ColumnIndex index : GetAllColumns()) {
        const Header& header = m_headers[index.place()];
        if (!header.composed)
            continue;
        zel::GridColumn& composed = columnAt(index);
        CString unit;
        CUnitCtrl::GetUnitSystem(composed.unitType, unit);
        composed.header = composed.title + (unit.empty() ? header.without : header.before + unit + header.after);
    }
    repaint();
}

void CTBGrid::SetRowHeader(bool numbered, int width)
{
    m_rowNumbers = numbered;
    m_rowHeaderWidth = std::max(width, 0);
    repaint();
}

CString CTBGrid::GetRowHeaderText(Row row) const
{
    if (IsAppendRow(row))
        return editedRow() == row ? "New Row" : "Append Row";
    return m_rowNumbers && IsDataRow(row) ? std::to_string(row.number()) : CString{};
}

void CTBGrid::SetColHeaderShown(bool shown)
{
    m_colHeaderShown = shown;
    repaint();
}

void CTBGrid::MoveColumns(ColumnPlace firstColumn, ColumnPlace lastColumn, ColumnPlace targetColumn)
{
    const auto first = m_order.begin() + (std::max(firstColumn.number(), 1) - 1);
    const auto last = m_order.begin() + std::min(lastColumn.number(), GetColCount());
    const auto target = m_order.begin() + (std::clamp(targetColumn.number(), 1, GetColCount() + 1) - 1);
    if (first >= last || (target >= first && target <= last))
        return;
    if (target < first)
        std::rotate(target, first, last);
    else
        std::rotate(first, last, target);
    repaint();
}
