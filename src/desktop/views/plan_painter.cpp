#include "desktop/views/plan_painter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zel::desktop {

namespace {

constexpr double roomForSymbols = 24;      // [px]
constexpr double crowded = 7;              // spacing of points below which they are dots without symbols [px]
constexpr std::size_t manyLines = 20'000;  // more are drawn without smoothing

bool overlaps(const QRectF& rectangle, double left, double right, double bottom, double top)
{
    return right >= rectangle.left() && left <= rectangle.right() && top >= rectangle.top() && bottom <= rectangle.bottom();
}

bool overlaps(const QRectF& rectangle, const QPointF& from, const QPointF& to)
{
    const auto [left, right] = std::minmax({from.x(), to.x()});
    const auto [bottom, top] = std::minmax({from.y(), to.y()});
    return overlaps(rectangle, left, right, bottom, top);
}

bool overlaps(const QRectF& rectangle, const QRectF& box)
{
    return overlaps(rectangle, box.left(), box.right(), box.top(), box.bottom());
}

bool overlaps(const QRectF& rectangle, const QPointF& place)
{
    return overlaps(rectangle, place, place);
}

}  // namespace

void drawColumnSymbol(QPainter& painter, const PlanColours& colours, const QPointF& place, double size)
{
    const QRectF box(place.x() - size / 2, place.y() - size / 2, size, size);
    painter.setPen(QPen(colours.column, 1.2));
    painter.setBrush(PlanColours::clear(colours.column, 0.35));
    painter.drawRect(box);
}

void drawPileSymbol(QPainter& painter, const PlanColours& colours, const QPointF& place, double size)
{
    const double radius = size / 2;
    painter.setPen(QPen(colours.pile, 1.2));
    painter.setBrush(PlanColours::clear(colours.pile, 0.25));
    painter.drawEllipse(place, radius, radius);
    painter.drawLine(place - QPointF(radius, 0), place + QPointF(radius, 0));
    painter.drawLine(place - QPointF(0, radius), place + QPointF(0, radius));
}

PlanPainter::PlanPainter(QPainter& painter, const PlanScene& scene) : m_painter(painter), m_scene(scene)
{
    const QRectF canvas(QPointF(), scene.transform.size());
    m_visible = scene.transform.toWorld(canvas.adjusted(-roomForSymbols, -roomForSymbols, roomForSymbols, roomForSymbols));
    measureDensity();
}

void PlanPainter::measureDensity()
{
    const auto& points = m_scene.model.points();
    const auto count = std::count_if(points.begin(), points.end(), [&](const PlanPoint& point) { return overlaps(m_visible, point.at); });
    const QRectF shown = m_visible & m_scene.model.bounds();
    const double area = std::max(1.0, shown.width() * m_scene.transform.scale()) * std::max(1.0, shown.height() * m_scene.transform.scale());
    m_spacing = std::sqrt(area / static_cast<double>(std::max<std::ptrdiff_t>(1, count)));
}

bool PlanPainter::isShown(const PlanObject& object, bool selected) const
{
    return object.selected == selected && (object.active || !m_scene.objectsOnly);
}

void PlanPainter::drawObjects()
{
    m_painter.setRenderHint(QPainter::Antialiasing, m_scene.model.lines().size() + m_scene.model.areas().size() < manyLines);
    for (const bool selected : {false, true})
        drawAreas(selected);
    for (const bool selected : {false, true})
        drawLines(selected);
    drawSupports();
    for (const bool selected : {false, true})
        drawPoints(selected);
    if (m_scene.pointNumbers)
        drawPointNumbers();
}

void PlanPainter::drawAreas(bool selected)
{
    const PlanColours& colours = m_scene.colours;
    for (const PlanArea& area : m_scene.model.areas()) {
        if (!isShown(area, selected) || !overlaps(m_visible, area.box))
            continue;
        QPolygonF outline;
        outline.reserve(area.outline.size());
        std::transform(area.outline.begin(), area.outline.end(), std::back_inserter(outline), [&](const QPointF& corner) { return at(corner); });
        const double strength = area.active ? 1.0 : 0.3;
        QBrush brush(PlanColours::clear(colours.text, (area.slab ? 0.10 : 0.045) * strength));
        if (area.opening)
            brush = QBrush(colours.ground);
        if (selected)
            brush = QBrush(PlanColours::clear(colours.highlight, 0.30));
        m_painter.setPen(selected ? QPen(colours.highlight, 2) : QPen(colours.ink(0.40 * strength), 1));
        m_painter.setBrush(brush);
        m_painter.drawPolygon(outline);
        if (area.soil && area.active) {
            m_painter.setBrush(QBrush(PlanColours::clear(colours.soil, 0.35), Qt::BDiagPattern));
            m_painter.drawPolygon(outline);
        }
        if (area.opening && outline.size() == 4) {
            m_painter.drawLine(outline[0], outline[2]);
            m_painter.drawLine(outline[1], outline[3]);
        }
    }
}

