#include "desktop/forms/grid_pane.h"

#include "desktop/forms/grid_delegate.h"
#include "desktop/forms/grid_headers.h"
#include "desktop/forms/grid_input.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"

#include <QKeyEvent>
#include <QPainter>

namespace zel::desktop {

namespace {

constexpr int markWidth = 3;  ///< [pixels]

}  // namespace

GridPane::GridPane(GridView& view, QWidget* parent) : QTableView(parent), m_view(&view)
{
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setAutoScroll(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setHorizontalHeader(new GridColumnHeader(*this));
}

bool GridPane::event(QEvent* event)
{
    // Tab goes from cell to cell; with Ctrl it leaves the grid.
    if (event->type() == QEvent::KeyPress && m_view != nullptr) {
        auto& key = static_cast<QKeyEvent&>(*event);
        const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
        if (isTab && (key.modifiers() & Qt::AltModifier) == 0) {
            if ((key.modifiers() & Qt::ControlModifier) != 0)
                m_view->table().leaveTo(key.key() == Qt::Key_Tab);
            else
                m_view->input().key(key);
            return true;
        }
    }
    return QTableView::event(event);
}

void GridPane::paintEvent(QPaintEvent* event)
{
    if (m_view != nullptr)
        m_view->fillVisible();
    QTableView::paintEvent(event);
    if (m_view != nullptr)
        paintMarks();
}

void GridPane::paintMarks()
{
    const GridMarks& marks = m_view->table().marks();
    QPainter painter(viewport());
    const QColor colour = palette().color(QPalette::Highlight);
    if (marks.rowGap >= 0) {
        const int y = m_view->table().rowGapPosition(marks.rowGap);
        painter.fillRect(0, std::max(0, y - markWidth / 2 - 1), viewport()->width(), markWidth, colour);
    }
    if (marks.columnGap >= 0) {
        const int last = model()->columnCount() - 1;
        const int x = marks.columnGap <= last ? columnViewportPosition(marks.columnGap) : columnViewportPosition(last) + columnWidth(last);
        painter.fillRect(std::max(0, x - markWidth / 2 - 1), 0, markWidth, viewport()->height(), colour);
    }
    if (marks.dropCell.isValid()) {
        painter.setPen(QPen(colour, markWidth));
        painter.drawRect(visualRect(marks.dropCell).adjusted(1, 1, -2, -2));
    }
}

void GridPane::mousePressEvent(QMouseEvent* event)
{
    if (m_view != nullptr)
        m_view->input().press(*this, *event);
}

void GridPane::mouseMoveEvent(QMouseEvent* event)
{
    if (m_view != nullptr)
        m_view->input().move(*event);
}

void GridPane::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_view != nullptr)
        m_view->input().release(*this, *event);
}

void GridPane::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_view != nullptr)
        m_view->input().doubleClick(*this, *event);
}

void GridPane::keyPressEvent(QKeyEvent* event)
{
    if (m_view != nullptr && m_view->input().key(*event))
        event->accept();
    else
        event->ignore();
}

void GridPane::inputMethodEvent(QInputMethodEvent* event)
{
    if (m_view != nullptr && (!event->preeditString().isEmpty() || !event->commitString().isEmpty()))
        m_view->input().compose(*event);
    else
        event->ignore();
}

void GridPane::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_view != nullptr)
        m_view->input().menu(*this, *event);
}

void GridPane::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_view != nullptr)
        m_view->input().dragOver(*this, *event);
}

void GridPane::dragMoveEvent(QDragMoveEvent* event)
{
    if (m_view != nullptr)
        m_view->input().dragOver(*this, *event);
}

void GridPane::dragLeaveEvent(QDragLeaveEvent* event)
{
    if (m_view != nullptr)
        m_view->input().dragLeft();
    event->accept();
}

void GridPane::dropEvent(QDropEvent* event)
{
    if (m_view != nullptr)
        m_view->input().drop(*this, *event);
}

}  // namespace zel::desktop
