#include "desktop/views/plan_frame.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace zel::desktop {

namespace {

constexpr double margin = 16;  // of what stands at the edges of the canvas [px]

QFont smaller(const QPainter& painter)
{
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    return font;
}

void drawArrow(QPainter& painter, const QPointF& from, const QPointF& to)
{
    const QPointF along = (to - from) / std::hypot(to.x() - from.x(), to.y() - from.y());
    const QPointF across(-along.y(), along.x());
    painter.drawLine(from, to - along * 4);
    painter.drawPolygon(QPolygonF{to, to - along * 7 + across * 3, to - along * 7 - across * 3});
}

void drawDirections(QPainter& painter, const PlanScene& scene)
{
    constexpr double length = 34;
    const QPointF origin(margin + 4, scene.transform.size().height() - margin - 4);
    const auto axis = [&](const QPointF& direction, const QColor& colour, const QString& name, const QPointF& namePlace) {
        painter.setPen(QPen(colour, 1.5));
        painter.setBrush(colour);
        drawArrow(painter, origin, origin + direction * length);
        painter.drawText(origin + direction * length + namePlace, name);
    };
    axis({1, 0}, scene.colours.axisX, QStringLiteral("X"), {5, 4});
    axis({0, -1}, scene.colours.axisY, QStringLiteral("Y"), {-4, -5});
}

void drawScaleBar(QPainter& painter, const PlanScene& scene)
{
    constexpr double leastWidth = 70;  // [px]
    const double length = roundLength(leastWidth / scene.transform.scale());
    const double width = length * scene.transform.scale();
    const QPointF right(scene.transform.size().width() - margin, scene.transform.size().height() - margin);
    const QPointF left = right - QPointF(width, 0);
    painter.setPen(QPen(scene.colours.ink(0.8), 1.5));
    const std::array<QPointF, 4> bracket{left - QPointF(0, 6), left, right, right - QPointF(0, 6)};
    painter.drawPolyline(bracket.data(), static_cast<int>(bracket.size()));
    const QString text = QString::number(length, 'g', 6) + QLatin1Char(' ') + scene.lengthUnit;
    painter.drawText(QRectF(left.x() - 40, left.y() - 26, width + 80, 20), Qt::AlignHCenter | Qt::AlignBottom, text);
}

struct LegendLine {
    QString text;
    std::function<void(const QPointF& middle)> symbol;
};

std::vector<LegendLine> legendOf(QPainter& painter, const PlanScene& scene)
{
    constexpr double size = 10;
    const auto& points = scene.model.points();
    std::vector<LegendLine> legend;
    if (std::any_of(points.begin(), points.end(), [](const PlanPoint& point) { return point.column; }))
        legend.push_back({QStringLiteral("Column support"), [&](const QPointF& middle) { drawColumnSymbol(painter, scene.colours, middle, size); }});
    if (std::any_of(points.begin(), points.end(), [](const PlanPoint& point) { return point.pile; }))
        legend.push_back({QStringLiteral("Pile support"), [&](const QPointF& middle) { drawPileSymbol(painter, scene.colours, middle, size); }});
    if (std::any_of(scene.model.lines().begin(), scene.model.lines().end(), [](const PlanLine& line) { return line.wall; }))
        legend.push_back({QStringLiteral("Wall support"), [&](const QPointF& middle) {
                              painter.setPen(QPen(PlanColours::clear(scene.colours.wall, 0.45), 7, Qt::SolidLine, Qt::FlatCap));
                              painter.drawLine(middle - QPointF(7, 0), middle + QPointF(7, 0));
                              painter.setPen(QPen(scene.colours.wall, 1.5, Qt::SolidLine, Qt::FlatCap));
                              painter.drawLine(middle - QPointF(7, 0), middle + QPointF(7, 0));
                          }});
    if (std::any_of(scene.model.areas().begin(), scene.model.areas().end(), [](const PlanArea& area) { return area.soil; }))
        legend.push_back({QStringLiteral("Soil support"), [&](const QPointF& middle) {
                              painter.setPen(QPen(scene.colours.ink(0.4), 1));
                              painter.setBrush(QBrush(PlanColours::clear(scene.colours.soil, 0.7), Qt::BDiagPattern));
                              painter.drawRect(QRectF(middle.x() - 7, middle.y() - 5, 14, 10));
                          }});
    return legend;
}

void drawLegend(QPainter& painter, const PlanScene& scene)
{
    const std::vector<LegendLine> legend = legendOf(painter, scene);
    if (legend.empty())
        return;
    const QFontMetricsF metrics(painter.font());
    const double row = std::max(18.0, metrics.height() + 4);
    double width = 0;
    for (const LegendLine& line : legend)
        width = std::max(width, metrics.horizontalAdvance(line.text));
    const double symbolRoom = 28;
    const QRectF box(scene.transform.size().width() - margin - width - symbolRoom - 10, margin, width + symbolRoom + 10,
                     row * static_cast<double>(legend.size()) + 8);
    painter.setPen(QPen(scene.colours.ink(0.2), 1));
    painter.setBrush(PlanColours::clear(scene.colours.ground, 0.88));
    painter.drawRoundedRect(box, 4, 4);
    double y = box.top() + 4 + row / 2;
    for (const LegendLine& line : legend) {
        line.symbol({box.left() + 16, y});
        painter.setPen(scene.colours.ink(0.85));
        painter.drawText(QRectF(box.left() + symbolRoom + 2, y - row / 2, width + 4, row), Qt::AlignLeft | Qt::AlignVCenter, line.text);
        y += row;
    }
}

}  // namespace

