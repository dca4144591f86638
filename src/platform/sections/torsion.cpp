#include "platform/sections/torsion.h"

#include "platform/sections/contour.h"

#include <Eigen/SparseCholesky>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace zel::sections {

namespace {

constexpr int cellsAcross = 6;     ///< of a plate on the coarser grid, at least
constexpr int cellsAtCorner = 16;  ///< the first cell at a corner is as small as if so many went across: stress is singular in a corner
constexpr double growth = 1.6;     ///< from one cell to the next, away from a corner

constexpr double rounding = 1e-9;

/// A coordinate at which the outline has corners.
struct Corner {
    double at;
    double shortest;  ///< of the edges that lie on this coordinate: at the end of a plate its thickness
};

/// All of them in order, each once.
std::vector<Corner> corners(const std::vector<Loop>& loops, double Point::*across, double Point::*along)
{
    std::vector<Corner> all;
    for (const Loop& loop : loops) {
        for (const Edge& edge : loop.edges) {
            const double length = std::fabs(edge.to.*along - edge.from.*along);
            if (length > rounding)
                all.push_back({edge.from.*across, length});
        }
    }
    std::sort(all.begin(), all.end(), [](const Corner& left, const Corner& right) { return left.at < right.at; });
    std::vector<Corner> different;
    for (const Corner& corner : all) {
        if (different.empty() || corner.at - different.back().at > rounding)
            different.push_back(corner);
        else
            different.back().shortest = std::min(different.back().shortest, corner.shortest);
    }
    return different;
}

/// Distances of grid lines from a corner to the middle of the piece beside it, `half` away: cells grow from `least` on.
std::vector<double> offsets(double half, double least)
{
    const double most = 2.0 * half / cellsAcross;
    std::vector<double> lines;
    double at = 0.0;
    for (double cell = std::min(least, most); at < half * (1.0 - rounding); cell = std::min(cell * growth, most))
        lines.push_back(at += cell);
    for (double& line : lines)
        line *= half / at;
    return lines;
}

/// Lines of a grid through all corners: closest at the corners, by the thinnest of the plates that end or meet there.
std::vector<double> gridLines(const std::vector<Corner>& corners)
{
    const std::size_t pieces = corners.size() - 1;
    const auto length = [&corners](std::size_t piece) { return corners[piece + 1].at - corners[piece].at; };
    const auto least = [&](std::size_t corner) {
        double thinnest = corners[corner].shortest;
        if (corner > 0)
            thinnest = std::min(thinnest, length(corner - 1));
        if (corner < pieces)
            thinnest = std::min(thinnest, length(corner));
        return thinnest / cellsAtCorner;
    };
    std::vector<double> lines{corners.front().at};
    for (std::size_t i = 0; i < pieces; ++i) {
        for (const double offset : offsets(length(i) / 2.0, least(i)))
            lines.push_back(corners[i].at + offset);
        const std::vector<double> back = offsets(length(i) / 2.0, least(i + 1));
        for (std::size_t k = back.size() - 1; k-- > 0;)
            lines.push_back(corners[i + 1].at - back[k]);
        lines.push_back(corners[i + 1].at);
    }
    return lines;
}

/// The same grid with each cell cut into two.
std::vector<double> halved(const std::vector<double>& lines)
{
    std::vector<double> all{lines.front()};
    for (std::size_t i = 1; i < lines.size(); ++i) {
        all.push_back((lines[i - 1] + lines[i]) / 2.0);
        all.push_back(lines[i]);
    }
    return all;
}

bool isInside(const Loop& loop, Point point)
{
    bool inside = false;
    for (const Edge& edge : loop.edges) {
        if ((edge.from.y > point.y) != (edge.to.y > point.y) && point.x < edge.from.x)  // vertical edges alone cross a horizontal line
            inside = !inside;
    }
    return inside;
}

enum class Matter : char { outside, plate, hollow };

/// One grid with what lies in its cells.
class Grid {
public:
    Grid(const std::vector<Loop>& loops, std::vector<double> xs, std::vector<double> ys) : m_xs(std::move(xs)), m_ys(std::move(ys))
    {
        for (std::size_t j = 0; j + 1 < m_ys.size(); ++j) {
            for (std::size_t i = 0; i + 1 < m_xs.size(); ++i)
                m_matter.push_back(matterAt(loops, {(m_xs[i] + m_xs[i + 1]) / 2.0, (m_ys[j] + m_ys[j + 1]) / 2.0}));
        }
        numberUnknowns();
    }

    /// 2 integral(phi) + 2 K Av.
    [[nodiscard]] double torsion() const
    {
        if (m_unknowns == 0)  // plates thinner than rounding
            return 0.0;
        Eigen::SparseMatrix<double> matrix(m_unknowns, m_unknowns);
        std::vector<Eigen::Triplet<double>> entries;
        Eigen::VectorXd source = Eigen::VectorXd::Zero(m_unknowns);
        for (std::size_t j = 0; j + 1 < m_ys.size(); ++j) {
            for (std::size_t i = 0; i + 1 < m_xs.size(); ++i)
                addCell(i, j, entries, source);
        }
        matrix.setFromTriplets(entries.begin(), entries.end());
        const Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>> solver(matrix);
        return source.dot(solver.solve(source));
    }

private:
    using Unknown = int;
    static constexpr Unknown zero = -1;

