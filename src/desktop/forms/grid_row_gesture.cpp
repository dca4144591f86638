#include "desktop/forms/grid_row_gesture.h"

#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int scrollInterval = 40;  ///< [ms]

}  // namespace

GridRowGesture::GridRowGesture(GridView& view) : m_view(view)
{
    m_scroll.setInterval(scrollInterval);
    QObject::connect(&m_scroll, &QTimer::timeout, &m_scroll, [this] { scrollOn(); });
}

void GridRowGesture::press(int row, int column, Qt::KeyboardModifiers modifiers, QPoint at)
{
    const CTBBrowserWnd& grid = m_view.grid();
    m_pressedAt = at;
    m_pressedRow = row;
    m_pressedColumn = column;
    m_state = State::idle;
    if (!grid.IsDataRow(GridModel::gridRow(row))) {
        selectOne(row, column);
        return;
    }
    const CArray<Row>& selected = grid.GetSelectedRows();
    if ((modifiers & Qt::ShiftModifier) != 0) {
        m_state = State::sweeping;
        extendTo(row);
    } else if ((modifiers & Qt::ControlModifier) != 0) {
        toggle(row);
    } else if (std::find(selected.begin(), selected.end(), GridModel::gridRow(row)) != selected.end()) {
        m_state = State::onSelected;
    } else {
        m_state = State::sweeping;
        selectOne(row, column);
    }
}

/// The row for a new entry can't be selected: it becomes current.
void GridRowGesture::selectOne(int row, int column)
{
    m_anchor = row;
    m_reached = row;
    CTBBrowserWnd& grid = m_view.grid();
    const UserRow userRow = m_view.model().userRow(row);
    for (int each = 0; column < 0 && userRow == CTBGrid::append && each < grid.GetColCount(); ++each) {
        const GridColumn& info = grid.GetColInfo(m_view.model().columnIndex(each));
        if (!info.hidden && (info.frozen || grid.IsValidCell(GridModel::gridRow(row), GridModel::gridColumn(each))))
            column = each;
    }
    if (column >= 0)
        (void)m_view.act({.verb = Verb::current, .row = userRow, .column = column});
    else if (userRow != CTBGrid::append)
        (void)m_view.act({.verb = Verb::select, .rows = {userRow.number()}});
}

void GridRowGesture::toggle(int row)
{
    m_anchor = row;
    m_reached = row;
    std::vector<int> rows;
    bool was = false;
    for (const Row each : m_view.grid().GetSelectedRows()) {
        if (GridModel::modelRow(each) == row)
            was = true;
        else
            rows.push_back(GridModel::modelRow(each));
    }
    if (!was)
        rows.push_back(row);
    (void)m_view.act({.verb = Verb::select, .rows = rows});
}

void GridRowGesture::extendTo(int row)
{
    const CTBBrowserWnd& grid = m_view.grid();
    const int last = grid.GetDataRowCount() - 1;
    if (last < 0)
        return;
    row = std::clamp(row, 0, last);
    if (m_anchor < 0 || m_anchor > last)
        m_anchor = std::clamp(GridModel::modelRow(grid.GetCurrentRow()), 0, last);
    m_reached = row;
    std::vector<int> rows;
    const int step = row < m_anchor ? -1 : 1;
    for (int each = m_anchor;; each += step) {
        if (!grid.IsRowHidden(GridModel::gridRow(each)))
            rows.push_back(each);
        if (each == row)
            break;
    }
    if (!m_view.act({.verb = Verb::select, .rows = rows}))
        return;
    m_view.table().scrollTo(m_view.model().index(row, m_view.table().columnAt(0)), QAbstractItemView::EnsureVisible);
}

int GridRowGesture::rowAt(int y) const
{
    const GridTable& table = m_view.table();
    const int row = table.rowAt(std::clamp(y, 0, table.viewport()->height() - 1));
    return row >= 0 ? row : m_view.grid().GetDataRowCount() - 1;
}

void GridRowGesture::move(QPoint at)
{
    if (m_state == State::idle)
        return;
    m_at = at;
    GridTable& table = m_view.table();
    const bool outside = at.y() < 0 || at.y() >= table.viewport()->height();
    if (!outside)
        m_scroll.stop();
    else if (!m_scroll.isActive())
        m_scroll.start();
    if (m_state == State::sweeping) {
        if (const int row = rowAt(at.y()); row != m_reached)
            extendTo(row);
        return;
    }
    if (m_state == State::onSelected && m_view.grid().isRowDrag() && m_view.orderedGrid() != nullptr &&
        (at - m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
        m_state = State::dragging;
    if (m_state != State::dragging)
        return;
    table.setCursor(Qt::ClosedHandCursor);
    GridMarks marks;
    marks.rowGap = std::min(table.rowGapAt(at.y()), m_view.grid().GetDataRowCount());
    table.setMarks(marks);
}

void GridRowGesture::scrollOn()
{
    if (!m_view.isInput() || m_state == State::idle) {
        reset();
        return;
    }
    GridTable& table = m_view.table();
    QScrollBar& bar = *table.verticalScrollBar();
    bar.setValue(bar.value() + (m_at.y() < 0 ? -1 : 1) * table.verticalHeader()->defaultSectionSize());
    move(m_at);
}

void GridRowGesture::release()
{
    const State state = m_state;
    const int gap = m_view.table().marks().rowGap;
    const int row = m_pressedRow;
    const int column = m_pressedColumn;
    reset();
    CTBBrowserWndEx* grid = m_view.orderedGrid();
    if (state == State::onSelected) {
        selectOne(row, column);
    } else if (state == State::dragging && grid != nullptr && gap >= 0) {
        std::vector<int> rows;
        for (const Row each : grid->GetSelectedRows())
            rows.push_back(GridModel::modelRow(each));
        const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
        const bool together = *last - *first + 1 == static_cast<int>(rows.size());
        if (together && gap >= *first && gap <= *last + 1)
            return;  // dropped where they were
        (void)m_view.act({.verb = Verb::dragRows, .rows = rows, .to = gap}, GridView::Refusal::shown);
    }
}

void GridRowGesture::reset()
{
    m_state = State::idle;
    m_scroll.stop();
    GridTable& table = m_view.table();
    table.unsetCursor();
    table.setMarks({});
}

}  // namespace zel::desktop
