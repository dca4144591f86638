#pragma once

#include "contract/forms/graph.h"
#include "desktop/forms/control_view.h"

class QChartView;

namespace zel::desktop {

/// A line chart of the series of a graph.
class GraphView final : public ViewOf<SREGraphView> {
public:
    GraphView(SREGraphView& graph, FormContext& context, QWidget& parent);

    QWidget& widget() override;
    QWidget* focusWidget() override { return nullptr; }
    bool isTall() const override { return true; }

private:
    void refresh() override;

    QChartView* m_view;
};

/// Shapes, such as the outline of a section, in pixels of the picture.
class PictureView final : public ViewOf<CPicture> {
public:
    PictureView(CPicture& picture, FormContext& context, QWidget& parent);

    QWidget& widget() override { return *m_canvas; }
    QWidget* focusWidget() override { return nullptr; }

private:
    void refresh() override { m_canvas->update(); }

    class Canvas;
    QWidget* m_canvas;
};

}  // namespace zel::desktop
