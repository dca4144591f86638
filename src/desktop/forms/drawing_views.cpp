#include "desktop/forms/drawing_views.h"

#include "desktop/forms/text.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPainter>
#include <QValueAxis>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zel::desktop {

namespace {

struct Range {
    double lowest = std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::lowest();

    void take(double value)
    {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
};

QAbstractAxis* makeAxis(const CString& title, bool logarithmic, Range range, std::optional<double> lowerLimit)
{
    if (range.lowest > range.highest)
        range = logarithmic ? Range{1.0, 10.0} : Range{0.0, 1.0};
    if (lowerLimit && (!logarithmic || *lowerLimit > 0.0))
        range.lowest = *lowerLimit;
    if (range.lowest == range.highest)
        range.highest += range.lowest == 0.0 ? 1.0 : std::abs(range.lowest);
    QAbstractAxis* axis = nullptr;
    if (logarithmic) {
        auto* log = new QLogValueAxis;
        log->setLabelFormat(QStringLiteral("%g"));
        axis = log;
    } else {
        auto* linear = new QValueAxis;
        linear->setLabelFormat(QStringLiteral("%g"));
        axis = linear;
    }
    axis->setRange(range.lowest, range.highest);
    axis->setTitleText(toQt(title));
    return axis;
}

QColor colourOf(const Colour& colour)
{
    return {colour.red, colour.green, colour.blue};
}

}  // namespace

GraphView::GraphView(SREGraphView& graph, FormContext& context, QWidget& parent) : ViewOf(graph, context), m_view(new QChartView(&parent))
{
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setMinimumSize(320, 200);
    m_view->setFocusPolicy(Qt::NoFocus);
}

QWidget& GraphView::widget()
{
    return *m_view;
}

void GraphView::refresh()
{
    auto* chart = new QChart;
    chart->legend()->hide();
    chart->setMargins({4, 4, 4, 4});
    const bool dark = m_view->palette().color(QPalette::Window).lightness() < 128;
    chart->setTheme(dark ? QChart::ChartThemeDark : QChart::ChartThemeLight);

    const SREGraphView& graph = control();
    Range x;
    Range y;
    std::vector<QLineSeries*> lines;
    for (const std::vector<GraphPoint>& points : graph.GetGraph().series()) {
        auto* line = new QLineSeries;
        for (const GraphPoint& point : points) {
            const bool drawable = (!graph.isXLog() || point.x > 0.0) && (!graph.isYLog() || point.y > 0.0);
            if (!drawable || !std::isfinite(point.x) || !std::isfinite(point.y))
                continue;  // a logarithmic axis has no place for it
            line->append(point.x, point.y);
            x.take(point.x);
            y.take(point.y);
        }
        chart->addSeries(line);
        lines.push_back(line);
    }
    QAbstractAxis* xAxis = makeAxis(graph.xTitle(), graph.isXLog(), x, graph.lowerLimit());
    QAbstractAxis* yAxis = makeAxis(graph.yTitle(), graph.isYLog(), y, graph.lowerLimit());
    chart->addAxis(xAxis, Qt::AlignBottom);
    chart->addAxis(yAxis, Qt::AlignLeft);
    for (QLineSeries* line : lines) {
        line->attachAxis(xAxis);
        line->attachAxis(yAxis);
    }
    const std::unique_ptr<QChart> former(m_view->chart());
    m_view->setChart(chart);
}

class PictureView::Canvas final : public QWidget {
public:
    Canvas(PictureView& view, QWidget& parent) : QWidget(&parent), m_view(view) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (!m_view.isAttached())
            return;
        QPainter painter(this);
        // The colours of the shapes are the dialog's and meant for paper, in a dark theme too.
        painter.fillRect(rect(), Qt::white);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setRenderHint(QPainter::Antialiasing);
        for (const Shape& shape : m_view.control().shapes()) {
            painter.setPen(colourOf(shape.pen));
            painter.setBrush(shape.fill ? QBrush(colourOf(*shape.fill)) : QBrush(Qt::NoBrush));
            QPolygonF corners;
            for (const GraphPoint& point : shape.points)
                corners.append(QPointF(point.x, point.y));
            if (shape.kind == Shape::Kind::ellipse && corners.size() >= 2)
                painter.drawEllipse(QRectF(corners[0], corners[1]).normalized());
            else
                painter.drawPolygon(corners);
        }
    }

private:
    PictureView& m_view;
};

PictureView::PictureView(CPicture& picture, FormContext& context, QWidget& parent) : ViewOf(picture, context), m_canvas(new Canvas(*this, parent))
{
    m_canvas->setFixedSize(picture.width(), picture.height());
}

}  // namespace zel::desktop