    static Matter matterAt(const std::vector<Loop>& loops, Point point)
    {
        Matter matter = Matter::outside;
        for (const Loop& loop : loops) {
            if (isInside(loop, point))
                matter = loop.isVoid ? Matter::hollow : Matter::plate;
        }
        return matter;
    }

    [[nodiscard]] Matter matter(std::size_t i, std::size_t j) const { return m_matter[j * (m_xs.size() - 1) + i]; }

    /// A node inside the plates has an unknown of its own; all on the void's outline share one; on the outer outline phi is 0.
    void numberUnknowns()
    {
        constexpr Unknown hollow = -2;
        const std::size_t columns = m_xs.size();
        m_number.assign(columns * m_ys.size(), zero);
        bool anyHollow = false;
        for (std::size_t j = 1; j + 1 < m_ys.size(); ++j) {
            for (std::size_t i = 1; i + 1 < columns; ++i) {
                const Matter around[]{matter(i - 1, j - 1), matter(i, j - 1), matter(i - 1, j), matter(i, j)};
                const auto touches = [&around](Matter what) { return std::find(std::begin(around), std::end(around), what) != std::end(around); };
                if (touches(Matter::outside))
                    continue;
                m_number[j * columns + i] = touches(Matter::hollow) ? hollow : m_unknowns++;
                anyHollow = anyHollow || touches(Matter::hollow);
            }
        }
        if (anyHollow)
            std::replace(m_number.begin(), m_number.end(), hollow, m_unknowns++);
    }

    /// A cell gives a quarter of its area to each of its corners, and half of its width to the flow along each of its sides.
    void addCell(std::size_t i, std::size_t j, std::vector<Eigen::Triplet<double>>& entries, Eigen::VectorXd& source) const
    {
        const Matter here = matter(i, j);
        if (here == Matter::outside)
            return;
        const double width = m_xs[i + 1] - m_xs[i];
        const double height = m_ys[j + 1] - m_ys[j];
        const Unknown nodes[]{number(i, j), number(i + 1, j), number(i + 1, j + 1), number(i, j + 1)};
        for (const Unknown node : nodes) {
            if (node != zero)
                source[node] += 2.0 * width * height / 4.0;
        }
        if (here == Matter::hollow)
            return;
        for (std::size_t side = 0; side < 4; ++side)
            addFlow(nodes[side], nodes[(side + 1) % 4], side % 2 == 0 ? height / (2.0 * width) : width / (2.0 * height), entries);
    }

    static void addFlow(Unknown from, Unknown to, double conductance, std::vector<Eigen::Triplet<double>>& entries)
    {
        if (from == to)
            return;
        for (const auto& [node, other] : {std::pair(from, to), std::pair(to, from)}) {
            if (node == zero)
                continue;
            entries.emplace_back(node, node, conductance);
            if (other != zero)
                entries.emplace_back(node, other, -conductance);
        }
    }

    [[nodiscard]] Unknown number(std::size_t i, std::size_t j) const { return m_number[j * m_xs.size() + i]; }

    std::vector<double> m_xs;
    std::vector<double> m_ys;
    std::vector<Matter> m_matter;
    std::vector<Unknown> m_number;
    int m_unknowns = 0;
};

/// The same outlines in parts of their greatest size, so that the grid and with it the digits don't depend on the unit.
std::vector<Loop> scaled(std::vector<Loop> loops, Point origin, double size)
{
    for (Loop& loop : loops) {
        for (Edge& edge : loop.edges) {
            edge.from = {(edge.from.x - origin.x) / size, (edge.from.y - origin.y) / size};
            edge.to = {(edge.to.x - origin.x) / size, (edge.to.y - origin.y) / size};
        }
    }
    return loops;
}

}  // namespace

double rectangleTorsion(double side, double other)
{
    using std::numbers::pi;
    const double width = std::min(side, other);
    const double length = std::max(side, other);
    constexpr int lastTerm = 401;  // the rest of the series is below 1e-11
    double sum = 0.0;
    for (int n = lastTerm; n >= 1; n -= 2)
        sum += std::tanh(n * pi * length / (2.0 * width)) / std::pow(n, 5);
    return std::pow(width, 3) * length / 3.0 * (1.0 - 192.0 / std::pow(pi, 5) * width / length * sum);
}

double torsionOfPlates(const std::vector<Loop>& loops)
{
    const Box box = boxOf(loops);
    const double size = std::max(box.greatest.x - box.least.x, box.greatest.y - box.least.y);
    const std::vector<Loop> unit = scaled(loops, box.least, size);
    const std::vector<double> xs = gridLines(corners(unit, &Point::x, &Point::y));
    const std::vector<double> ys = gridLines(corners(unit, &Point::y, &Point::x));
    const double first = Grid(unit, xs, ys).torsion();
    const double second = Grid(unit, halved(xs), halved(ys)).torsion();
    return (second + (second - first) / 3.0) * std::pow(size, 4);  // the error falls with the square of the cells' size
}

}  // namespace zel::sections
