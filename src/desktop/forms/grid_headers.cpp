#include "desktop/forms/grid_headers.h"

#include "desktop/forms/grid_input.h"
#include "desktop/forms/grid_pane.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/text.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int pencilWidth = 12;     ///< [pixels] at the left of every row header
constexpr int headerMargin = 8;     ///< [pixels] beside the text
constexpr int fewRows = 200;        ///< of so many all texts are measured, of more the widest number is the last one
constexpr double pencilTip = 0.25;  ///< of its width

}  // namespace

GridRowHeader::GridRowHeader(GridPane& pane) : QHeaderView(Qt::Vertical, &pane), m_pane(pane)
{
    setSectionsClickable(false);
    setHighlightSections(false);
    setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void GridRowHeader::follow(const CTBBrowserWnd& grid)
{
    const bool shown = grid.GetRowHeaderWidth() > 0;
    setVisible(shown);
    if (!shown)
        return;
    int widest = 0;
    const auto measure = [&](Row row) { widest = std::max(widest, fontMetrics().horizontalAdvance(toQt(grid.GetRowHeaderText(row)))); };
    const int rows = grid.GetDataRowCount();
    for (Row row = 1; row <= std::min(rows, fewRows); ++row)
        measure(row);
    measure(Row::of(rows));
    if (grid.GetAppendRow() != 0)
        measure(grid.GetAppendRow());
    const int width = std::max(grid.GetRowHeaderWidth(), widest + pencilWidth + headerMargin);
    if (minimumWidth() != width)
        setFixedWidth(width);
}

void GridRowHeader::paintSection(QPainter* painter, const QRect& rect, int row) const
{
    const GridView* view = m_pane.view();
    const bool edited = view != nullptr && view->isAttached() && view->grid().GetEditRow() == GridModel::gridRow(row);
    painter->save();  // the base leaves its clipping behind
    QHeaderView::paintSection(painter, rect, row);
    painter->restore();
    if (!edited)
        return;
    // A pencil, tip to the lower left.
    const QRectF place(rect.left() + 3, rect.center().y() - pencilWidth / 2.0 + 1, pencilWidth - 2, pencilWidth - 2);
    const double thick = place.width() * pencilTip;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(QPalette::ButtonText));
    painter->drawPolygon(QPolygonF({place.bottomLeft(),
                                    {place.left(), place.bottom() - thick},
                                    {place.right() - thick, place.top()},
                                    {place.right(), place.top() + thick},
                                    {place.left() + thick, place.bottom()}}));
    painter->restore();
}

void GridRowHeader::mousePressEvent(QMouseEvent* event)
{
    if (GridView* view = m_pane.view())
        view->input().pressRowHeader(*event);
}

void GridRowHeader::mouseMoveEvent(QMouseEvent* event)
{
    if (GridView* view = m_pane.view())
        view->input().move(*event);
}

void GridRowHeader::mouseReleaseEvent(QMouseEvent* event)
{
    if (GridView* view = m_pane.view())
        view->input().release(m_pane, *event);
}

void GridRowHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void GridRowHeader::contextMenuEvent(QContextMenuEvent* event)
{
    if (GridView* view = m_pane.view())
        view->input().menu(m_pane, *event);
}

GridColumnHeader::GridColumnHeader(GridPane& pane) : QHeaderView(Qt::Horizontal, &pane), m_pane(pane)
{
    setSectionsClickable(false);
    setHighlightSections(false);
}

/// Whether a press at x takes an edge, by which the base makes a column wider.
bool GridColumnHeader::isAtEdge(int x) const
{
    const int section = logicalIndexAt(x);
    if (section < 0)
        return false;
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    const int begin = sectionViewportPosition(section);
    const bool hasFormer = begin + offset() > 0;
    return x > begin + sectionSize(section) - grip || (hasFormer && x < begin + grip);
}

void GridColumnHeader::mousePressEvent(QMouseEvent* event)
{
    const int x = event->position().toPoint().x();
    GridView* view = m_pane.view();
    m_pressed = -1;
    if (event->button() == Qt::LeftButton && !isAtEdge(x) && view != nullptr && view->isInput() && view->grid().isColDrag()) {
        m_pressed = logicalIndexAt(x);
        m_pressedAt = event->position().toPoint();
    }
    QHeaderView::mousePressEvent(event);
}

void GridColumnHeader::mouseMoveEvent(QMouseEvent* event)
{
    GridView* view = m_pane.view();
    if (m_pressed < 0 || view == nullptr) {
        QHeaderView::mouseMoveEvent(event);
        return;
    }
    const QPoint at = event->position().toPoint();
    m_dragging = m_dragging || (at - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (!m_dragging)
        return;
    setCursor(Qt::ClosedHandCursor);
    GridMarks marks;
    marks.columnGap = view->table().columnGapAt(at.x());
    view->table().setMarks(marks);
}

void GridColumnHeader::mouseReleaseEvent(QMouseEvent* event)
{
    QHeaderView::mouseReleaseEvent(event);
    const int column = std::exchange(m_pressed, -1);
    const bool dragged = std::exchange(m_dragging, false);
    GridView* view = m_pane.view();
    if (!dragged || view == nullptr)
        return;
    unsetCursor();
    const int gap = view->table().marks().columnGap;
    view->table().setMarks({});
    view->input().moveColumn(column, gap);
}

}  // namespace zel::desktop
