// The picture of PlanView: the objects, which are drawn once for each view of them, and above them what follows the cursor.
#include "desktop/views/plan_frame.h"
#include "desktop/views/plan_painter.h"
#include "desktop/views/plan_view.h"

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zel::desktop {

namespace {

constexpr qint64 slowPicture = 40;  // a picture that takes longer is moved as it is while the user moves it [ms]
constexpr int restBeforeRedraw = 80;

}  // namespace

/// The picture no longer shows what is to be seen.
void PlanView::changed()
{
    m_pictureStale = true;
    update();
}

void PlanView::drawPicture()
{
    QElapsedTimer time;
    time.start();
    m_picture = QPixmap(size() * devicePixelRatioF());
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&m_picture);
    painter.setFont(font());
    const PlanScene scene{m_model, m_transform, PlanColours(palette()), m_view.objectsOnly(), m_pointNumbers, lengthUnit()};
    drawPlanGround(painter, scene);
    drawGridLines(painter, scene);
    PlanPainter(painter, scene).drawObjects();
    drawPlanLegend(painter, scene);
    m_pictureTransform = m_transform;
    m_pictureStale = false;
    m_pictureTime = time.elapsed();
}

void PlanView::paintEvent(QPaintEvent* /*event*/)
{
    bringUpToDate();
    const bool sameSize = m_picture.size() == size() * devicePixelRatioF();
    const bool moved = m_pictureTransform != m_transform;
    const bool later = moved && !m_pictureStale && sameSize && m_pictureTime > slowPicture;
    if (later)
        m_redraw.start(restBeforeRedraw);
    else if (moved || m_pictureStale || !sameSize)
        drawPicture();
    QPainter painter(this);
    if (later) {
        painter.fillRect(rect(), palette().base());
        const auto place = [&](const QPointF& corner) { return m_transform.toScreen(m_pictureTransform.toWorld(corner)); };
        painter.drawPixmap(QRectF(place({}), place(QPointF(width(), height()))), m_picture, m_picture.rect());
    } else {
        painter.drawPixmap(0, 0, m_picture);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    paintOverlays(painter);
}

void PlanView::paintOverlays(QPainter& painter)
{
    paintOutline(painter);
    paintHover(painter);
    paintBand(painter);
    if (m_model.isEmpty())
        paintEmpty(painter);
    if (PlanPicking::isActive())
        paintAdvice(painter);
    if (hasFocus()) {
        painter.setPen(QPen(PlanColours::clear(palette().color(QPalette::Highlight), 0.7), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

/// What the pick field holds: the corners of an outline with their order, and the way to the cursor.
void PlanView::paintOutline(QPainter& painter)
{
    const PlanColours colours(palette());
    QPolygonF corners;
    for (const Key key : PlanPicking::keys()) {
        if (const PlanPoint* point = m_model.point(key))
            corners.append(m_transform.toScreen(point->at));
    }
    if (corners.isEmpty())
        return;
    painter.setBrush(Qt::NoBrush);
    if (PlanPicking::drawsOutline()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(PlanColours::clear(colours.picked, 0.12));
        painter.drawPolygon(corners);
        painter.setPen(QPen(colours.picked, 2));
        painter.drawPolyline(corners);
        if (underMouse()) {
            painter.setPen(QPen(colours.picked, 1.2, Qt::DashLine));
            painter.drawLine(corners.last(), m_last);
        }
    }
    painter.setPen(QPen(colours.ground, 1.5));
    painter.setBrush(colours.picked);
    for (const QPointF& corner : corners)
        painter.drawEllipse(corner, 5, 5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.picked, 1.5));
    painter.drawEllipse(corners.first(), 8, 8);
}

void PlanView::paintHover(QPainter& painter)
{
    if (!m_hover)
        return;
    const PlanColours colours(palette());
    const QColor colour = PlanPicking::isActive() ? colours.picked : colours.highlight;
    painter.setPen(QPen(PlanColours::clear(colour, 0.75), 2));
    painter.setBrush(Qt::NoBrush);
    if (m_hover->kind == PlanKind::point) {
        painter.drawEllipse(m_transform.toScreen(m_model.points()[m_hover->index].at), 7, 7);
    } else if (m_hover->kind == PlanKind::line) {
        const PlanLine& line = m_model.lines()[m_hover->index];
        painter.drawLine(m_transform.toScreen(line.from), m_transform.toScreen(line.to));
    } else {
        QPolygonF outline;
        for (const QPointF& corner : m_model.areas()[m_hover->index].outline)
            outline.append(m_transform.toScreen(corner));
        painter.drawPolygon(outline);
    }
}

void PlanView::paintBand(QPainter& painter)
{
    if (m_drag != Drag::band)
        return;
    const PlanColours colours(palette());
    const bool touching = m_last.x() < m_pressed.x();
    const QColor colour = touching ? colours.axisY : colours.highlight;
    painter.setPen(QPen(colour, 1.2, touching ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(PlanColours::clear(colour, 0.12));
    painter.drawRect(QRectF(m_pressed, m_last).normalized());
}

/// What to do next, at the top of the canvas.
void PlanView::paintAdvice(QPainter& painter)
{
    constexpr int edge = 12;
    constexpr int legendRoom = 150;  // at the right
    const PlanColours colours(palette());
    const QString text = m_note.isEmpty() ? PlanPicking::advice() : m_note + QStringLiteral("  ") + PlanPicking::advice();
    painter.setFont(font());
    const QRect room = rect().adjusted(3 * edge, 2 * edge, -std::min(width() / 3, legendRoom), 0);
    const QRect lines = painter.fontMetrics().boundingRect(room, Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, text);
    painter.setPen(QPen(colours.picked, 1.2));
    painter.setBrush(PlanColours::clear(colours.ground, 0.94));
    painter.drawRoundedRect(lines.adjusted(-edge, -edge / 2, edge, edge / 2), 5, 5);
    painter.setPen(colours.text);
    painter.drawText(lines, Qt::TextWordWrap | Qt::AlignLeft, text);
}

void PlanView::paintEmpty(QPainter& painter)
{
    const PlanColours colours(palette());
    const QRectF middle(width() * 0.12, height() / 2.0 - 60, width() * 0.76, 120);
    QFont title = font();
    title.setPointSizeF(title.pointSizeF() * 1.35);
    painter.setFont(title);
    painter.setPen(colours.ink(0.7));
    painter.drawText(middle, Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("This model has no points, lines or areas yet"));
    painter.setFont(font());
    painter.setPen(colours.ink(0.55));
    painter.drawText(middle.adjusted(0, 36, 0, 0), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     QStringLiteral("Open or import a model with the File menu to see its plan here.\n"
                                    "Load cases and combinations need no plan: double-click them in the tree."));
}

}  // namespace zel::desktop
