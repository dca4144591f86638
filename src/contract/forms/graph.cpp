#include "contract/forms/graph.h"

void SRGraph::SetValue(int series, int point, zel::GraphPoint value)
{
    const auto seriesIndex = static_cast<std::size_t>(series);
    const auto pointIndex = static_cast<std::size_t>(point);
    if (m_series.size() <= seriesIndex)
        m_series.resize(seriesIndex + 1);
    std::vector<zel::GraphPoint>& points = m_series[seriesIndex];
    if (points.size() <= pointIndex)
        points.resize(pointIndex + 1);
    points[pointIndex] = value;
}

void SRGraph::SetSeries(int series, std::vector<zel::GraphPoint> points)
{
    const auto seriesIndex = static_cast<std::size_t>(series);
    if (m_series.size() <= seriesIndex)
        m_series.resize(seriesIndex + 1);
    m_series[seriesIndex] = std::move(points);
}

SREGraphView::SREGraphView(const zel::Place& place, std::string_view id, CString label) : Control(place, id, std::move(label)) {}

void SREGraphView::SetAxisTitles(const CString& x, const CString& y)
{
    m_xTitle = x;
    m_yTitle = y;
    changed();
}

void SREGraphView::SetLogScale(bool x, bool y)
{
    m_xLog = x;
    m_yLog = y;
    changed();
}

void SREGraphView::SetLowerLimit(std::optional<double> limit)
{
    m_lowerLimit = limit;
    changed();
}

void SREGraphView::describe(zel::IFieldWriter& writer) const
{
    static const std::vector<zel::GraphPoint> none;
    writer.points("points", m_graph.series().empty() ? none : m_graph.series().front());
    writer.flag("xLog", m_xLog);
    writer.flag("yLog", m_yLog);
    writer.text("xTitle", m_xTitle);
    writer.text("yTitle", m_yTitle);
}

CPicture::CPicture(const zel::Place& place, std::string_view id, int width, int height, CString label)
    : Control(place, id, std::move(label)), m_width(width), m_height(height)
{
}

void CPicture::SetShapes(std::vector<zel::Shape> shapes)
{
    m_shapes = std::move(shapes);
    changed();
}

void CPicture::describe(zel::IFieldWriter& writer) const
{
    writer.shapes("shapes", m_shapes);
}
