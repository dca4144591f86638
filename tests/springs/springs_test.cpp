#include "platform/springs/springs.h"

#include "contract/units.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

namespace {

using namespace zel::springs;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double valueOf(const Springs& springs, const std::string& name)
{
    EXPECT_EQ(springs.outcome, Outcome::reckoned);
    for (const Spring& spring : springs.springs) {
        if (spring.name == name)
            return spring.value;
    }
    ADD_FAILURE() << "there is no " << name;
    return nan;
}

/// PHC, D 500, t 80, Ap = pi/4 (500^2 - 340^2) = 105557.513 mm^2, Ep 40 kN/mm^2, L 15 m: L/D = 30.
T_PISD_D phc()
{
    T_PISD_D pile;
    pile.dbCode = 1;
    pile.pileType = 2;
    pile.diameter = 500.0;
    pile.thickness = 80.0;
    pile.area = std::numbers::pi / 4.0 * (500.0 * 500.0 - 340.0 * 340.0);
    pile.elasticity = 40.0;
    pile.length = 15000.0;
    return pile;
}

struct PileCase {
    const char* what;
    int dbCode, pileType, construction;
    double a;
};
void PrintTo(const PileCase& row, std::ostream* out)
{
    *out << row.what;
}

// At L/D = 30: 0.013 x 30 + 0.61 = 1.00, 0.011 x 30 + 0.36 = 0.69, 0.014 x 30 + 0.78 = 1.20, 0.009 x 30 + 0.39 = 0.66, 0.031 x 30 - 0.15 = 0.78.
constexpr PileCase pileCases[] = {
    {"PC, driven", 1, 1, 1, 1.00},
    {"PHC, driven", 1, 2, 1, 1.00},
    {"PHC, augered", 1, 2, 2, 0.69},
    {"PHC, pre-boring", 1, 2, 3, 0.69},
    {"steel, driven", 1, 3, 1, 1.20},
    {"steel, augered", 1, 3, 2, 0.66},
    {"cast in place, driven", 1, 4, 1, 0.78},
    {"cast in place, augered", 1, 4, 2, 0.78},
    {"PC of the second database", 2, 1, 1, 1.00},
    {"steel of the second database", 2, 2, 1, 1.20},
    {"steel of the second database, augered", 2, 2, 2, 0.66},
    {"cast in place of the second database", 2, 3, 1, 0.78},
};

class PileKinds : public testing::TestWithParam<PileCase> {};

TEST_P(PileKinds, TakeTheCoefficientOfKindAndConstruction)
{
    const PileCase& row = GetParam();
    T_PISD_D pile = phc();
    pile.dbCode = row.dbCode;
    pile.pileType = row.pileType;
    pile.construction = row.construction;
    pile.coefficient = 77.0;  // read in the third database alone
    const double expected = row.a * pile.area * 40.0 / 15000.0;
    EXPECT_NEAR(valueOf(pileSprings(pile), "Kv"), expected, 1e-9 * expected);
}

INSTANTIATE_TEST_SUITE_P(Springs, PileKinds, testing::ValuesIn(pileCases));

TEST(PileSprings, AgreeWithTheSheet)
{
    // 1.00 x 105557.513 x 40 / 15000 = 281.486702 kN/mm
    const Springs springs = pileSprings(phc());
    EXPECT_NEAR(valueOf(springs, "Kv"), 281.486702, 5e-7);
    EXPECT_EQ(springs.springs.front().numbers, "1.00 x 105558 x 40 / 15000");
}

TEST(PileSprings, TheThirdDatabaseTakesTheCoefficientOfTheRecord)
{
    T_PISD_D pile = phc();
    pile.dbCode = 3;
    pile.coefficient = 0.5;
    EXPECT_NEAR(valueOf(pileSprings(pile), "Kv"), 281.486702 / 2.0, 5e-7);
    pile.coefficient = 0.0;
    EXPECT_EQ(pileSprings(pile).outcome, Outcome::impossible);
}

TEST(PileSprings, ASpecialPileIsAugeredWhateverItsConstructionSays)
{
    // a = 0.011 x 18000/600 + 0.36 = 0.69; 0.69 x 140000 x 36 / 18000 = 193.2 kN/mm
    T_PISD_D pile;
    pile.isSpecial = 1;
    pile.dbCode = 1;
    pile.diameter = 600.0;
    pile.area = 140000.0;
    pile.elasticity = 36.0;
    pile.length = 18000.0;
    for (pile.pileType = 1; pile.pileType <= 3; ++pile.pileType) {
        for (pile.construction = 1; pile.construction <= 3; ++pile.construction)
            EXPECT_NEAR(valueOf(pileSprings(pile), "Kv"), 193.2, 193.2e-9);
    }
    pile.pileType = 5;
    EXPECT_EQ(pileSprings(pile).outcome, Outcome::impossible);
}

TEST(PileSprings, TheTypeSapAndAPileByValueKeepTheirStiffness)
{
    T_PISD_D pile = phc();
    pile.isSpecial = 1;
    pile.pileType = 4;
    EXPECT_EQ(pileSprings(pile).outcome, Outcome::kept);
    pile = phc();
    pile.supportType = 2;
    EXPECT_EQ(pileSprings(pile).outcome, Outcome::kept);
}

TEST(PileSprings, AShortPileCastInPlaceHasNone)
{
    // a = 0.031 x 2000/500 - 0.15 = -0.026
    T_PISD_D pile = phc();
    pile.pileType = 4;
    pile.length = 2000.0;
    EXPECT_EQ(pileSprings(pile).outcome, Outcome::impossible);
    ASSERT_TRUE(pileCoefficient(pile).has_value());
    EXPECT_NEAR(*pileCoefficient(pile), -0.026, 1e-12);
}

TEST(PileSprings, WithoutAValueOrATypeThereIsNone)
{
    for (double T_PISD_D::*field : {&T_PISD_D::length, &T_PISD_D::diameter, &T_PISD_D::area, &T_PISD_D::elasticity}) {
        for (const double bad : {0.0, -1.0, nan}) {
            T_PISD_D pile = phc();
            pile.*field = bad;
            EXPECT_EQ(pileSprings(pile).outcome, Outcome::impossible);
        }
    }
    struct Unknown {
        std::int32_t T_PISD_D::*field;
        std::int32_t value;
    };
    for (const Unknown& unknown : {Unknown{&T_PISD_D::dbCode, 0},
                                   {&T_PISD_D::dbCode, 4},
                                   {&T_PISD_D::pileType, 0},
                                   {&T_PISD_D::pileType, 5},
                                   {&T_PISD_D::construction, 0},
                                   {&T_PISD_D::construction, 4},
                                   {&T_PISD_D::supportType, 3}}) {
        T_PISD_D pile = phc();
        pile.*unknown.field = unknown.value;
        EXPECT_EQ(pileSprings(pile).outcome, Outcome::impossible) << unknown.value;
    }
    T_PISD_D fourth = phc();
    fourth.dbCode = 2;
    fourth.pileType = 4;
    EXPECT_EQ(pileSprings(fourth).outcome, Outcome::impossible);
    T_PISD_D huge = phc();
    huge.area = 1e308;
    EXPECT_EQ(pileSprings(huge).outcome, Outcome::impossible);
}

/// D 600 along x, B 400, H 3000, E 25 kN/mm^2, factor 6.
T_COSD_D rectangle()
{
    T_COSD_D column;
    column.elasticity = 25.0;
    column.poisson = 0.2;
    column.aboveD = 600.0;
    column.aboveB = 400.0;
    column.aboveH = 3000.0;
    return column;
}

TEST(ColumnSprings, ARectangleAgreesWithTheSheet)
{
    // 25 x 240000 / 3000 = 2000; 6 x 25 x 400 x 600^3/12 / 3000 = 3.6e8; 6 x 25 x 600 x 400^3/12 / 3000 = 1.6e8
    const Springs springs = columnSprings(rectangle());
    EXPECT_NEAR(valueOf(springs, "SDz"), 2000.0, 2e-6);
    EXPECT_NEAR(valueOf(springs, "SRx"), 1.6e8, 0.16);
    EXPECT_NEAR(valueOf(springs, "SRy"), 3.6e8, 0.36);
    EXPECT_EQ(springs.springs[0].numbers, "25 / (3000 / 240000)");
    EXPECT_EQ(springs.springs[2].numbers, "6 x 25 / (3000 / 7.2e+09)");
}

TEST(ColumnSprings, TheBetaAngleTurnsTheSection)
{
    T_COSD_D column = rectangle();
    column.betaAngle = 90.0;
    EXPECT_NEAR(valueOf(columnSprings(column), "SRx"), 3.6e8, 0.36);
    EXPECT_NEAR(valueOf(columnSprings(column), "SRy"), 1.6e8, 0.16);
    column.betaAngle = 45.0;
    EXPECT_NEAR(valueOf(columnSprings(column), "SRx"), 2.6e8, 0.26);
    EXPECT_NEAR(valueOf(columnSprings(column), "SRy"), 2.6e8, 0.26);
    column.betaAngle = 30.0;  // cos^2 = 3/4: 0.75 x 1.6e8 + 0.25 x 3.6e8
    EXPECT_NEAR(valueOf(columnSprings(column), "SRx"), 2.1e8, 0.21);
    EXPECT_NEAR(valueOf(columnSprings(column), "SRy"), 3.1e8, 0.31);
}

TEST(ColumnSprings, ARoundColumnAgreesWithTheSheet)
{
    // D 500, H 4000: 25 x pi 500^2/4 / 4000; 6 x 25 x pi 500^4/64 / 4000
    T_COSD_D column;
    column.type = 2;
    column.elasticity = 25.0;
    column.belowD = 500.0;
    column.belowH = 4000.0;
    column.betaAngle = 45.0;
    EXPECT_NEAR(valueOf(columnSprings(column), "SDz"), 1227.184630, 5e-7);
    EXPECT_NEAR(valueOf(columnSprings(column), "SRx"), 1.150485591e8, 0.05);
    EXPECT_NEAR(valueOf(columnSprings(column), "SRy"), 1.150485591e8, 0.05);
}

/// 600 x 600 x 3600 below with a capital 1200 x 1200 x 600.
T_COSD_D withCapital()
{
    T_COSD_D column;
    column.elasticity = 25.0;
    column.belowD = column.belowB = 600.0;
    column.belowH = 3600.0;
    column.capitalD = column.capitalB = 1200.0;
    column.capitalH = 600.0;
    return column;
}

TEST(ColumnSprings, ACapitalLiesInSeriesWithTheRestOfTheLowerColumn)
{
    // 3000/360000 + 600/1440000 = 0.00875; 25 / 0.00875 = 2857.142857
    // 3000/1.08e10 + 600/1.728e11 = 2.8125e-7; 6 x 25 / 2.8125e-7 = 5.333333e8
    EXPECT_NEAR(valueOf(columnSprings(withCapital()), "SDz"), 2857.142857, 5e-7);
    EXPECT_NEAR(valueOf(columnSprings(withCapital()), "SRx"), 1.6e9 / 3.0, 1.0);
    EXPECT_EQ(columnSprings(withCapital()).springs[0].numbers, "25 / (3000 / 360000 + 600 / 1.44e+06)");
}

TEST(ColumnSprings, ACapitalHigherThanItsColumnIsCutToIt)
{
    T_COSD_D column = withCapital();
    column.capitalH = 5000.0;
    EXPECT_NEAR(valueOf(columnSprings(column), "SDz"), 25.0 * 1440000.0 / 3600.0, 1e-5);
}

TEST(ColumnSprings, ACapitalWithoutSectionOrLowerColumnCountsNothing)
{
    T_COSD_D column = withCapital();
    column.capitalB = 0.0;
    EXPECT_NEAR(valueOf(columnSprings(column), "SDz"), 25.0 * 360000.0 / 3600.0, 1e-6);
    column = withCapital();
    column.belowH = 0.0;
    EXPECT_EQ(valueOf(columnSprings(column), "SDz"), 0.0);
    column = withCapital();
    column.belowD = 0.0;
    EXPECT_EQ(valueOf(columnSprings(column), "SDz"), 0.0);
}

TEST(ColumnSprings, AboveAndBelowAddUp)
{
    T_COSD_D column = withCapital();
    column.aboveD = 600.0;
    column.aboveB = 400.0;
    column.aboveH = 3000.0;
    EXPECT_NEAR(valueOf(columnSprings(column), "SDz"), 2000.0 + 25.0 / 0.00875, 1e-5);
    EXPECT_NEAR(valueOf(columnSprings(column), "SRy"), 3.6e8 + 1.6e9 / 3.0, 1.0);
    EXPECT_EQ(columnSprings(column).springs[0].numbers, "25 / (3000 / 240000) + 25 / (3000 / 360000 + 600 / 1.44e+06)");
}

TEST(ColumnSprings, WithoutBendingTheyDoNotTurn)
{
    T_COSD_D column = rectangle();
    column.includeBending = 0;
    EXPECT_EQ(valueOf(columnSprings(column), "SRx"), 0.0);
    EXPECT_EQ(valueOf(columnSprings(column), "SRy"), 0.0);
    EXPECT_NEAR(valueOf(columnSprings(column), "SDz"), 2000.0, 2e-6);
}

TEST(ColumnSprings, NothingIsDividedByZero)
{
    const Springs nothing = columnSprings({});
    for (const char* name : {"SDz", "SRx", "SRy"})
        EXPECT_EQ(valueOf(nothing, name), 0.0);
    T_COSD_D column = rectangle();
    column.aboveH = 1e-320;
    column.elasticity = 1e300;
    EXPECT_EQ(columnSprings(column).outcome, Outcome::impossible);
    column = rectangle();
    column.type = 3;
    EXPECT_EQ(columnSprings(column).outcome, Outcome::kept);
    column.type = 0;
    EXPECT_EQ(columnSprings(column).outcome, Outcome::impossible);
}

/// T 200, H 3000, E 25 kN/mm^2, nu 0.2, factor 6.
T_WASD_D wall()
{
    T_WASD_D made;
    made.elasticity = 25.0;
    made.poisson = 0.2;
    made.aboveT = 200.0;
    made.aboveH = 3000.0;
    return made;
}

TEST(WallSprings, AgreeWithTheSheet)
{
    // 25 x 200 / 3000; 6 x 25 x 200^3 / (12 x 0.96) / 3000
    const Springs springs = wallSprings(wall());
    EXPECT_NEAR(valueOf(springs, "SDz"), 1.666666667, 5e-10);
    EXPECT_NEAR(valueOf(springs, "SR"), 34722.2222, 5e-5);
    EXPECT_EQ(springs.springs[1].numbers, "6 x 25 x 8e+06 / (12 x 0.96) / 3000");
}

TEST(WallSprings, AboveAndBelowAddUpAndAMissingSizeCountsAsNone)
{
    T_WASD_D both = wall();
    both.belowT = 400.0;
    both.belowH = 2000.0;
    EXPECT_NEAR(valueOf(wallSprings(both), "SDz"), 25.0 * 200.0 / 3000.0 + 25.0 * 400.0 / 2000.0, 1e-12);
    both.aboveT = -200.0;
    EXPECT_NEAR(valueOf(wallSprings(both), "SDz"), 5.0, 1e-12);
    both.belowH = 0.0;
    EXPECT_EQ(valueOf(wallSprings(both), "SDz"), 0.0);
    EXPECT_EQ(valueOf(wallSprings(both), "SR"), 0.0);
}

TEST(WallSprings, ByPoissonsRatioOfOneOrWithoutBendingTheyDoNotTurn)
{
    for (const double ratio : {1.0, -1.0, 1.5}) {
        T_WASD_D stiff = wall();
        stiff.poisson = ratio;
        EXPECT_EQ(valueOf(wallSprings(stiff), "SR"), 0.0);
    }
    T_WASD_D straight = wall();
    straight.includeBending = 0;
    EXPECT_EQ(valueOf(wallSprings(straight), "SR"), 0.0);
    straight.type = 2;
    EXPECT_EQ(wallSprings(straight).outcome, Outcome::kept);
    straight.type = 3;
    EXPECT_EQ(wallSprings(straight).outcome, Outcome::impossible);
}

TEST(SoilSprings, AgreeWithTheSheet)
{
    T_SOSD_D soil;
    soil.qa = 300.0;
    EXPECT_NEAR(valueOf(soilSprings(soil, 1.0), "SDz"), 36000.0, 3.6e-5);  // kPa: kN/m^3
    EXPECT_EQ(soilSprings(soil, 1.0).springs.front().numbers, "40 x 3 x 300 / 1");
    soil.qa = 4.0;
    EXPECT_NEAR(valueOf(soilSprings(soil, 1.0 / 0.3048), "SDz"), 146.304, 1e-9);  // ksf: kip/ft^3
    soil.qa = 0.0;
    EXPECT_EQ(valueOf(soilSprings(soil, 1.0), "SDz"), 0.0);
}

TEST(SoilSprings, ANegativeStressGivesNoneAndAValueIsKept)
{
    T_SOSD_D soil;
    soil.qa = -1.0;
    EXPECT_EQ(soilSprings(soil, 1.0).outcome, Outcome::impossible);
    soil.type = 2;
    EXPECT_EQ(soilSprings(soil, 1.0).outcome, Outcome::kept);
}

/// Multiplies each field of a record by the size of its unit: the same support in other units.
template <class Record> Record inUnits(Record record, const T_UNIT_INDEX& from, const T_UNIT_INDEX& to)
{
    const auto convert = [&](const char*, auto member, int unit = Unit::none) {
        if constexpr (std::is_same_v<decltype(member), double Record::*>)
            record.*member *= zel::unitFactor(unit, from) / zel::unitFactor(unit, to);
    };
    Record::visit(convert);
    return record;
}

TEST(Springs, AreTheSameInEverySystemOfUnits)
{
    const T_UNIT_INDEX from{0, 3};  // mm, kN
    for (int length = 0; length < zel::lengthUnitCount; ++length) {
        for (int force = 0; force < zel::forceUnitCount; ++force) {
            const T_UNIT_INDEX to{length, force};
            const auto same = [&](const Springs& left, const Springs& right) {
                ASSERT_EQ(left.springs.size(), right.springs.size());
                for (std::size_t i = 0; i < left.springs.size(); ++i) {
                    const double expected =
                        left.springs[i].value * zel::unitFactor(left.springs[i].unitType, from) / zel::unitFactor(left.springs[i].unitType, to);
                    EXPECT_NEAR(right.springs[i].value, expected, 1e-9 * expected) << left.springs[i].name;
                }
            };
            same(pileSprings(phc()), pileSprings(inUnits(phc(), from, to)));
            same(columnSprings(withCapital()), columnSprings(inUnits(withCapital(), from, to)));
            same(wallSprings(wall()), wallSprings(inUnits(wall(), from, to)));
            T_SOSD_D soil;
            soil.qa = 3e-4;
            same(soilSprings(soil, 1000.0), soilSprings(inUnits(soil, from, to), 1.0 / zel::unitFactor(Unit::length, to)));
        }
    }
}

}  // namespace
