#pragma once

#include "contract/forms/control.h"
#include "contract/forms/field_writer.h"

#include <optional>
#include <vector>

/// The series of a graph, each a list of points.
class SRGraph {
public:
    /// Sets point `point` of a series; both grow as far as needed.
    void SetValue(int series, int point, zel::GraphPoint value);
    void SetSeries(int series, std::vector<zel::GraphPoint> points);
    void Clear() { m_series.clear(); }
    [[nodiscard]] const std::vector<std::vector<zel::GraphPoint>>& series() const { return m_series; }

private:
    std::vector<std::vector<zel::GraphPoint>> m_series;
};

/// A line chart. After a change of its graph call Redraw.
class SREGraphView : public zel::Control {
public:
    SREGraphView(const zel::Place& place, std::string_view id, CString label = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::graph; }
    [[nodiscard]] SRGraph& GetGraph() { return m_graph; }
    [[nodiscard]] const SRGraph& GetGraph() const { return m_graph; }
    void Redraw() { changed(); }

    void SetAxisTitles(const CString& x, const CString& y);
    void SetLogScale(bool x, bool y);
    /// Lower limit of both axes; none: they scale by themselves.
    void SetLowerLimit(std::optional<double> limit);
    [[nodiscard]] const CString& xTitle() const { return m_xTitle; }
    [[nodiscard]] const CString& yTitle() const { return m_yTitle; }
    [[nodiscard]] bool isXLog() const { return m_xLog; }
    [[nodiscard]] bool isYLog() const { return m_yLog; }
    [[nodiscard]] std::optional<double> lowerLimit() const { return m_lowerLimit; }

    /// The points of the first series.
    void describe(zel::IFieldWriter& writer) const override;

private:
    SRGraph m_graph;
    CString m_xTitle;
    CString m_yTitle;
    bool m_xLog = false;
    bool m_yLog = false;
    std::optional<double> m_lowerLimit;
};

/// Shapes drawn one over the other.
class CPicture : public zel::Control {
public:
    /// @param width, height  of the picture [pixels]
    CPicture(const zel::Place& place, std::string_view id, int width, int height, CString label = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::picture; }
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    void SetShapes(std::vector<zel::Shape> shapes);
    [[nodiscard]] const std::vector<zel::Shape>& shapes() const { return m_shapes; }
    void describe(zel::IFieldWriter& writer) const override;

private:
    int m_width;
    int m_height;
    std::vector<zel::Shape> m_shapes;
};
