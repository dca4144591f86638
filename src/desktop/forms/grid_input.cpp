#include "desktop/forms/grid_input.h"

#include "desktop/forms/grid_delegate.h"
#include "desktop/forms/grid_editor.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/text.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include <algorithm>

namespace zel::desktop {

namespace {

const QString casesType = QStringLiteral("application/x-zel-load-cases");

}  // namespace

GridInput::GridInput(GridView& view) : m_view(view), m_rows(view) {}

GridInput::~GridInput() = default;

void GridInput::reset()
{
    if (!m_view.isTableThere())
        return;
    m_rows.reset();
    m_button = QModelIndex();
    if (m_menu != nullptr)
        m_menu->close();
}

QModelIndex GridInput::current() const
{
    return m_view.table().currentIndex();
}

bool GridInput::isEditable(const QModelIndex& cell) const
{
    return m_view.model().has(cell) && m_view.model().isEditable(cell);
}

// Mouse

void GridInput::press(GridPane& pane, QMouseEvent& event)
{
    event.accept();
    if (!m_view.isInput())
        return;
    if (&pane != &m_view.table())
        m_view.table().setFocus(Qt::MouseFocusReason);
    const QPoint at = event.position().toPoint();
    const QModelIndex cell = pane.indexAt(at);
    if (event.button() != Qt::LeftButton || !m_view.isInput() || !m_view.model().has(cell))
        return;
    CTBBrowserWnd& grid = m_view.grid();
    m_wholeRow = false;
    if (grid.GetColInfo(m_view.model().columnIndex(cell.column())).frozen) {
        m_wholeRow = grid.IsAppendRow(GridModel::gridRow(cell.row()));
        m_rows.press(cell.row(), cell.column(), event.modifiers(), at);
        return;
    }
    const GridKind kind = m_view.model().kind(cell);
    const QRect place = pane.visualRect(cell);
    if (kind == GridKind::button) {
        m_button = cell;
        m_view.table().repaintCells();
    } else if (kind == GridKind::check && isEditable(cell) && GridDelegate::boxRect(place, pane).adjusted(-2, -2, 2, 2).contains(at)) {
        toggle(cell);
    } else if (cell == current() && isEditable(cell) && !m_view.model().choices(cell).empty() && at.x() > place.right() - GridDelegate::arrowWidth) {
        dropDown();
    } else {
        click(GridModel::gridRow(cell.row()), GridModel::gridColumn(cell.column()));
    }
}

void GridInput::pressRowHeader(QMouseEvent& event)
{
    event.accept();
    if (!m_view.isInput())
        return;
    m_view.table().setFocus(Qt::MouseFocusReason);
    const int row = m_view.table().rowAt(event.position().toPoint().y());
    if (event.button() != Qt::LeftButton || !m_view.isInput() || row < 0 || row >= m_view.grid().GetRowCount())
        return;
    m_wholeRow = m_view.grid().IsAppendRow(GridModel::gridRow(row));
    m_rows.press(row, -1, event.modifiers(), event.position().toPoint());
}

void GridInput::move(QMouseEvent& event)
{
    if (m_view.isInput() && (event.buttons() & Qt::LeftButton) != 0)
        m_rows.move(event.position().toPoint());
}

void GridInput::release(GridPane& pane, QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !m_view.isInput())
        return;
    const QModelIndex button = m_button;
    m_button = QModelIndex();
    if (!button.isValid()) {
        m_rows.release();
        return;
    }
    m_view.table().repaintCells();
    if (pane.indexAt(event.position().toPoint()) != button || !m_view.model().has(button))
        return;
    const UserRow row = m_view.model().userRow(button.row());
    (void)m_view.act([&] { return m_view.user().pressCell(m_view.grid(), row, button.column()); });
}

void GridInput::doubleClick(GridPane& pane, QMouseEvent& event)
{
    event.accept();
    if (!m_view.isInput())
        return;
    const QModelIndex cell = pane.indexAt(event.position().toPoint());
    if (!m_view.model().has(cell))
        return;
    const UserRow row = m_view.model().userRow(cell.row());
    const int column = cell.column();
    if (event.button() == Qt::RightButton) {
        (void)m_view.act([&] { return m_view.user().rightDoubleClickCell(m_view.grid(), row, column); });
        return;
    }
    const GridKind kind = m_view.model().kind(cell);
    if (event.button() != Qt::LeftButton || kind == GridKind::check || kind == GridKind::button) {
        press(pane, event);
        return;
    }
    if (!m_view.act([&] { return m_view.user().doubleClickCell(m_view.grid(), row, column); }))
        return;
    if (!isEditable(current()) || m_view.grid().GetColInfo(m_view.model().columnIndex(column)).frozen || current().column() != column)
        return;
    if (!m_view.model().choices(current()).empty())
        dropDown();
    else
        (void)open();
}

