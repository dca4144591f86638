#pragma once

#include "desktop/views/plan_colours.h"
#include "desktop/views/plan_model.h"
#include "desktop/views/plan_transform.h"

class QPainter;

namespace zel::desktop {

/// What a picture of the plan is made of.
struct PlanScene {
    const PlanModel& model;
    const PlanTransform& transform;
    PlanColours colours;
    bool objectsOnly = false;   ///< objects that are not active are left out
    bool pointNumbers = false;  ///< points bear their keys where there is room
    QString lengthUnit;
};

/// Draws the objects of the model: areas, lines, supports, points, and the selected ones above all others.
class PlanPainter {
public:
    PlanPainter(QPainter& painter, const PlanScene& scene);

    void drawObjects();

private:
    [[nodiscard]] bool isShown(const PlanObject& object, bool selected) const;
    [[nodiscard]] QPointF at(const QPointF& world) const { return m_scene.transform.toScreen(world); }
    void measureDensity();
    void drawAreas(bool selected);
    void drawLines(bool selected);
    void drawPoints(bool selected);
    void drawSupports();
    void drawPointNumbers();

    QPainter& m_painter;
    const PlanScene& m_scene;
    QRectF m_visible;      ///< part of the plan that may show, with room for symbols at its edge
    double m_spacing = 0;  ///< about the distance of neighbouring points on the canvas [px]
};

/// The symbols of supports, `size` pixels wide around a place of the canvas.
void drawColumnSymbol(QPainter& painter, const PlanColours& colours, const QPointF& place, double size);
void drawPileSymbol(QPainter& painter, const PlanColours& colours, const QPointF& place, double size);

}  // namespace zel::desktop
