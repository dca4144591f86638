#include "platform/sections/contour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zel::sections {

namespace {

/// Nodes and weights of Gauss' rule with ten points on [-1, 1]; Abramowitz and Stegun, Handbook of Mathematical Functions, table 25.4.
constexpr std::array<std::array<double, 2>, 5> gauss{{{0.148874338981631211, 0.295524224714752870},
                                                      {0.433395394129247191, 0.269266719309996355},
                                                      {0.679409568299024406, 0.219086362515982044},
                                                      {0.865063366688984511, 0.149451349150580593},
                                                      {0.973906528517171720, 0.066671344308688138}}};

/// A point of an edge and how it moves on: the edge is walked from t = 0 to t = 1.
struct Place {
    Point at;
    Point slope;
};

Place along(const Edge& edge, double t)
{
    if (edge.radius == 0.0)
        return {{edge.from.x + t * (edge.to.x - edge.from.x), edge.from.y + t * (edge.to.y - edge.from.y)}, {edge.to.x - edge.from.x, edge.to.y - edge.from.y}};
    const double sweep = edge.toAngle - edge.fromAngle;
    const double angle = edge.fromAngle + t * sweep;
    return {{edge.centre.x + edge.radius * std::cos(angle), edge.centre.y + edge.radius * std::sin(angle)},
            {-edge.radius * sweep * std::sin(angle), edge.radius * sweep * std::cos(angle)}};
}

/// Integral of f(place) over the edge from t0 to t1. A straight edge gives a polynomial of degree 4 at most, which the rule integrates exactly.
template <class F> double integral(const Edge& edge, double t0, double t1, F&& f)
{
    const double half = (t1 - t0) / 2.0;
    const double middle = (t0 + t1) / 2.0;
    double sum = 0.0;
    for (const auto& [node, weight] : gauss)
        sum += weight * (f(along(edge, middle - half * node)) + f(along(edge, middle + half * node)));
    return half * sum;
}

/// Walks the loop counter to the clock or the other way, so that its area counts as positive, a void's as negative.
double sign(const Loop& loop)
{
    double twice = 0.0;
    for (const Edge& edge : loop.edges)
        twice += integral(edge, 0.0, 1.0, [&](const Place& place) {
            const Point& start = loop.edges.front().from;
            return (place.at.x - start.x) * place.slope.y - (place.at.y - start.y) * place.slope.x;
        });
    return (twice < 0.0) == loop.isVoid ? 1.0 : -1.0;
}

/// Where an edge crosses the line on which a coordinate is 0, as parts of its length in order, with 0 and 1 around them. Centre, start and end
/// are given in that coordinate; `quarterTurn` is the angle at which it is greatest on a circle.
std::vector<double> crossings(const Edge& edge, double centreAt, double fromAt, double toAt, double quarterTurn)
{
    std::vector<double> parts{0.0};
    if (edge.radius == 0.0) {
        if ((fromAt < 0.0) != (toAt < 0.0))
            parts.push_back(fromAt / (fromAt - toAt));
    } else if (std::fabs(centreAt) < edge.radius) {
        // centre + radius cos(angle - quarterTurn) = 0
        const double open = std::acos(-centreAt / edge.radius);
        for (const double base : {quarterTurn + open, quarterTurn - open}) {
            for (int turn = -2; turn <= 2; ++turn) {
                const double part = (base + 2.0 * std::numbers::pi * turn - edge.fromAngle) / (edge.toAngle - edge.fromAngle);
                if (part > 0.0 && part < 1.0)
                    parts.push_back(part);
            }
        }
    }
    parts.push_back(1.0);
    std::sort(parts.begin(), parts.end());
    return parts;
}

}  // namespace

Moments moments(const std::vector<Loop>& loops, Point origin)
{
    Moments sum;
    for (const Loop& loop : loops) {
        const double s = sign(loop);
        for (const Edge& edge : loop.edges) {
            const auto over = [&](auto&& f) {
                return s * integral(edge, 0.0, 1.0, [&](const Place& place) { return f(place.at.x - origin.x, place.at.y - origin.y, place.slope); });
            };
            sum.area += over([](double x, double y, Point d) { return (x * d.y - y * d.x) / 2.0; });
            sum.sx += over([](double x, double, Point d) { return x * x * d.y / 2.0; });
            sum.sy -= over([](double, double y, Point d) { return y * y * d.x / 2.0; });
            sum.sxx += over([](double x, double, Point d) { return x * x * x * d.y / 3.0; });
            sum.syy -= over([](double, double y, Point d) { return y * y * y * d.x / 3.0; });
        }
    }
    return sum;
}

Box boxOf(const std::vector<Loop>& loops)
{
    Box box{loops.front().edges.front().from, loops.front().edges.front().from};
    const auto hold = [&box](Point point) {
        box.least = {std::min(box.least.x, point.x), std::min(box.least.y, point.y)};
        box.greatest = {std::max(box.greatest.x, point.x), std::max(box.greatest.y, point.y)};
    };
    for (const Loop& loop : loops) {
        for (const Edge& edge : loop.edges) {
            hold(edge.from);
            // Arcs turn by quarters or halves that begin at an axis, so their ends and middles hold the extremes.
            hold(along(edge, 0.5).at);
            hold(edge.to);
        }
    }
    return box;
}

FirstMoments firstMoments(const std::vector<Loop>& loops, Point centre)
{
    FirstMoments sum;
    for (const Loop& loop : loops) {
        const double s = sign(loop);
        for (const Edge& edge : loop.edges) {
            // The cut along the axis closes the part beyond it, and adds nothing: there the distance is 0.
            const std::vector<double> xs = crossings(edge, edge.centre.x - centre.x, edge.from.x - centre.x, edge.to.x - centre.x, 0.0);
            for (std::size_t i = 0; i + 1 < xs.size(); ++i) {
                if (along(edge, (xs[i] + xs[i + 1]) / 2.0).at.x > centre.x)
                    sum.beyondX +=
                        s * integral(edge, xs[i], xs[i + 1], [&](const Place& place) { return std::pow(place.at.x - centre.x, 2) * place.slope.y / 2.0; });
            }
            const std::vector<double> ys = crossings(edge, edge.centre.y - centre.y, edge.from.y - centre.y, edge.to.y - centre.y, std::numbers::pi / 2.0);
            for (std::size_t i = 0; i + 1 < ys.size(); ++i) {
                if (along(edge, (ys[i] + ys[i + 1]) / 2.0).at.y > centre.y)
                    sum.beyondY -=
                        s * integral(edge, ys[i], ys[i + 1], [&](const Place& place) { return std::pow(place.at.y - centre.y, 2) * place.slope.x / 2.0; });
            }
        }
    }
    return sum;
}

double outerLength(const std::vector<Loop>& loops)
{
    double length = 0.0;
    for (const Loop& loop : loops) {
        if (loop.isVoid)
            continue;
        for (const Edge& edge : loop.edges)
            length +=
                edge.radius == 0.0 ? std::hypot(edge.to.x - edge.from.x, edge.to.y - edge.from.y) : edge.radius * std::fabs(edge.toAngle - edge.fromAngle);
    }
    return length;
}

}  // namespace zel::sections
