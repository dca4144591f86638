#pragma once

#include "desktop/views/plan_painter.h"

namespace zel::desktop {

/// The ground of a plan: an even grid of 1, 2 or 5 times a power of ten, and the axes of the origin.
void drawPlanGround(QPainter& painter, const PlanScene& scene);
/// The model's grid lines with their names in bubbles.
void drawGridLines(QPainter& painter, const PlanScene& scene);
/// Directions, scale bar and the meaning of the symbols that occur.
void drawPlanLegend(QPainter& painter, const PlanScene& scene);

/// 1, 2 or 5 times a power of ten, the smallest that is not below `least`, which is above 0.
[[nodiscard]] double roundLength(double least);

}  // namespace zel::desktop