// Things that are dragged from elsewhere

void GridInput::dragOver(GridPane& pane, QDropEvent& event)
{
    const bool has = event.mimeData()->hasFormat(casesType) || event.mimeData()->hasText();
    if (!m_view.isInput() || m_view.grid().IsModeDisplayOnly() || !has) {
        event.ignore();
        return;
    }
    GridMarks marks;
    marks.dropCell = pane.indexAt(event.position().toPoint());
    m_view.table().setMarks(marks);
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void GridInput::dragLeft()
{
    if (m_view.isAttached())
        m_view.table().setMarks({});
}

/// What is dropped beside the cells is meant for the row behind the last one.
void GridInput::drop(GridPane& pane, QDropEvent& event)
{
    dragOver(pane, event);
    if (!event.isAccepted())
        return;
    m_view.table().setMarks({});
    CTBBrowserWnd& grid = m_view.grid();
    const QMimeData& data = *event.mimeData();
    const CString text = data.hasFormat(casesType) ? data.data(casesType).toStdString() : fromQt(data.text());
    const QModelIndex cell = pane.indexAt(event.position().toPoint());
    Row row = Row::of(grid.GetRowCount());
    ColumnPlace column = 1;
    if (m_view.model().has(cell)) {
        row = GridModel::gridRow(cell.row());
        column = GridModel::gridColumn(cell.column());
    } else {
        while (column < grid.GetColCount() && grid.GetColInfo(grid.GetColIndex(column)).hidden)
            ++column;
    }
    (void)m_view.act({.verb = Verb::drop, .row = grid.toUserRow(row), .column = CTBGrid::toUserColumn(column), .text = text}, GridView::Refusal::shown);
}

void GridInput::menu(GridPane& pane, QContextMenuEvent& event)
{
    event.accept();
    if (!m_view.isInput())
        return;
    // The menu is for the cell under the mouse, unless it is one of the rows that are selected.
    const QModelIndex cell = pane.indexAt(pane.viewport()->mapFromGlobal(event.globalPos()));
    const CArray<Row>& selected = m_view.grid().GetSelectedRows();
    const bool isSelected = std::find(selected.begin(), selected.end(), GridModel::gridRow(cell.row())) != selected.end();
    if (event.reason() == QContextMenuEvent::Mouse && m_view.model().has(cell) && !isSelected && cell != current()) {
        const UserRow row = m_view.model().userRow(cell.row());
        const std::weak_ptr<bool> life = m_view.life();
        (void)m_view.act({.verb = Verb::current, .row = row, .column = cell.column()});
        if (life.expired() || !m_view.isInput())
            return;
    }
    const CTBBrowserWnd& grid = m_view.grid();
    const bool changes = !grid.IsModeDisplayOnly();
    auto* menu = new QMenu(&m_view.table());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char* text, const QKeySequence& keys, bool enabled, auto step) {
        QAction* action = menu->addAction(QLatin1String(text));
        action->setShortcut(keys);
        action->setShortcutVisibleInContextMenu(true);
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, &m_view.table(), [this, life = std::weak_ptr<bool>(m_view.life()), step] {
            if (!life.expired() && m_view.isInput())
                step();
        });
    };
    const bool any = !chosenRows().empty();
    add("Copy", QKeySequence::Copy, current().isValid(), [this] { copy(); });
    if (changes) {
        add("Paste", QKeySequence::Paste, current().isValid() && m_view.orderedGrid() != nullptr, [this] { paste(); });
        menu->addSeparator();
        add("Delete Rows", QKeySequence::Delete, any, [this] { removeRows(); });
    }
    if (grid.isRowDrag()) {
        menu->addSeparator();
        add("Move Up", QKeySequence(Qt::CTRL | Qt::Key_Up), any, [this] { moveRows(-1); });
        add("Move Down", QKeySequence(Qt::CTRL | Qt::Key_Down), any, [this] { moveRows(1); });
    }
    m_menu = menu;
    menu->popup(event.globalPos());
}

}  // namespace zel::desktop
