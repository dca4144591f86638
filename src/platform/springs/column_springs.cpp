#include "platform/springs/springs.h"

#include "platform/springs/reckoned.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zel::springs {

namespace {

enum class Shape { rectangle = 1, round = 2, value = 3 };

/// A prismatic piece of a column.
struct Piece {
    double area = 0.0;
    double inertiaX = 0.0;  ///< bends about x
    double inertiaY = 0.0;
    double height = 0.0;

    [[nodiscard]] bool counts() const { return area > 0.0 && height > 0.0; }
};

/// Turned by the beta angle: the share of the other axis is sin^2.
void turn(Piece& piece, double beta)
{
    const double share = beta == 0.0 ? 0.0 : beta == 45.0 ? 0.5 : beta == 90.0 ? 1.0 : std::pow(std::sin(beta * std::numbers::pi / 180.0), 2);
    const double x = piece.inertiaX;
    const double y = piece.inertiaY;
    piece.inertiaX = (1.0 - share) * x + share * y;
    piece.inertiaY = (1.0 - share) * y + share * x;
}

/// `depth` along x, `width` along y. Without a section it has no area.
Piece piece(const T_COSD_D& column, double depth, double width, double height)
{
    if (!(depth > 0.0) || !(height > 0.0))
        return {};
    constexpr double pi = std::numbers::pi;
    if (column.type == static_cast<int>(Shape::round)) {
        const double inertia = pi * std::pow(depth, 4) / 64.0;
        return {pi * depth * depth / 4.0, inertia, inertia, height};
    }
    if (!(width > 0.0))
        return {};
    Piece made{depth * width, depth * std::pow(width, 3) / 12.0, width * std::pow(depth, 3) / 12.0, height};
    turn(made, column.betaAngle);
    return made;
}

using Column = std::vector<Piece>;

Column above(const T_COSD_D& column)
{
    const Piece whole = piece(column, column.aboveD, column.aboveB, column.aboveH);
    return whole.counts() ? Column{whole} : Column{};
}

/// The capital lies in the upper end of the lower column.
Column below(const T_COSD_D& column)
{
    Piece shaft = piece(column, column.belowD, column.belowB, column.belowH);
    if (!shaft.counts())
        return {};
    const Piece capital = piece(column, column.capitalD, column.capitalB, std::min(column.capitalH, column.belowH));
    if (!capital.counts())
        return {shaft};
    shaft.height -= capital.height;
    return shaft.counts() ? Column{shaft, capital} : Column{capital};
}

/// E / sum(h / property) of the pieces, which are there.
Reckoned inSeries(double elasticity, const Column& column, double Piece::*property)
{
    const auto flexibility = [property](const Piece& each) { return Reckoned(each.height) / Reckoned(each.*property); };
    Reckoned sum = flexibility(column.front());
    for (std::size_t i = 1; i < column.size(); ++i)
        sum = sum + flexibility(column[i]);
    return Reckoned(elasticity) / sum;
}

Reckoned bothColumns(const T_COSD_D& column, double Piece::*property)
{
    const Column upper = above(column);
    const Column lower = below(column);
    if (upper.empty() && lower.empty())
        return Reckoned(0.0);
    if (upper.empty() || lower.empty())
        return inSeries(column.elasticity, upper.empty() ? lower : upper, property);
    return inSeries(column.elasticity, upper, property) + inSeries(column.elasticity, lower, property);
}

}  // namespace

Springs columnSprings(const T_COSD_D& column)
{
    if (column.type == static_cast<int>(Shape::value))
        return {Outcome::kept, {}};
    if (column.type != static_cast<int>(Shape::rectangle) && column.type != static_cast<int>(Shape::round))
        return {};
    const auto turning = [&column](double Piece::*inertia) {
        const Reckoned both = column.includeBending == 0 ? Reckoned(0.0) : bothColumns(column, inertia);
        return both.value() == 0.0 ? Reckoned(0.0) : Reckoned(column.bendingScale) * both;
    };
    const Reckoned sdz = bothColumns(column, &Piece::area);
    const Reckoned srx = turning(&Piece::inertiaX);
    const Reckoned sry = turning(&Piece::inertiaY);
    if (!std::isfinite(sdz.value()) || !std::isfinite(srx.value()) || !std::isfinite(sry.value()))
        return {};
    return {Outcome::reckoned,
            {{"SDz", Unit::spring, sdz.value(), "E / sum(h/A), above + below", sdz.text()},
             {"SRx", Unit::springRotation, srx.value(), "k x (E / sum(h/Ix), above + below)", srx.text()},
             {"SRy", Unit::springRotation, sry.value(), "k x (E / sum(h/Iy), above + below)", sry.text()}}};
}

}  // namespace zel::springs
