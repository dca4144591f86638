#include "platform/sections/outline.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace zel::sections {

namespace {

constexpr double pi = std::numbers::pi;

Loop polygon(const std::vector<Point>& corners, bool isVoid = false)
{
    Loop loop;
    loop.isVoid = isVoid;
    for (std::size_t i = 0; i < corners.size(); ++i)
        loop.edges.push_back({corners[i], corners[(i + 1) % corners.size()]});
    return loop;
}

Edge arc(Point centre, double radius, double fromAngle, double toAngle)
{
    const auto at = [&](double angle) { return Point{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)}; };
    return {at(fromAngle), at(toAngle), centre, radius, fromAngle, toAngle};
}

Loop circle(Point centre, double radius, bool isVoid = false)
{
    return {{arc(centre, radius, 0.0, pi), arc(centre, radius, pi, 2.0 * pi)}, isVoid};
}

Loop angle(double h, double b, double tw, double tf)
{
    return polygon({{0, 0}, {0, h}, {tw, h}, {tw, tf}, {b, tf}, {b, 0}});
}

Loop channel(double h, double b1, double tw, double tf1, double b2, double tf2)
{
    return polygon({{0, 0}, {b1, 0}, {b1, tf1}, {tw, tf1}, {tw, h - tf2}, {b2, h - tf2}, {b2, h}, {0, h}});
}

Loop hSection(double h, double b1, double tw, double tf1, double b2, double tf2)
{
    const double middle = std::max(b1, b2) / 2.0;
    const double y = h - tf2;
    return polygon({{middle - b1 / 2, 0},
                    {middle - b1 / 2, tf1},
                    {middle - tw / 2, tf1},
                    {middle - tw / 2, y},
                    {middle - b2 / 2, y},
                    {middle - b2 / 2, h},
                    {middle + b2 / 2, h},
                    {middle + b2 / 2, y},
                    {middle + tw / 2, y},
                    {middle + tw / 2, tf1},
                    {middle + b1 / 2, tf1},
                    {middle + b1 / 2, 0}});
}

Loop tee(double h, double b, double tw, double tf)
{
    return polygon({{0, 0}, {0, tf}, {(b - tw) / 2, tf}, {(b - tw) / 2, h}, {(b + tw) / 2, h}, {(b + tw) / 2, tf}, {b, tf}, {b, 0}});
}

std::vector<Loop> box(double h, double b, double tw, double tf1, double c, double tf2)
{
    const double a = (b - c - tw) / 2;
    std::vector<Point> outer{{0, 0}, {0, tf1},     {a, tf1},         {a, h - tf2}, {0, h - tf2}, {0, h},
                             {b, h}, {b, h - tf2}, {b - a, h - tf2}, {b - a, tf1}, {b, tf1},     {b, 0}};
    if (a <= 1e-9 * b)  // the webs stand at the edge, but for rounding
        outer = {{0, 0}, {0, h}, {b, h}, {b, 0}};
    const double left = std::max(a, 0.0) + tw;
    return {polygon(outer), polygon({{left, tf1}, {left, h - tf2}, {b - left, h - tf2}, {b - left, tf1}}, true)};
}

Loop mirrored(Loop loop, double width)
{
    for (Edge& edge : loop.edges) {
        edge.from.x = width - edge.from.x;
        edge.to.x = width - edge.to.x;
    }
    return loop;
}

Loop moved(Loop loop, double x)
{
    for (Edge& edge : loop.edges) {
        edge.from.x += x;
        edge.to.x += x;
    }
    return loop;
}

/// Two of the same back to back, `gap` between them.
std::vector<Loop> twin(const Loop& single, double width, double gap)
{
    return {mirrored(single, width), moved(single, width + gap)};
}

/// Joins pieces by straight lines, the last with the first.
Loop joined(const std::vector<Edge>& pieces)
{
    Loop loop;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const Edge& next = pieces[(i + 1) % pieces.size()];
        loop.edges.push_back(pieces[i]);
        loop.edges.push_back({pieces[i].to, next.from});
    }
    return loop;
}

/// A lipped channel bent from a plate: web on the left, r the inner radius of its corners. A lip no longer than the corner is none, and the
/// flange then ends square.
Loop roundedChannel(double h, double b, double t, double r, double c)
{
    const double outer = r + t;
    const auto point = [](double x, double y) { return Edge{{x, y}, {x, y}}; };
    const auto corner = [&](double x, double y, double radius, double fromAngle, double toAngle) {
        return r > 0.0 ? arc({x, y}, radius, fromAngle, toAngle)
                       : point(x + radius * std::round(std::cos((fromAngle + toAngle) / 2) * std::numbers::sqrt2),
                               y + radius * std::round(std::sin((fromAngle + toAngle) / 2) * std::numbers::sqrt2));
    };
    const bool lip = c > outer;
    std::vector<Edge> pieces;
    const auto add = [&pieces](const std::vector<Edge>& more) { pieces.insert(pieces.end(), more.begin(), more.end()); };
    // Along the outer face from the web's lower end, back along the inner face, and the same at the top.
    add({corner(outer, h - outer, outer, pi, pi / 2)});
    if (lip)
        add({corner(b - outer, h - outer, outer, pi / 2, 0.0), point(b, h - c), point(b - t, h - c), corner(b - outer, h - outer, r, 0.0, pi / 2)});
    else
        add({point(b, h), point(b, h - t)});
    add({corner(outer, h - outer, r, pi / 2, pi), corner(outer, outer, r, pi, 1.5 * pi)});
    if (lip)
        add({corner(b - outer, outer, r, -pi / 2, 0.0), point(b - t, c), point(b, c), corner(b - outer, outer, outer, 0.0, -pi / 2)});
    else
        add({point(b, t), point(b, 0)});
    add({corner(outer, outer, outer, 1.5 * pi, pi)});
    return joined(pieces);
}

}  // namespace

std::vector<Loop> outlineOf(Shape shape, const Sizes& sizes)
{
    const Sizes all = completed(shape, sizes);
    const auto& [s0, s1, s2, s3, s4, s5] = all;
    switch (shape) {
    case Shape::angle:
        return {angle(s0, s1, s2, s3)};
    case Shape::channel:
        return {channel(s0, s1, s2, s3, s4, s5)};
    case Shape::hSection:
        return {hSection(s0, s1, s2, s3, s4, s5)};
    case Shape::tee:
    case Shape::compositeTee:
        return {tee(s0, s1, s2, s3)};
    case Shape::box:
        return box(s0, s1, s2, s3, s4, s5);
    case Shape::pipe:
        return {circle({s0 / 2, s0 / 2}, s0 / 2), circle({s0 / 2, s0 / 2}, s0 / 2 - s1, true)};
    case Shape::doubleAngle:
        return twin(angle(s0, s1, s2, s3), s1, s4);
    case Shape::doubleChannel:
        return twin(channel(s0, s1, s2, s3, s1, s3), s1, s4);
    case Shape::solidRectangle:
        return {polygon({{0, 0}, {0, s0}, {s1, s0}, {s1, 0}})};
    case Shape::solidRound:
        return {circle({s0 / 2, s0 / 2}, s0 / 2)};
    case Shape::roundedChannel:
        return {roundedChannel(s0, s1, s2, s3, s4)};
    }
    return {};
}

}  // namespace zel::sections
