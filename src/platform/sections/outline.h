#pragma once

#include "platform/sections/section_shape.h"

#include <vector>

namespace zel::sections {

/// A point of an outline, x to the right and y down from the left top corner of the section as it is drawn [length].
struct Point {
    double x = 0.0;
    double y = 0.0;
};

/// A piece of an outline: straight, or a circular arc around `centre` when it has a radius.
struct Edge {
    Point from;
    Point to;
    Point centre{};
    double radius = 0.0;     ///< 0: straight
    double fromAngle = 0.0;  ///< of an arc, from x towards y [radians]
    double toAngle = 0.0;
};

/// A closed outline, in either direction.
struct Loop {
    std::vector<Edge> edges;
    bool isVoid = false;
};

/// The outlines of a section, voids behind what they lie in. Circles are two half arcs; the corners of a rounded channel are true arcs.
/// @pre  the sizes are valid
std::vector<Loop> outlineOf(Shape shape, const Sizes& sizes);

}  // namespace zel::sections
