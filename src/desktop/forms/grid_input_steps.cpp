#include "desktop/forms/grid_editor.h"
#include "desktop/forms/grid_input.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/text.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>
#include <numeric>

namespace zel::desktop {

// Keys. In an open cell its field has the keys, and passes on those that leave it.

bool GridInput::key(QKeyEvent& event)
{
    if (!m_view.isInput())
        return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pressKey(UserKey::enter);
        return true;
    case Qt::Key_Escape:
        escape();
        return true;
    case Qt::Key_Tab:
        tab();
        return true;
    case Qt::Key_Backtab:
        backTab();
        return true;
    default:
        return command(event) || moveKey(event) || typeKey(event);
    }
}

bool GridInput::command(const QKeyEvent& event)
{
    const CTBBrowserWnd& grid = m_view.grid();
    if (event.matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    if (event.matches(QKeySequence::Paste)) {
        paste();
        return true;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        std::vector<int> all;
        for (Row row = Row::of(grid.GetDataRowCount()); row >= 1; --row) {
            if (!grid.IsRowHidden(row))
                all.push_back(GridModel::modelRow(row));
        }
        select(all);
        return true;
    }
    const bool isUpDown = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (isUpDown && modifiers == Qt::AltModifier && event.key() == Qt::Key_Down && isEditable(current()) && !m_view.model().choices(current()).empty()) {
        dropDown();
        return true;
    }
    if (isUpDown && (modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier)) {
        moveRows(event.key() == Qt::Key_Up ? -1 : 1);
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    if (event.key() == Qt::Key_Delete) {
        if (!grid.GetSelectedRows().empty())
            removeRows();
        else
            clear();
        return true;
    }
    if (event.key() == Qt::Key_F2) {
        if (isEditable(current()))
            (void)open();
        return true;
    }
    if (event.key() == Qt::Key_F4 && isEditable(current()) && !m_view.model().choices(current()).empty()) {
        dropDown();
        return true;
    }
    return false;
}

bool GridInput::moveKey(const QKeyEvent& event)
{
    const CTBBrowserWnd& grid = m_view.grid();
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    const int page = std::max(1, m_view.table().viewport()->height() / m_view.table().verticalHeader()->defaultSectionSize() - 1);
    const int key = event.key();
    const int rows = key == Qt::Key_Up ? -1 : key == Qt::Key_Down ? 1 : key == Qt::Key_PageUp ? -page : key == Qt::Key_PageDown ? page : 0;
    if (rows != 0 && shift) {
        const CArray<Row>& selected = grid.GetSelectedRows();
        m_rows.extendTo(GridModel::modelRow(selected.empty() ? grid.GetCurrentRow() : selected.back() + rows));
        return true;
    }
    Row row;
    ColumnPlace column;
    (void)grid.GetCurrentCell(row, column);
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        step(rows, 0);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        step(0, key == Qt::Key_Left ? -1 : 1);
        return true;
    case Qt::Key_Home:
        goTo(control ? Row{1} : std::max(row, Row{1}), 1, control ? 1 : 0, 1);
        return true;
    case Qt::Key_End:
        goTo(control ? Row::of(grid.GetRowCount()) : std::max(row, Row{1}), ColumnPlace::of(grid.GetColCount()), control ? -1 : 0, -1);
        return true;
    default:
        return false;
    }
}

bool GridInput::typeKey(const QKeyEvent& event)
{
    const QModelIndex cell = current();
    if (!isEditable(cell))
        return false;
    if (m_view.model().kind(cell) == GridKind::check) {
        if (event.key() != Qt::Key_Space)
            return false;
        toggle(cell);
        return true;
    }
    const QString text = event.text();
    const bool isText = !text.isEmpty() && text.at(0).isPrint() && (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (!isText && event.key() != Qt::Key_Backspace)
        return false;
    const bool offersOnly = !m_view.model().choices(cell).empty() && m_view.grid().GetColInfo(m_view.model().columnIndex(cell.column())).choicesOnly;
    if (!open())
        return true;
    if (offersOnly) {
        QKeyEvent again(event.type(), event.key(), event.modifiers(), text);
        QCoreApplication::sendEvent(m_view.editor().field(), &again);  // the list finds the entry that begins so
    } else {
        (void)m_view.type(isText ? text : QString());
    }
    return true;
}

/// A text that an input method composes begins like any other: by opening the cell.
void GridInput::compose(QInputMethodEvent& event)
{
    if (!m_view.isInput() || !isEditable(current()) || !m_view.model().choices(current()).empty() || m_view.model().kind(current()) == GridKind::check)
        return;
    if (!open() || !m_view.type(QString()))
        return;
    if (QWidget* field = m_view.editor().field())
        QCoreApplication::sendEvent(field, &event);
}

void GridInput::pressKey(UserKey key)
{
    m_wholeRow = false;
    (void)m_view.act({.verb = Verb::key, .key = key});
}

void GridInput::escape()
{
    if (m_rows.isDragging()) {
        m_rows.reset();
        return;
    }
    if (m_view.grid().IsEdit())
        (void)m_view.act({Verb::escape});
    else
        pressKey(UserKey::escape);
}

/// Behind the last cell the keyboard goes on to the next control.
void GridInput::tab()
{
    Row row;
    ColumnPlace column;
    CTBBrowserWnd& grid = m_view.grid();
    const bool hadCurrent = grid.GetCurrentCell(row, column) != 0;
    const bool wasEdited = grid.IsEdit();
    m_wholeRow = false;
    if (!m_view.act({.verb = Verb::key, .key = UserKey::tab}))
        return;
    Row rowNow;
    ColumnPlace columnNow;
    const bool stays = hadCurrent && grid.GetCurrentCell(rowNow, columnNow) != 0 && rowNow == row && columnNow == column;
    if (stays && !wasEdited && !grid.IsEdit() && !m_view.isWarned())
        m_view.table().leaveTo(true);
}

void GridInput::backTab()
{
    Row row;
    ColumnPlace column;
    const CTBBrowserWnd& grid = m_view.grid();
    if (grid.GetCurrentCell(row, column) != 0) {
        for (; row >= 1; --row, column = ColumnPlace::of(grid.GetColCount() + 1)) {
            while (--column >= 1) {
                if (canStandAt(row, column)) {
                    click(row, column);
                    return;
                }
            }
        }
    }
    m_view.table().leaveTo(false);
}

// The current cell

/// Clicks into frozen columns select rows, so that the keys go past them.
bool GridInput::canStandAt(Row row, ColumnPlace column) const
{
    const CTBBrowserWnd& grid = m_view.grid();
    return grid.IsValidCell(row, column) && !grid.GetColInfo(grid.GetColIndex(column)).frozen;
}

void GridInput::click(Row row, ColumnPlace column)
{
    m_wholeRow = false;
    const UserRow userRow = m_view.grid().toUserRow(row);
    (void)m_view.act({.verb = Verb::current, .row = userRow, .column = CTBGrid::toUserColumn(column)});
}

/// The first cell from there on, in steps, that can be current.
void GridInput::goTo(Row row, ColumnPlace column, int rowStep, int columnStep)
{
    const CTBBrowserWnd& grid = m_view.grid();
    for (; row >= 1 && row <= grid.GetRowCount(); row = row + rowStep) {
        for (ColumnPlace each = column; each >= 1 && each <= grid.GetColCount(); each = each + columnStep) {
            if (canStandAt(row, each)) {
                click(row, each);
                return;
            }
            if (columnStep == 0)
                break;
        }
        if (rowStep == 0)
            break;
    }
}

void GridInput::step(int rows, int columns)
{
    const CTBBrowserWnd& grid = m_view.grid();
    Row row;
    ColumnPlace column;
    if (grid.GetCurrentCell(row, column) == 0) {
        goTo(1, 1, 1, 1);
    } else if (columns != 0) {
        goTo(row, column + columns, 0, columns);
    } else {
        // A page beyond the end stops at the last row that takes the current cell.
        const Row target = std::clamp(row + rows, Row{1}, Row::of(grid.GetRowCount()));
        const int back = rows < 0 ? 1 : -1;
        for (Row each = target; each >= 1 && each <= grid.GetRowCount(); each = each - back) {
            if (canStandAt(each, column)) {
                click(each, column);
                return;
            }
        }
        for (Row each = target; each != row; each = each + back) {
            if (canStandAt(each, column)) {
                click(each, column);
                return;
            }
        }
        if (!canStandAt(row, column) && grid.IsDataRow(target))
            select({GridModel::modelRow(target)});  // rows of which no cell can be current are gone through as a whole
    }
}

bool GridInput::open()
{
    const QModelIndex cell = current();
    const UserRow row = m_view.model().userRow(cell.row());
    m_wholeRow = false;
    return m_view.act([&] { return m_view.user().openCell(m_view.grid(), row, cell.column()); }) && m_view.editor().field() != nullptr;
}

void GridInput::dropDown()
{
    if (open())
        m_view.editor().dropDown();
}

void GridInput::leaveCell()
{
    if (m_view.isInput())
        (void)m_view.act([&] { return m_view.user().leaveCell(m_view.grid()); });
}

void GridInput::focusCell()
{
    if (m_view.isInput() && !m_view.grid().HasFocus())
        (void)m_view.act([&] { return m_view.user().focus(m_view.grid()); });
}

void GridInput::toggle(const QModelIndex& cell)
{
    const CString text = cell.data(Qt::EditRole).toString() == QLatin1String("1") ? "0" : "1";
    const UserRow row = m_view.model().userRow(cell.row());
    (void)m_view.act({.verb = Verb::cell, .row = row, .column = cell.column(), .text = text});
}

void GridInput::clear()
{
    const QModelIndex cell = current();
    if (!isEditable(cell) || m_view.model().kind(cell) == GridKind::check)
        return;
    const UserRow row = m_view.model().userRow(cell.row());
    (void)m_view.act({.verb = Verb::cell, .row = row, .column = cell.column(), .text = {}});
}

// Rows and columns

void GridInput::select(const std::vector<int>& rows)
{
    m_wholeRow = false;
    (void)m_view.act({.verb = Verb::select, .rows = rows});
}

/// The selected rows in the order of their selection, else the current row; as the user counts them.
std::vector<int> GridInput::chosenRows() const
{
    const CTBBrowserWnd& grid = m_view.grid();
    std::vector<int> rows;
    for (const Row row : grid.GetSelectedRows())
        rows.push_back(GridModel::modelRow(row));
    if (rows.empty() && grid.IsDataRow(grid.GetCurrentRow()))
        rows.push_back(GridModel::modelRow(grid.GetCurrentRow()));
    return rows;
}

void GridInput::removeRows()
{
    const std::vector<int> rows = chosenRows();
    if (!rows.empty() && !m_view.grid().IsModeDisplayOnly())
        (void)m_view.act({.verb = Verb::deleteRows, .rows = rows}, GridView::Refusal::shown);
}

/// What a row is known by at another place: the texts of a frozen column, a number, go with the place.
CString GridInput::identityOf(Row row) const
{
    const CTBBrowserWnd& grid = m_view.grid();
    CString identity = std::to_string(grid.GetRowKey(row));
    for (const ColumnIndex index : grid.GetAllColumns()) {
        if (!grid.GetColInfo(index).frozen)
            identity += '\t' + grid.TextBeforeEdit(row, index);
    }
    return identity;
}

/// Rows that have moved stay selected, also where the grid reads its rows anew, so that the next key moves them on.
void GridInput::moveRows(int step)
{
    CTBBrowserWndEx* grid = m_view.orderedGrid();
    const std::vector<int> rows = chosenRows();
    if (grid == nullptr || rows.empty() || !grid->isRowDrag())
        return;
    const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
    const int target = step < 0 ? *first - 1 : *last + 2;
    if (target < 0 || target > grid->GetDataRowCount())
        return;
    const int count = static_cast<int>(rows.size());
    const CString identity = identityOf(GridModel::gridRow(rows.front()));
    if (!m_view.act({.verb = Verb::dragRows, .rows = rows, .to = target}, GridView::Refusal::shown))
        return;
    std::vector<int> moved(rows.size());
    std::iota(moved.begin(), moved.end(), step < 0 ? target : target - count);
    if (identityOf(GridModel::gridRow(moved.front())) == identity && grid->GetSelectedRows().size() != moved.size())
        select(moved);
}

void GridInput::moveColumn(int column, int gap)
{
    CTBBrowserWndEx* grid = m_view.orderedGrid();
    if (m_view.isInput() && grid != nullptr && gap >= 0 && gap != column && gap != column + 1)
        (void)m_view.act([&] { return m_view.user().dragColumns(*grid, column, column, gap); }, GridView::Refusal::shown);
}

// Exchange with spreadsheets

bool GridInput::isBlock(const QString& text)
{
    const qsizetype end = text.endsWith(QLatin1String("\r\n")) ? text.size() - 2 : text.endsWith(QLatin1Char('\n')) ? text.size() - 1 : text.size();
    const QStringView inner = QStringView(text).left(end);
    return inner.contains(QLatin1Char('\t')) || inner.contains(QLatin1Char('\n'));
}

void GridInput::copy()
{
    const CTBBrowserWndEx* grid = m_view.orderedGrid();
    const CString text = grid != nullptr ? grid->copyText() : CString();
    if (!text.empty())
        QApplication::clipboard()->setText(toQt(text));
}

void GridInput::paste()
{
    pasteText(fromQt(QApplication::clipboard()->text()));
}

/// Rows that are selected as a whole are pasted over from their first cell on, as they are copied; else the block begins at the current cell.
void GridInput::pasteText(const CString& text)
{
    CTBBrowserWndEx* grid = m_view.orderedGrid();
    if (grid == nullptr || text.empty() || grid->IsModeDisplayOnly())
        return;
    Row row;
    ColumnPlace column;
    (void)grid->GetCurrentCell(row, column);
    const CArray<Row>& selected = grid->GetSelectedRows();
    if (!selected.empty())
        row = *std::min_element(selected.begin(), selected.end());
    if (row == 0)
        row = Row::of(grid->GetRowCount());
    if (column == 0 || !selected.empty() || m_wholeRow) {
        column = 1;
        while (column < grid->GetColCount() && grid->GetColInfo(grid->GetColIndex(column)).hidden)
            ++column;
    }
    (void)m_view.act({.verb = Verb::paste, .row = grid->toUserRow(row), .column = CTBGrid::toUserColumn(column), .text = text}, GridView::Refusal::shown);
}

/// Several cells don't go into one: the open cell is given up, and the block begins there.
void GridInput::pasteOverOpenCell()
{
    const CString text = fromQt(QApplication::clipboard()->text());
    if (m_view.act({Verb::escape}))
        pasteText(text);
}

}  // namespace zel::desktop
