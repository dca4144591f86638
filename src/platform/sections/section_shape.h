#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace zel::sections {

/// The shapes of a section. Their order is that of the shape codes and permanent.
enum class Shape {
    angle,
    channel,
    hSection,
    tee,
    box,
    pipe,
    doubleAngle,
    doubleChannel,
    solidRectangle,
    solidRound,
    roundedChannel,
    compositeTee,
};

inline constexpr int shapeCount = 12;
inline constexpr int sizeCount = 6;  ///< a shape has at most as many

/// Sizes of a shape in the order of its titles; places that the shape doesn't have are not read [length].
using Sizes = std::array<double, sizeCount>;

/// Code and size titles of a shape.
struct ShapeInfo {
    std::string_view code;  ///< in files and journals: "SB"
    std::array<std::string_view, sizeCount> titles;
    int sizes;  ///< how many of them it has
};

const ShapeInfo& shapeInfo(Shape shape);

/// The shape of that code; empty for an unknown one.
std::optional<Shape> shapeOfCode(std::string_view code);

/// The sizes with what a zero stands for filled in: B2 for B1, tf2 for tf1, C of a box for B - tw (also a C that is as close to it as 1e-5 B).
Sizes completed(Shape shape, const Sizes& sizes);

/// Whether the sizes make a section of the shape: needed ones above 0, optional ones not negative, plates that leave room for each other.
/// Comparisons that allow equality allow 1e-9 of the greatest size, so that the answer doesn't depend on the unit.
bool sizesAreValid(Shape shape, const Sizes& sizes);

}  // namespace zel::sections