double roundLength(double least)
{
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double times : {1.0, 2.0, 5.0}) {
        if (times * power >= least * (1 - 1e-9))
            return times * power;
    }
    return 10 * power;
}

void drawPlanGround(QPainter& painter, const PlanScene& scene)
{
    constexpr double leastCell = 48;  // [px]
    const QSizeF size = scene.transform.size();
    painter.fillRect(QRectF(QPointF(), size), scene.colours.ground);
    const double cell = roundLength(leastCell / scene.transform.scale());
    const QRectF visible = scene.transform.visible();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(scene.colours.ink(0.055), 1));
    for (double i = std::ceil(visible.left() / cell); i * cell <= visible.right(); ++i) {
        const double x = scene.transform.toScreen(QPointF(i * cell, 0)).x();
        painter.drawLine(QPointF(x, 0), QPointF(x, size.height()));
    }
    for (double i = std::ceil(visible.top() / cell); i * cell <= visible.bottom(); ++i) {
        const double y = scene.transform.toScreen(QPointF(0, i * cell)).y();
        painter.drawLine(QPointF(0, y), QPointF(size.width(), y));
    }
    if (scene.model.isEmpty())
        return;
    const QPointF origin = scene.transform.toScreen(QPointF());
    painter.setPen(QPen(PlanColours::clear(scene.colours.axisX, 0.35), 1));
    painter.drawLine(QPointF(0, origin.y()), QPointF(size.width(), origin.y()));
    painter.setPen(QPen(PlanColours::clear(scene.colours.axisY, 0.35), 1));
    painter.drawLine(QPointF(origin.x(), 0), QPointF(origin.x(), size.height()));
}

void drawGridLines(QPainter& painter, const PlanScene& scene)
{
    constexpr double beyond = 26;  // how far a grid line goes on outside the model [px]
    constexpr double radius = 11;
    if (scene.model.gridLines().empty())
        return;
    const QRectF bounds = scene.model.bounds();
    const QPointF one = scene.transform.toScreen(bounds.topLeft());
    const QPointF other = scene.transform.toScreen(bounds.bottomRight());
    const QRectF box = QRectF(one, other).normalized().adjusted(-beyond, -beyond, beyond, beyond);
    const double reach = std::hypot(box.width(), box.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(smaller(painter));
    for (const PlanGridLine& line : scene.model.gridLines()) {
        const double angle = line.angle * std::acos(-1.0) / 180.0;
        const QPointF along(std::cos(angle), -std::sin(angle));
        const QPointF through = scene.transform.toScreen(line.origin);
        const QPointF middle = through + along * QPointF::dotProduct(box.center() - through, along);
        // From the middle of the model to where the line leaves its surroundings.
        const auto wayOut = [&](double direction) {
            double way = reach;
            if (std::abs(along.x()) > 1e-9)
                way = std::min(way, ((direction * along.x() > 0 ? box.right() : box.left()) - middle.x()) / (direction * along.x()));
            if (std::abs(along.y()) > 1e-9)
                way = std::min(way, ((direction * along.y() > 0 ? box.bottom() : box.top()) - middle.y()) / (direction * along.y()));
            return std::max(way, 0.0);
        };
        const QPointF from = middle - along * wayOut(-1);
        const QPointF to = middle + along * wayOut(1);
        painter.setPen(QPen(scene.colours.ink(0.35), 1, Qt::DashDotLine));
        painter.drawLine(from, to);
        const double width = std::max(2 * radius, QFontMetricsF(painter.font()).horizontalAdvance(line.name) + 10);
        const QPointF centre = from - along * (std::abs(along.x()) * width / 2 + std::abs(along.y()) * radius);
        const QRectF bubble(centre.x() - width / 2, centre.y() - radius, width, 2 * radius);
        painter.setPen(QPen(scene.colours.ink(0.55), 1));
        painter.setBrush(scene.colours.ground);
        painter.drawRoundedRect(bubble, radius, radius);
        painter.setPen(scene.colours.ink(0.85));
        painter.drawText(bubble, Qt::AlignCenter, line.name);
    }
}

void drawPlanLegend(QPainter& painter, const PlanScene& scene)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(smaller(painter));
    drawDirections(painter, scene);
    if (scene.model.isEmpty())
        return;
    drawScaleBar(painter, scene);
    drawLegend(painter, scene);
}

}  // namespace zel::desktop
