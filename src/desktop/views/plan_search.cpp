#include "desktop/views/plan_search.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace zel::desktop {

namespace {

double distance(const QPointF& place, const PlanLine& line)
{
    const QPointF along = line.to - line.from;
    const QPointF offset = place - line.from;
    const double length2 = QPointF::dotProduct(along, along);
    const double part = length2 > 0 ? std::clamp(QPointF::dotProduct(offset, along) / length2, 0.0, 1.0) : 0.0;
    const QPointF foot = offset - along * part;
    return std::hypot(foot.x(), foot.y());
}

/// Closed on all sides, unlike QRectF::contains of a rectangle without width.
bool contains(const QRectF& rectangle, const QPointF& place)
{
    return place.x() >= rectangle.left() && place.x() <= rectangle.right() && place.y() >= rectangle.top() && place.y() <= rectangle.bottom();
}

/// Whether a piece of the segment is inside: it is cut at each of the four sides in turn.
bool touches(const QRectF& rectangle, const QPointF& from, const QPointF& to)
{
    double first = 0.0;
    double last = 1.0;
    const auto cut = [&](double step, double room) {
        if (step == 0)
            return room >= 0;
        const double part = room / step;
        if (step < 0)
            first = std::max(first, part);
        else
            last = std::min(last, part);
        return first <= last;
    };
    const QPointF along = to - from;
    return cut(-along.x(), from.x() - rectangle.left()) && cut(along.x(), rectangle.right() - from.x()) && cut(-along.y(), from.y() - rectangle.top()) &&
        cut(along.y(), rectangle.bottom() - from.y());
}

bool touches(const QRectF& rectangle, const PlanArea& area)
{
    const QPolygonF& outline = area.outline;
    for (qsizetype i = 0; i < outline.size(); ++i) {
        if (touches(rectangle, outline[i], outline[(i + 1) % outline.size()]))
            return true;
    }
    return outline.containsPoint(rectangle.center(), Qt::OddEvenFill);
}

bool isInside(const QRectF& rectangle, const QRectF& box)
{
    return contains(rectangle, box.topLeft()) && contains(rectangle, box.bottomRight());
}

}  // namespace

std::optional<PlanHit> objectAt(const PlanModel& model, const QPointF& place, double tolerance, const PlanKinds& kinds)
{
    std::optional<PlanHit> found;
    double best = tolerance;
    const auto nearer = [&](PlanKind kind, std::size_t index, double away) {
        if (away > best || (found && away == best))
            return;
        best = away;
        found = PlanHit{kind, index};
    };
    for (std::size_t i = 0; kinds.points && i < model.points().size(); ++i) {
        const PlanPoint& point = model.points()[i];
        const QPointF offset = point.at - place;
        if (point.active && std::abs(offset.x()) <= best && std::abs(offset.y()) <= best)
            nearer(PlanKind::point, i, std::hypot(offset.x(), offset.y()));
    }
    if (found)
        return found;
    for (std::size_t i = 0; kinds.lines && i < model.lines().size(); ++i) {
        if (model.lines()[i].active)
            nearer(PlanKind::line, i, distance(place, model.lines()[i]));
    }
    if (found)
        return found;
    best = -1;
    for (std::size_t i = 0; kinds.areas && i < model.areas().size(); ++i) {
        const PlanArea& area = model.areas()[i];
        if (!area.active || !contains(area.box, place) || !area.outline.containsPoint(place, Qt::OddEvenFill))
            continue;
        const double size = area.box.width() * area.box.height();
        if (!found || size < best) {
            best = size;
            found = PlanHit{PlanKind::area, i};
        }
    }
    return found;
}

T_SELECTION objectsIn(const PlanModel& model, const QRectF& rectangle, bool touched)
{
    T_SELECTION found;
    for (const PlanPoint& point : model.points()) {
        if (point.active && contains(rectangle, point.at))
            found.points.push_back(point.key);
    }
    for (const PlanLine& line : model.lines()) {
        const bool inside = contains(rectangle, line.from) && contains(rectangle, line.to);
        if (line.active && (inside || (touched && touches(rectangle, line.from, line.to))))
            found.lines.push_back(line.key);
    }
    for (const PlanArea& area : model.areas()) {
        if (area.active && (isInside(rectangle, area.box) || (touched && touches(rectangle, area))))
            found.areas.push_back(area.key);
    }
    return found;
}

}  // namespace zel::desktop