void PlanPainter::drawLines(bool selected)
{
    const PlanColours& colours = m_scene.colours;
    QList<QLineF> plain;
    QList<QLineF> beams;
    QList<QLineF> walls;
    QList<QLineF> faint;
    for (const PlanLine& line : m_scene.model.lines()) {
        if (!isShown(line, selected) || !overlaps(m_visible, line.from, line.to))
            continue;
        QList<QLineF>& list = !line.active ? faint : line.wall ? walls : line.beam ? beams : plain;
        list.append({at(line.from), at(line.to)});
    }
    const auto draw = [&](const QList<QLineF>& list, const QColor& colour, double width) {
        if (list.isEmpty())
            return;
        m_painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
        m_painter.drawLines(list);
    };
    draw(faint, selected ? PlanColours::clear(colours.highlight, 0.4) : colours.ink(0.15), 1);
    draw(plain, selected ? colours.highlight : colours.ink(0.50), selected ? 2.5 : 1);
    draw(beams, selected ? colours.highlight : colours.ink(0.72), selected ? 3.5 : 2.2);
    draw(walls, PlanColours::clear(colours.wall, 0.45), 7);
    draw(walls, selected ? colours.highlight : colours.wall, selected ? 3 : 1.5);
}

void PlanPainter::drawSupports()
{
    if (m_spacing < crowded)
        return;
    const double size = std::clamp(m_spacing * 0.4, 5.0, 12.0);
    for (const PlanPoint& point : m_scene.model.points()) {
        if (!(point.column || point.pile) || !overlaps(m_visible, point.at) || (!point.active && m_scene.objectsOnly))
            continue;
        m_painter.setOpacity(point.active ? 1.0 : 0.3);
        if (point.pile)
            drawPileSymbol(m_painter, m_scene.colours, at(point.at), size);
        if (point.column)
            drawColumnSymbol(m_painter, m_scene.colours, at(point.at), size);
    }
    m_painter.setOpacity(1);
}

void PlanPainter::drawPoints(bool selected)
{
    const PlanColours& colours = m_scene.colours;
    QList<QPointF> strong;
    QList<QPointF> faint;
    for (const PlanPoint& point : m_scene.model.points()) {
        if (isShown(point, selected) && overlaps(m_visible, point.at))
            (point.active ? strong : faint).append(at(point.at));
    }
    const bool smooth = m_painter.testRenderHint(QPainter::Antialiasing) && strong.size() + faint.size() < static_cast<qsizetype>(manyLines);
    m_painter.setRenderHint(QPainter::Antialiasing, smooth);
    const double size = std::clamp(m_spacing * 0.25, 1.5, 5.0) + (selected ? 2.5 : 0.0);
    const Qt::PenCapStyle cap = smooth ? Qt::RoundCap : Qt::SquareCap;
    const auto draw = [&](const QList<QPointF>& list, const QColor& colour, double width) {
        m_painter.setPen(QPen(colour, width, Qt::SolidLine, cap));
        m_painter.drawPoints(list.data(), static_cast<int>(list.size()));
    };
    draw(faint, selected ? PlanColours::clear(colours.highlight, 0.4) : colours.ink(0.2), size);
    if (selected && smooth)
        draw(strong, colours.ground, size + 2);
    draw(strong, selected ? colours.highlight : colours.ink(0.75), size);
}

void PlanPainter::drawPointNumbers()
{
    constexpr double roomForNumber = 34;
    if (m_spacing < roomForNumber)
        return;
    m_painter.setPen(m_scene.colours.ink(0.65));
    for (const PlanPoint& point : m_scene.model.points()) {
        if (point.active && overlaps(m_visible, point.at))
            m_painter.drawText(at(point.at) + QPointF(7, -6), QString::number(point.key));
    }
}

}  // namespace zel::desktop
