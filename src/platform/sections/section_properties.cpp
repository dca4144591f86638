#include "platform/sections/section_properties.h"

#include "platform/sections/contour.h"
#include "platform/sections/torsion.h"

#include <cmath>
#include <numbers>

namespace zel::sections {

namespace {

struct ShearAreas {
    double y;
    double z;
};

ShearAreas shearAreas(Shape shape, const Sizes& sizes, double area)
{
    constexpr double flat = 5.0 / 6.0;
    const auto& [h, b, tw, tf, fifth, sixth] = sizes;
    switch (shape) {
    case Shape::solidRectangle:
        return {flat * area, flat * area};
    case Shape::solidRound:
        return {0.9 * area, 0.9 * area};
    case Shape::pipe:
        return {area / 2.0, area / 2.0};
    case Shape::hSection:
    case Shape::channel:
        return {flat * (b * tf + fifth * sixth), h * tw};
    case Shape::tee:
    case Shape::compositeTee:
        return {flat * b * tf, h * tw};
    case Shape::box:
        return {b * (tf + sixth), 2.0 * h * tw};
    case Shape::angle:
        return {2.0 / 3.0 * b * tf, 2.0 / 3.0 * h * tw};
    case Shape::doubleAngle:
        return {2.0 * 2.0 / 3.0 * b * tf, 2.0 * 2.0 / 3.0 * h * tw};
    case Shape::doubleChannel:
        return {2.0 * flat * 2.0 * b * tf, 2.0 * h * tw};
    case Shape::roundedChannel:
        return {flat * 2.0 * b * tw, h * tw};
    }
    return {};
}

double torsion(Shape shape, const Sizes& sizes, const std::vector<Loop>& loops, double area)
{
    switch (shape) {
    case Shape::solidRectangle:
        return rectangleTorsion(sizes[0], sizes[1]);
    case Shape::roundedChannel:
        return area * sizes[2] * sizes[2] / 3.0;  // the developed middle line is area / t
    case Shape::doubleAngle:
    case Shape::doubleChannel:
        return 2.0 * torsionOfPlates({loops.back()});
    default:
        return torsionOfPlates(loops);
    }
}

/// Area, inertias and first moments of a circle less its void, which lie in closed form.
Properties round(double outer, double inner)
{
    using std::numbers::pi;
    Properties made;
    T_SECT_STIFFNESS& is = made.stiffness;
    is.area = pi * (outer - inner) * (outer + inner) / 4.0;
    is.iyy = is.izz = is.area * (outer * outer + inner * inner) / 16.0;
    is.ixx = 2.0 * is.iyy;
    is.qyb = is.qzb = (std::pow(outer, 3) - std::pow(inner, 3)) / 12.0;
    is.cyp = is.cym = is.czp = is.czm = made.yBar = made.zBar = outer / 2.0;
    made.perimeter = pi * outer;
    return made;
}

Properties ofOutline(Shape shape, const Sizes& sizes)
{
    const std::vector<Loop> loops = outlineOf(shape, sizes);
    const Box box = boxOf(loops);
    const Point middle{(box.least.x + box.greatest.x) / 2.0, (box.least.y + box.greatest.y) / 2.0};
    const Moments about = moments(loops, middle);
    const Point fromMiddle{about.sx / about.area, about.sy / about.area};
    const Point centroid{middle.x + fromMiddle.x, middle.y + fromMiddle.y};
    const FirstMoments half = firstMoments(loops, centroid);
    Properties made;
    T_SECT_STIFFNESS& is = made.stiffness;
    is.area = about.area;
    is.ixx = torsion(shape, sizes, loops, about.area);
    is.iyy = about.syy - about.area * fromMiddle.y * fromMiddle.y;
    is.izz = about.sxx - about.area * fromMiddle.x * fromMiddle.x;
    is.cyp = box.greatest.x - centroid.x;
    is.cym = centroid.x - box.least.x;
    is.czp = centroid.y - box.least.y;
    is.czm = box.greatest.y - centroid.y;
    is.qyb = half.beyondY;
    is.qzb = half.beyondX;
    made.perimeter = outerLength(loops);
    made.yBar = is.cym;
    made.zBar = is.czp;
    return made;
}

}  // namespace

std::optional<Properties> propertiesOf(Shape shape, const Sizes& sizes)
{
    if (!sizesAreValid(shape, sizes))
        return std::nullopt;
    const Sizes all = completed(shape, sizes);
    const bool isRound = shape == Shape::solidRound || shape == Shape::pipe;
    Properties made = isRound ? round(all[0], shape == Shape::pipe ? all[0] - 2.0 * all[1] : 0.0) : ofOutline(shape, all);
    const ShearAreas shear = shearAreas(shape, all, made.stiffness.area);
    made.stiffness.asy = shear.y;
    made.stiffness.asz = shear.z;
    made.stiffness.weightArea = made.stiffness.area;
    return made;
}

}  // namespace zel::sections
