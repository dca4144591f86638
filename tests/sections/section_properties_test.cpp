#include "platform/sections/section_properties.h"

#include "platform/sections/contour.h"
#include "platform/sections/torsion.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

namespace {

using namespace zel::sections;
using std::numbers::pi;

Properties of(Shape shape, const Sizes& sizes)
{
    const std::optional<Properties> found = propertiesOf(shape, sizes);
    EXPECT_TRUE(found.has_value());
    return found.value_or(Properties{});
}

void near(double value, double expected, double relative = 1e-9)
{
    EXPECT_NEAR(value, expected, relative * std::fabs(expected));
}

TEST(SectionProperties, ASolidRectangleAgreesWithTheHandbook)
{
    const Properties p = of(Shape::solidRectangle, {100, 50});
    near(p.stiffness.area, 5000.0);
    near(p.stiffness.iyy, 50.0 * std::pow(100.0, 3) / 12.0);
    near(p.stiffness.izz, 100.0 * std::pow(50.0, 3) / 12.0);
    EXPECT_NEAR(p.stiffness.ixx, 2858521.0, 0.5);
    near(p.stiffness.asy, 5000.0 * 5.0 / 6.0);
    near(p.stiffness.asz, 5000.0 * 5.0 / 6.0);
    near(p.stiffness.qyb, 62500.0);
    near(p.stiffness.qzb, 31250.0);
    near(p.perimeter, 300.0);
    near(p.stiffness.cyp, 25.0);
    near(p.stiffness.cym, 25.0);
    near(p.stiffness.czp, 50.0);
    near(p.stiffness.czm, 50.0);
    near(p.stiffness.weightArea, 5000.0);
}

// Timoshenko and Goodier, Theory of Elasticity, art. 109: coefficients of a b^3, printed to six places.
TEST(SectionProperties, TorsionOfRectanglesAgreesWithThePrintedCoefficients)
{
    EXPECT_NEAR(rectangleTorsion(7.0, 7.0) / std::pow(7.0, 4), 0.140577, 5e-7);
    EXPECT_NEAR(rectangleTorsion(2.0, 1.0) / 2.0, 0.228682, 5e-7);
    EXPECT_NEAR(rectangleTorsion(1.0, 10.0) / 10.0, 0.312325, 5e-7);
    EXPECT_NEAR(rectangleTorsion(1e6, 1.0) / 1e6, 1.0 / 3.0, 1e-6);
}

TEST(SectionProperties, AnHSectionAgreesWithHandCalculation)
{
    const Properties p = of(Shape::hSection, {400, 200, 8, 13});
    near(p.stiffness.area, 8192.0);
    near(p.stiffness.iyy, (200.0 * std::pow(400.0, 3) - 192.0 * std::pow(374.0, 3)) / 12.0);
    near(p.stiffness.izz, (2.0 * 13.0 * std::pow(200.0, 3) + 374.0 * std::pow(8.0, 3)) / 12.0);
    near(p.stiffness.asz, 3200.0);
    near(p.stiffness.asy, 5.0 / 6.0 * 2.0 * 200.0 * 13.0);
    near(p.stiffness.qyb, 642976.0);  // 200 x 13 x 193.5 + 8 x 187^2 / 2
    near(p.stiffness.qzb, 2.0 * 13.0 * 100.0 * 50.0 + 374.0 * 4.0 * 2.0);
    near(p.perimeter, 1584.0);
}

TEST(SectionProperties, AnUnequalHSectionHasItsCentroidWhereHandCalculationPutsIt)
{
    const Properties p = of(Shape::hSection, {500, 300, 12, 20, 200, 16});
    EXPECT_NEAR(p.stiffness.czp, 205.683640, 5e-7);
    EXPECT_NEAR(p.stiffness.czm, 294.316360, 5e-7);
    near(p.stiffness.cyp, 150.0);
    near(p.stiffness.asy, 5.0 / 6.0 * (300.0 * 20.0 + 200.0 * 16.0));
}

TEST(SectionProperties, ATeeAndACompositeTeeAreAlike)
{
    for (const Shape shape : {Shape::tee, Shape::compositeTee}) {
        const Properties p = of(shape, {600, 1000, 300, 150});
        near(p.stiffness.area, 285000.0);
        EXPECT_NEAR(p.zBar, 217.105263, 5e-7);
        near(p.yBar, 500.0);
        near(p.stiffness.asy, 5.0 / 6.0 * 1000.0 * 150.0);
        near(p.stiffness.asz, 600.0 * 300.0);
    }
}

TEST(SectionProperties, AnAngleAgreesWithHandCalculation)
{
    const Properties p = of(Shape::angle, {100, 100, 10, 10});
    near(p.stiffness.area, 1900.0);
    EXPECT_NEAR(p.zBar, 28.684211, 5e-7);
    EXPECT_NEAR(p.yBar, 28.684211, 5e-7);
    near(p.stiffness.iyy, p.stiffness.izz);
    near(p.stiffness.asy, 2.0 / 3.0 * 1000.0);
}

TEST(SectionProperties, AChannelAgreesWithHandCalculation)
{
    const Properties p = of(Shape::channel, {300, 90, 9, 13});
    near(p.stiffness.area, 4806.0);
    near(p.stiffness.iyy, (90.0 * std::pow(300.0, 3) - 81.0 * std::pow(274.0, 3)) / 12.0);
    // Centroid from the back: (2 x 90 x 13 x 45 + 274 x 9 x 4.5) / 4806
    near(p.yBar, (2.0 * 90.0 * 13.0 * 45.0 + 274.0 * 9.0 * 4.5) / 4806.0);
}

TEST(SectionProperties, ABoxAgreesWithHandCalculation)
{
    const Properties p = of(Shape::box, {400, 400, 20, 20});
    near(p.stiffness.area, 30400.0);
    near(p.stiffness.iyy, (std::pow(400.0, 4) - std::pow(360.0, 4)) / 12.0);
    near(p.stiffness.asy, 400.0 * 40.0);
    near(p.stiffness.asz, 2.0 * 400.0 * 20.0);
    near(p.perimeter, 1600.0);
}

TEST(SectionProperties, APipeAndASolidRoundAreClosedForms)
{
    const Properties pipe = of(Shape::pipe, {318.5, 6.9});
    EXPECT_NEAR(pipe.stiffness.area, 6754.549869, 5e-7);
    EXPECT_NEAR(pipe.stiffness.iyy, 8.2018953955e7, 5e-3);
    near(pipe.stiffness.ixx, 2.0 * pipe.stiffness.iyy, 1e-15);
    near(pipe.stiffness.asz, pipe.stiffness.area / 2.0);
    const Properties round = of(Shape::solidRound, {200});
    near(round.stiffness.ixx, pi * std::pow(200.0, 4) / 32.0);
    near(round.stiffness.qyb, std::pow(200.0, 3) / 12.0);
    near(round.stiffness.asy, 0.9 * pi * 1e4);
    near(round.perimeter, 200.0 * pi);
}

TEST(SectionProperties, DoubleShapesAreTwoSingleOnes)
{
    const Properties two = of(Shape::doubleAngle, {100, 80, 10, 12, 20});
    const Properties one = of(Shape::angle, {100, 80, 10, 12});
    near(two.stiffness.area, 2.0 * one.stiffness.area);
    near(two.stiffness.iyy, 2.0 * one.stiffness.iyy);
    near(two.stiffness.izz, 2.0 * (one.stiffness.izz + one.stiffness.area * std::pow(one.yBar + 10.0, 2)));
    near(two.stiffness.ixx, 2.0 * one.stiffness.ixx);
    near(two.stiffness.asy, 2.0 * one.stiffness.asy);
    near(two.stiffness.asz, 2.0 * one.stiffness.asz);
    near(two.stiffness.cyp, 90.0);
    near(two.perimeter, 2.0 * one.perimeter);
    const Properties channels = of(Shape::doubleChannel, {300, 90, 9, 13, 0});
    const Properties channel = of(Shape::channel, {300, 90, 9, 13});
    near(channels.stiffness.iyy, 2.0 * channel.stiffness.iyy);
    near(channels.stiffness.ixx, 2.0 * channel.stiffness.ixx);
    near(channels.stiffness.asy, 2.0 * channel.stiffness.asy);
}

TEST(SectionProperties, ARoundedChannelHasTrueArcs)
{
    // H 200, B 75, t 3.2, r 6.4, lip 20: two flanges, four corners, two lips and a web; the corners are quarters of a ring.
    const double h = 200.0;
    const double b = 75.0;
    const double t = 3.2;
    const double r = 6.4;
    const double c = 20.0;
    const double outer = r + t;
    const double corner = pi / 4.0 * (outer * outer - r * r);
    const double area = (h - 2.0 * outer) * t + 2.0 * (b - 2.0 * outer) * t + 2.0 * (c - outer) * t + 4.0 * corner;
    const Properties p = of(Shape::roundedChannel, {h, b, t, r, c});
    near(p.stiffness.area, area);
    near(p.stiffness.ixx, area * t * t / 3.0);
    // Iyy: the plates, and each corner's own part by the moments of a quarter ring about its centre.
    const double ring2 = pi / 16.0 * (std::pow(outer, 4) - std::pow(r, 4));
    const double ring1 = (std::pow(outer, 3) - std::pow(r, 3)) / 3.0;
    const double arm = h / 2.0 - outer;
    const double corners = 4.0 * (ring2 + 2.0 * arm * ring1 + arm * arm * corner);
    const double web = t * std::pow(h - 2.0 * outer, 3) / 12.0;
    const double flanges = 2.0 * (b - 2.0 * outer) * (std::pow(t, 3) / 12.0 + t * std::pow((h - t) / 2.0, 2));
    const double lip = c - outer;
    const double lips = 2.0 * t * (std::pow(lip, 3) / 12.0 + lip * std::pow(h / 2.0 - outer - lip / 2.0, 2));
    near(p.stiffness.iyy, corners + web + flanges + lips);
    near(p.perimeter, 2.0 * area / t + 2.0 * t);  // both faces of the middle line, and the two ends
    // Qyb: half of it lies above the middle.
    near(p.stiffness.qyb,
         t * std::pow(h / 2.0 - outer, 2) / 2.0 + (b - 2.0 * outer) * t * (h - t) / 2.0 + lip * t * (h / 2.0 - outer - lip / 2.0) +
             2.0 * (ring1 + arm * corner));
}

TEST(SectionProperties, ARoundedChannelWithoutLipOrRadiusIsAPlainChannel)
{
    const Properties p = of(Shape::roundedChannel, {300, 90, 9, 0, 0});
    const Properties plain = of(Shape::channel, {300, 90, 9, 9});
    near(p.stiffness.area, plain.stiffness.area);
    near(p.stiffness.iyy, plain.stiffness.iyy);
    near(p.stiffness.izz, plain.stiffness.izz);
    near(p.stiffness.qzb, plain.stiffness.qzb);
    near(p.perimeter, plain.perimeter);
}

struct TorsionCase {
    const char* what;
    Shape shape;
    Sizes sizes;
    double ixx;
};
void PrintTo(const TorsionCase& row, std::ostream* out)
{
    *out << row.what;
}

// Converged finite-difference solutions of Prandtl's problem, extrapolated over four grids; to 0.5 %.
const TorsionCase torsionCases[] = {
    {"H 400 200 8 13", Shape::hSection, {400, 200, 8, 13}, 350306},
    {"H 500 300 12 20 200 16", Shape::hSection, {500, 300, 12, 20, 200, 16}, 1317600},
    {"T 600 1000 300 150", Shape::tee, {600, 1000, 300, 150}, 4.7675e9},
    {"CT 600 1000 300 150", Shape::compositeTee, {600, 1000, 300, 150}, 4.7675e9},
    {"T 200 200 8 12", Shape::tee, {200, 200, 8, 12}, 144920},
    {"T 700 1500 400 200", Shape::tee, {700, 1500, 400, 200}, 1.3391e10},
    {"L 100 100 10 10", Shape::angle, {100, 100, 10, 10}, 61957},
    {"L 200 100 10 15", Shape::angle, {200, 100, 10, 15}, 165320},
    {"C 300 90 9 13", Shape::channel, {300, 90, 9, 13}, 189983},
    {"C 300 90 9 13 70 10", Shape::channel, {300, 90, 9, 13, 70, 10}, 151575},
    {"B 400 400 20 20", Shape::box, {400, 400, 20, 20}, 1.12502e9},
    {"B 400 500 20 20 360 30", Shape::box, {400, 500, 20, 20, 360, 30}, 1.11986e9},
    {"B 1000 800 200 200", Shape::box, {1000, 800, 200, 200}, 7.8070e10},
};

class SectionTorsion : public testing::TestWithParam<TorsionCase> {};

TEST_P(SectionTorsion, AgreesWithTheConvergedSolution)
{
    near(of(GetParam().shape, GetParam().sizes).stiffness.ixx, GetParam().ixx, 0.005);
}

TEST_P(SectionTorsion, ScalesWithTheFourthPowerInEveryUnit)
{
    const double once = of(GetParam().shape, GetParam().sizes).stiffness.ixx;
    for (const double unit : {0.001, 0.1, 1.0 / 25.4, 1.0 / 304.8, 3.7}) {
        Sizes sizes = GetParam().sizes;
        for (double& size : sizes)
            size *= unit;
        near(of(GetParam().shape, sizes).stiffness.ixx, once * std::pow(unit, 4));
    }
}

INSTANTIATE_TEST_SUITE_P(Plates, SectionTorsion, testing::ValuesIn(torsionCases));

TEST(SectionTorsionOfThinPlates, TendsToTheThinWallFormulas)
{
    // Plates of 1/500 of the depth. Open: sum b t^3 / 3; closed: 4 Am^2 / (s/t) by Bredt plus the plates' own.
    near(of(Shape::hSection, {500, 300, 1, 1}).stiffness.ixx, (300.0 + 300.0 + 498.0) / 3.0, 0.005);
    near(of(Shape::box, {500, 500, 1, 1}).stiffness.ixx, std::pow(499.0, 3) + 4.0 * 499.0 / 3.0, 0.005);
}

TEST(SectionTorsionOfThinPlates, ARectangleBySolvingAgreesWithItsSeries)
{
    for (const double length : {1.0, 2.0, 10.0, 100.0})
        near(torsionOfPlates(outlineOf(Shape::solidRectangle, {length, 1.0})), rectangleTorsion(length, 1.0), 0.002);
}

TEST(SectionSizes, ZeroStandsForTheUsualSize)
{
    near(of(Shape::hSection, {400, 200, 8, 13, 200, 13}).stiffness.iyy, of(Shape::hSection, {400, 200, 8, 13}).stiffness.iyy);
    near(of(Shape::box, {400, 500, 20, 20, 480, 20}).stiffness.izz, of(Shape::box, {400, 500, 20, 20}).stiffness.izz);
    EXPECT_EQ(completed(Shape::box, {400, 500, 20, 20, 480.004, 0})[4], 480.0);  // as close as 1e-5 B
    EXPECT_EQ(completed(Shape::box, {400, 500, 20, 20, 479.9, 0})[4], 479.9);
}

struct SizeCase {
    const char* what;
    Shape shape;
    Sizes sizes;
    bool valid;
};
void PrintTo(const SizeCase& row, std::ostream* out)
{
    *out << row.what;
}

const SizeCase sizeCases[] = {
    {"angle", Shape::angle, {100, 80, 10, 12}, true},
    {"angle, flange as high as it", Shape::angle, {100, 80, 10, 100}, false},
    {"angle, web as wide as it", Shape::angle, {100, 80, 80, 12}, false},
    {"channel, flanges fill it", Shape::channel, {300, 90, 9, 150, 90, 150}, false},
    {"channel, web wider than its lower flange", Shape::channel, {300, 90, 50, 13, 40, 13}, false},
    {"H, second flange given", Shape::hSection, {300, 90, 9, 13, 40, 0}, true},
    {"H, negative second flange", Shape::hSection, {300, 90, 9, 13, -40, 0}, false},
    {"tee without web", Shape::tee, {300, 90, 0, 13}, false},
    {"box with its webs at the edge", Shape::box, {400, 500, 20, 20, 480, 0}, true},
    {"box with its webs beyond the edge", Shape::box, {400, 500, 20, 20, 481, 0}, false},
    {"box, web as wide as C", Shape::box, {400, 500, 20, 20, 20, 0}, false},
    {"pipe", Shape::pipe, {100, 49.9}, true},
    {"pipe without a hole", Shape::pipe, {100, 50}, false},
    {"double angle without gap", Shape::doubleAngle, {100, 80, 10, 12, 0}, true},
    {"double channel, flanges fill it", Shape::doubleChannel, {100, 80, 10, 50, 10}, false},
    {"rectangle", Shape::solidRectangle, {100, 50}, true},
    {"rectangle without width", Shape::solidRectangle, {100, 0}, false},
    {"rectangle, not finite", Shape::solidRectangle, {100, std::numeric_limits<double>::infinity()}, false},
    {"round", Shape::solidRound, {100}, true},
    {"round, no number", Shape::solidRound, {std::numeric_limits<double>::quiet_NaN()}, false},
    {"rounded channel, corners meet", Shape::roundedChannel, {100, 50, 5, 20, 0}, true},
    {"rounded channel, corners overlap", Shape::roundedChannel, {100, 50, 5, 20.01, 0}, false},
    {"rounded channel, lips meet", Shape::roundedChannel, {100, 50, 5, 5, 50}, true},
    {"rounded channel, lips overlap", Shape::roundedChannel, {100, 50, 5, 5, 50.01}, false},
    {"composite tee", Shape::compositeTee, {600, 1000, 300, 150}, true},
};

class SectionSizeCheck : public testing::TestWithParam<SizeCase> {};

TEST_P(SectionSizeCheck, TakesWhatMakesASectionInEveryUnit)
{
    for (const double unit : {1.0, 0.001, 1.0 / 25.4, 1e3}) {
        Sizes sizes = GetParam().sizes;
        for (double& size : sizes)
            size *= unit;
        EXPECT_EQ(sizesAreValid(GetParam().shape, sizes), GetParam().valid);
        EXPECT_EQ(propertiesOf(GetParam().shape, sizes).has_value(), GetParam().valid);
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, SectionSizeCheck, testing::ValuesIn(sizeCases));

TEST(SectionShapes, AreKnownByTheirCodes)
{
    const char* const codes[] = {"L", "C", "H", "T", "B", "P", "2L", "2C", "SB", "SR", "CL", "CT"};
    const int sizes[] = {4, 6, 6, 4, 6, 2, 5, 5, 2, 1, 5, 4};
    for (int i = 0; i < shapeCount; ++i) {
        EXPECT_EQ(shapeOfCode(codes[i]), static_cast<Shape>(i));
        EXPECT_EQ(shapeInfo(static_cast<Shape>(i)).sizes, sizes[i]);
    }
    EXPECT_FALSE(shapeOfCode("sb").has_value());
}

}  // namespace
