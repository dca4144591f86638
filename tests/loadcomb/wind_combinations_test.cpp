#include "loadcomb/generator_fixture.h"
#include "loadcomb/generation/wind_combinations.h"

#include <gtest/gtest.h>

namespace {

using generated::key;
using generated::Lines;
using generated::model;
using zel::loadcomb::makeWindCombinations;
using zel::loadcomb::windForm;
using zel::loadcomb::WindForm;

// Along, across and torsion of one wind. GD 2.0 gives 0.4 + 0.6/2.0 = 0.7 for the along part that is not at its full value; k is 0.8.
constexpr const char* oneWind = "WX:W WXA:WA WXT:WT";

T_LCWD_BASE set(const generated::GeneratorModel& of, const char* along, const char* across, const char* torsion, int buildingType = 1)
{
    T_LCWD_BASE made;
    made.along = key(of, along);
    made.across = key(of, across);
    made.torsion = key(of, torsion);
    made.buildingType = buildingType;
    made.gd = 2.0;
    made.k = 0.8;
    return made;
}

Lines combine(const generated::GeneratorModel& of, std::vector<T_LCWD_BASE> sets, int torsionDirection = 0)
{
    T_LCWD_D record;
    record.torsionDirection = torsionDirection;
    record.sets = std::move(sets);
    return generated::lines(makeWindCombinations(record, of.cases, 1), of);
}

TEST(WindForms, FollowFromTheCasesThatExist)
{
    T_LCWD_BASE high;
    T_LCWD_BASE low;
    low.buildingType = 0;
    EXPECT_EQ(windForm(low, true, false), WindForm::alongAcross);
    EXPECT_EQ(windForm(high, true, false), WindForm::alongAcrossHigh);
    EXPECT_EQ(windForm(high, false, false), WindForm::along);
    EXPECT_EQ(windForm(high, false, true), WindForm::alongTorsion);
    EXPECT_EQ(windForm(high, true, true), WindForm::all);
    EXPECT_EQ(windForm(low, true, true), WindForm::all);
}

TEST(WindCombinations, AlongAloneHasTheNameOfItsCase)
{
    const auto of = model(oneWind);
    EXPECT_EQ(combine(of, {set(of, "WX", "", "")}), (Lines{"0 | WX 1 | WX"}));
}

TEST(WindCombinations, OfALowBuildingHaveNoFactors)
{
    const auto of = model(oneWind);
    EXPECT_EQ(combine(of, {set(of, "WX", "WXA", "", 0)}), (Lines{
        "0 | WX 1, WXA 1 | WX + WXA",
        "0 | WX 1, WXA -1 | WX - WXA",
    }));
}

TEST(WindCombinations, OfAHighBuildingWithoutTorsion)
{
    const auto of = model(oneWind);
    EXPECT_EQ(combine(of, {set(of, "WX", "WXA", "")}), (Lines{
        "0 | WX 1, WXA 0.4 | 1.0WX + 0.4WXA",
        "0 | WX 1, WXA -0.4 | 1.0WX - 0.4WXA",
        "0 | WX 0.7, WXA 1 | 0.7WX + 1.0WXA",
        "0 | WX 0.7, WXA -1 | 0.7WX - 1.0WXA",
        "0 | WX 0.7, WXA 0.8 | 0.7WX + 0.8WXA",
        "0 | WX 0.7, WXA -0.8 | 0.7WX - 0.8WXA",
    }));
}

TEST(WindCombinations, OfAlongAndTorsion)
{
    const auto of = model(oneWind);
    EXPECT_EQ(combine(of, {set(of, "WX", "", "WXT")}), (Lines{
        "0 | WX 1, WXT 0.4 | 1.0WX + 0.4WXT",
        "0 | WX 1, WXT -0.4 | 1.0WX - 0.4WXT",
        "0 | WX 0.7, WXT 0.8 | 0.7WX + 0.8WXT",
        "0 | WX 0.7, WXT -0.8 | 0.7WX - 0.8WXT",
        "0 | WX 0.7, WXT 1 | 0.7WX + 1.0WXT",
        "0 | WX 0.7, WXT -1 | 0.7WX - 1.0WXT",
    }));
}

TEST(WindCombinations, OfAllThreeTakeBothSignsOfAcrossAndTorsion)
{
    const auto of = model(oneWind);
    EXPECT_EQ(combine(of, {set(of, "WX", "WXA", "WXT")}), (Lines{
        "0 | WX 1, WXA 0.4, WXT 0.4 | 1.0WX + 0.4WXA + 0.4WXT",
        "0 | WX 1, WXA 0.4, WXT -0.4 | 1.0WX + 0.4WXA - 0.4WXT",
        "0 | WX 1, WXA -0.4, WXT 0.4 | 1.0WX - 0.4WXA + 0.4WXT",
        "0 | WX 1, WXA -0.4, WXT -0.4 | 1.0WX - 0.4WXA - 0.4WXT",
        "0 | WX 0.7, WXA 1, WXT 0.8 | 0.7WX + 1.0WXA + 0.8WXT",
        "0 | WX 0.7, WXA 1, WXT -0.8 | 0.7WX + 1.0WXA - 0.8WXT",
        "0 | WX 0.7, WXA -1, WXT 0.8 | 0.7WX - 1.0WXA + 0.8WXT",
        "0 | WX 0.7, WXA -1, WXT -0.8 | 0.7WX - 1.0WXA - 0.8WXT",
        "0 | WX 0.7, WXA 0.8, WXT 1 | 0.7WX + 0.8WXA + 1.0WXT",
        "0 | WX 0.7, WXA 0.8, WXT -1 | 0.7WX + 0.8WXA - 1.0WXT",
        "0 | WX 0.7, WXA -0.8, WXT 1 | 0.7WX - 0.8WXA + 1.0WXT",
        "0 | WX 0.7, WXA -0.8, WXT -1 | 0.7WX - 0.8WXA - 1.0WXT",
    }));
}

TEST(WindCombinations, TheTorsionDirectionFiltersTheTorsionSignAlone)
{
    const auto of = model(oneWind);
    const Lines plus = combine(of, {set(of, "WX", "WXA", "WXT")}, 1);
    ASSERT_EQ(plus.size(), 6U);
    EXPECT_EQ(plus[0], "0 | WX 1, WXA 0.4, WXT 0.4 | 1.0WX + 0.4WXA + 0.4WXT");
    EXPECT_EQ(plus[1], "0 | WX 1, WXA -0.4, WXT 0.4 | 1.0WX - 0.4WXA + 0.4WXT");
    const Lines minus = combine(of, {set(of, "WX", "", "WXT")}, 2);
    EXPECT_EQ(minus, (Lines{
        "0 | WX 1, WXT -0.4 | 1.0WX - 0.4WXT",
        "0 | WX 0.7, WXT -0.8 | 0.7WX - 0.8WXT",
        "0 | WX 0.7, WXT -1 | 0.7WX - 1.0WXT",
    }));
    EXPECT_EQ(combine(of, {set(of, "WX", "WXA", "")}, 1).size(), 6U) << "without torsion both signs of across stay";
}

TEST(WindCombinations, AFactorThatIsNotWholePrintsShort)
{
    const auto of = model(oneWind);
    T_LCWD_BASE usual = set(of, "WX", "", "WXT");
    usual.gd = 2.2;    // 0.4 + 0.6/2.2 = 0.67272727...
    EXPECT_EQ(combine(of, {usual}, 1)[1], "0 | WX 0.6727272727272727, WXT 0.8 | 0.672727WX + 0.8WXT");
}

TEST(WindCombinations, WalkTheCasesInTheirSequenceAndTheSetsOfACaseInListOrder)
{
    const auto of = model("W2:W W1:W A1:WA A2:WA");
    EXPECT_EQ(combine(of, {set(of, "W1", "A1", "", 0), set(of, "W2", "A2", "", 0), set(of, "W1", "A2", "", 0)}), (Lines{
        "0 | W2 1, A2 1 | W2 + A2",
        "0 | W2 1, A2 -1 | W2 - A2",
        "0 | W1 1, A1 1 | W1 + A1",
        "0 | W1 1, A1 -1 | W1 - A1",
        "0 | W1 1, A2 1 | W1 + A2",
        "0 | W1 1, A2 -1 | W1 - A2",
    }));
}

TEST(WindCombinations, AWindCaseInNoSetStandsByItself)
{
    const auto of = model("WX:W WY:W WYA:WA");
    EXPECT_EQ(combine(of, {set(of, "WY", "WYA", "", 0)}), (Lines{
        "0 | WX 1 | WX",
        "0 | WY 1, WYA 1 | WY + WYA",
        "0 | WY 1, WYA -1 | WY - WYA",
    }));
}

TEST(WindCombinations, ASetWhoseAlongCaseIsMissingOrOfAnotherTypeIsNeverMet)
{
    const auto of = model("WX:W WXA:WA L:L");
    EXPECT_EQ(combine(of, {set(of, "gone", "WXA", "", 0), set(of, "L", "WXA", "", 0)}), (Lines{"0 | WX 1 | WX"}));
}

TEST(WindCombinations, AreNoneWithoutSetsOrWithoutWindCases)
{
    const auto of = model(oneWind);
    EXPECT_TRUE(combine(of, {}).empty());
    const auto calm = model("DL:D WXA:WA");
    EXPECT_TRUE(combine(calm, {set(calm, "DL", "WXA", "")}).empty());
}

TEST(WindCombinations, CarryTheDesignKind)
{
    const auto of = model(oneWind);
    T_LCWD_D record;
    record.sets = {set(of, "WX", "", "")};
    EXPECT_EQ(makeWindCombinations(record, of.cases, 3).front().kind, 3);
}

}  // namespace
