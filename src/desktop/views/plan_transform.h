#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace zel::desktop {

/// The way between the model's plan (x to the right, y up, in model units) and the canvas (y down, in pixels).
class PlanTransform {
public:
    [[nodiscard]] QPointF toScreen(const QPointF& world) const
    {
        return {m_size.width() / 2 + (world.x() - m_centre.x()) * m_scale, m_size.height() / 2 - (world.y() - m_centre.y()) * m_scale};
    }
    [[nodiscard]] QPointF toWorld(const QPointF& screen) const
    {
        return {m_centre.x() + (screen.x() - m_size.width() / 2) / m_scale, m_centre.y() - (screen.y() - m_size.height() / 2) / m_scale};
    }
    /// The rectangle of the plan that two corners on the canvas span.
    [[nodiscard]] QRectF toWorld(const QRectF& screen) const { return QRectF(toWorld(screen.topLeft()), toWorld(screen.bottomRight())).normalized(); }
    /// The part of the plan that is on the canvas.
    [[nodiscard]] QRectF visible() const { return toWorld(QRectF(QPointF(), m_size)); }

    /// Pixels per model unit.
    [[nodiscard]] double scale() const { return m_scale; }
    [[nodiscard]] const QSizeF& size() const { return m_size; }

    /// The middle of the picture stays in the middle.
    void resize(const QSizeF& size) { m_size = size; }
    void pan(const QPointF& pixels) { m_centre += QPointF(-pixels.x() / m_scale, pixels.y() / m_scale); }
    /// What is under `screen` stays there.
    void zoomAt(const QPointF& screen, double factor)
    {
        const QPointF fixed = toWorld(screen);
        m_scale = std::clamp(m_scale * factor, leastScale, mostScale);
        m_centre += fixed - toWorld(screen);
    }
    /// Shows `world` whole, with a margin in pixels. A box without width and height is shown in the middle.
    void fit(const QRectF& world, double margin)
    {
        m_centre = world.center();
        const double width = std::max(1.0, m_size.width() - 2 * margin);
        const double height = std::max(1.0, m_size.height() - 2 * margin);
        double scale = mostScale;
        if (world.width() > 0)
            scale = std::min(scale, width / world.width());
        if (world.height() > 0)
            scale = std::min(scale, height / world.height());
        if (scale < mostScale)
            m_scale = std::max(scale, leastScale);
    }
    /// The model's unit of length has changed: lengths are `factor` times what they were.
    void rescale(double factor)
    {
        m_centre *= factor;
        m_scale = std::clamp(m_scale / factor, leastScale, mostScale);
    }

    bool operator==(const PlanTransform&) const = default;

private:
    static constexpr double leastScale = 1e-6;
    static constexpr double mostScale = 1e5;

    QPointF m_centre;
    QSizeF m_size{1, 1};
    double m_scale = 40;
};

}  // namespace zel::desktop
