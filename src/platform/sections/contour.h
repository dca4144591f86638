#pragma once

#include "platform/sections/outline.h"

namespace zel::sections {

/// Moments of an area about the axes x and y of its outline, by Green's theorem over the edges. Straight edges are integrated exactly; arcs by
/// Gauss' rule, to the last digits.
struct Moments {
    double area = 0.0;
    double sx = 0.0;   ///< integral of x
    double sy = 0.0;   ///< integral of y
    double sxx = 0.0;  ///< integral of x^2
    double syy = 0.0;  ///< integral of y^2
};

/// Of all loops, voids taken off. About `origin`, which lies near the middle of the section so that no digits are lost.
Moments moments(const std::vector<Loop>& loops, Point origin);

/// The least and the greatest coordinates of the outlines.
struct Box {
    Point least;
    Point greatest;
};
Box boxOf(const std::vector<Loop>& loops);

/// First moments, about the axis through `centre`, of what lies beyond it: about the vertical axis (of the part with greater x) and about the
/// horizontal one.
struct FirstMoments {
    double beyondX = 0.0;  ///< integral of x - centre.x
    double beyondY = 0.0;
};
FirstMoments firstMoments(const std::vector<Loop>& loops, Point centre);

/// Length of all outlines that are no voids.
double outerLength(const std::vector<Loop>& loops);

}  // namespace zel::sections
