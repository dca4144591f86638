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

int CTBGrid::AddColInfo(const CString& title, int kind, int unitType)
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
    m_order.push_back(GetColCount() - 1);
    m_rows->addColumn();
    repaint();
    return GetColCount() - 1;
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

int CTBGrid::columnOf(int index) const
{
    const auto found = std::find(m_order.begin(), m_order.end(), index);
    return found == m_order.end() ? 0 : static_cast<int>(found - m_order.begin()) + 1;
}

int CTBGrid::GetColumnNoFor(int index, int& column) const
{
    const int found = columnOf(index);
    if (found == 0)
        return 0;
    column = found;
    return 1;
}

int CTBGrid::GetColumnNoFor(const CString& title, int& column) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(), [&](const auto& each) { return each.title == title; });
    return found == m_columns.end() ? 0 : GetColumnNoFor(static_cast<int>(found - m_columns.begin()), column);
}

int CTBGrid::GetColIndex(int column) const
{
    return column >= 1 && column <= GetColCount() ? m_order[static_cast<std::size_t>(column - 1)] : -1;
}

CArray<int> CTBGrid::GetAllColumns() const
{
    CArray<int> all(m_columns.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

int CTBGrid::columnByTitle(std::string_view title) const
{
    const CString wanted = folded(title);
    const auto position = [&](auto textOf) {
        for (std::size_t place = 0; place < m_order.size(); ++place)
            if (folded(textOf(m_columns[static_cast<std::size_t>(m_order[place])])) == wanted)
                return static_cast<int>(place);
        return -1;
    };
    const int byHeader = position([](const zel::GridColumn& each) { return each.header; });
    return byHeader >= 0 ? byHeader : position([](const zel::GridColumn& each) { return each.title; });
}

void CTBGrid::SetColKind(int index, zel::GridKind kind)
{
    columnAt(index).kind = kind;
    repaint();
}

void CTBGrid::SetColWidth(int index, int width)
{
    columnAt(index).width = std::max(width, 0);
    repaint();
}

void CTBGrid::SetColHidden(int index, bool hidden)
{
    columnAt(index).hidden = hidden;
    if (hidden && m_currentIndex == index) {
        const int row = m_currentRow;
        const int column = columnOf(index);
        if (SetRightValidCell(row, column) == 0 && SetLeftValidCell(row, column) == 0)
            ResetCurrentCell();
    }
    repaint();
}

void CTBGrid::SetColAlign(int index, zel::GridAlign align)
{
    columnAt(index).align = align;
    repaint();
}

void CTBGrid::SetColNumber(int index, const zel::GridNumberStyle& number)
{
    columnAt(index).number = number;
    repaint();
}

void CTBGrid::SetColDisabled(int index, bool disabled)
{
    columnAt(index).disabled = disabled;
    repaint();
}

void CTBGrid::SetColReadOnly(int index, bool readOnly)
{
    columnAt(index).readOnly = readOnly;
    repaint();
}

void CTBGrid::SetColFrozen(int index, bool frozen)
{
    columnAt(index).frozen = frozen;
    repaint();
}

void CTBGrid::SetColResizable(int index, bool resizable)
{
    columnAt(index).resizable = resizable;
}

void CTBGrid::SetColChoices(int index, const std::vector<CString>& choices, bool only)
{
    columnAt(index).choices = choices;
    columnAt(index).choicesOnly = only;
    repaint();
}

void CTBGrid::ComposeHeader(int index, const CString& before, const CString& after, const CString& without)
{
    m_headers[static_cast<std::size_t>(index)] = {true, before, after, without};
    UpdateHeaders();
}

void CTBGrid::SetColHeader(int index, const CString& header)
{
    m_headers[static_cast<std::size_t>(index)] = {};
    columnAt(index).header = header;
    repaint();
}

void CTBGrid::SetColUnitType(int index, int unitType)
{
    columnAt(index).unitType = unitType;
    UpdateHeaders();
}

void CTBGrid::UpdateHeaders()
{
    for (int index = 0; index < GetColCount(); ++index) {
        const Header& header = m_headers[static_cast<std::size_t>(index)];
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

CString CTBGrid::GetRowHeaderText(int row) const
{
    if (IsAppendRow(row))
        return editedRow() == row ? "New Row" : "Append Row";
    return m_rowNumbers && IsDataRow(row) ? std::to_string(row) : CString{};
}

void CTBGrid::SetColHeaderShown(bool shown)
{
    m_colHeaderShown = shown;
    repaint();
}

void CTBGrid::MoveColumns(int firstColumn, int lastColumn, int targetColumn)
{
    const auto first = m_order.begin() + (std::max(firstColumn, 1) - 1);
    const auto last = m_order.begin() + std::min(lastColumn, GetColCount());
    const auto target = m_order.begin() + (std::clamp(targetColumn, 1, GetColCount() + 1) - 1);
    if (first >= last || (target >= first && target <= last))
        return;
    if (target < first)
        std::rotate(target, first, last);
    else
        std::rotate(first, last, target);
    repaint();
}
