#include "platform/sections/section_shape.h"

#include <algorithm>
#include <cmath>

namespace zel::sections {

namespace {

// clang-format off
constexpr std::array<ShapeInfo, shapeCount> shapes{{
    {"L",  {"H", "B",  "tw", "tf"},               4},
    {"C",  {"H", "B1", "tw", "tf1", "B2", "tf2"}, 6},
    {"H",  {"H", "B1", "tw", "tf1", "B2", "tf2"}, 6},
    {"T",  {"H", "B",  "tw", "tf"},               4},
    {"B",  {"H", "B",  "tw", "tf1", "C",  "tf2"}, 6},
    {"P",  {"D", "t"},                            2},
    {"2L", {"H", "B",  "tw", "tf",  "C"},         5},
    {"2C", {"H", "B",  "tw", "tf",  "C"},         5},
    {"SB", {"H", "B"},                            2},
    {"SR", {"D"},                                 1},
    {"CL", {"H", "B",  "t",  "r",   "c"},         5},
    {"CT", {"H", "B",  "tw", "tf"},               4},
}};
// clang-format on

constexpr double relativeSlack = 1e-9;
constexpr double closeToFlangeEdge = 1e-5;  ///< of B: a C so close to B - tw is that

/// How many of the first sizes must be above 0; those behind may be 0.
int neededSizes(Shape shape)
{
    switch (shape) {
    case Shape::channel:
    case Shape::hSection:
    case Shape::box:
        return 4;
    case Shape::doubleAngle:
    case Shape::doubleChannel:
        return 4;
    case Shape::roundedChannel:
        return 3;
    default:
        return shapeInfo(shape).sizes;
    }
}

}  // namespace

const ShapeInfo& shapeInfo(Shape shape)
{
    return shapes[static_cast<std::size_t>(shape)];
}

std::optional<Shape> shapeOfCode(std::string_view code)
{
    const auto found = std::find_if(shapes.begin(), shapes.end(), [code](const ShapeInfo& each) { return each.code == code; });
    return found == shapes.end() ? std::nullopt : std::optional(static_cast<Shape>(found - shapes.begin()));
}

Sizes completed(Shape shape, const Sizes& sizes)
{
    Sizes all = sizes;
    auto& [h, b, tw, tf, fifth, sixth] = all;
    if (shape == Shape::channel || shape == Shape::hSection) {
        fifth = fifth == 0.0 ? b : fifth;
        sixth = sixth == 0.0 ? tf : sixth;
    } else if (shape == Shape::box) {
        if (fifth == 0.0 || std::fabs(b - tw - fifth) <= closeToFlangeEdge * b)
            fifth = b - tw;
        sixth = sixth == 0.0 ? tf : sixth;
    }
    return all;
}

bool sizesAreValid(Shape shape, const Sizes& sizes)
{
    double greatest = 0.0;
    for (int i = 0; i < shapeInfo(shape).sizes; ++i) {
        const double size = sizes[static_cast<std::size_t>(i)];
        if (!std::isfinite(size) || size < 0.0 || (i < neededSizes(shape) && size == 0.0))
            return false;
        greatest = std::max(greatest, size);
    }
    const Sizes all = completed(shape, sizes);
    const auto& [h, b, tw, tf, fifth, sixth] = all;
    const auto below = [](double left, double right) { return left < right; };
    const auto notAbove = [greatest](double left, double right) { return left <= right + relativeSlack * greatest; };
    switch (shape) {
    case Shape::angle:
    case Shape::tee:
    case Shape::compositeTee:
    case Shape::doubleAngle:
        return below(tf, h) && below(tw, b);
    case Shape::channel:
    case Shape::hSection:
        return below(tf + sixth, h) && below(tw, std::min(b, fifth));
    case Shape::box:
        return below(tf + sixth, h) && below(tw, fifth) && notAbove(fifth + tw, b);
    case Shape::pipe:
        return below(2.0 * b, h);
    case Shape::doubleChannel:
        return below(2.0 * tf, h) && below(tw, b);
    case Shape::roundedChannel:
        return notAbove(2.0 * (tf + tw), std::min(b, h)) && notAbove(2.0 * fifth, h);
    case Shape::solidRectangle:
    case Shape::solidRound:
        return true;
    }
    return false;
}

}  // namespace zel::sections
