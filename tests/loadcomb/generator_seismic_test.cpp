#include "loadcomb/generator_fixture.h"

#include <gtest/gtest.h>

// Seismic factors and underground sets: how they are read, and what they do.
namespace {

using generated::Generator;
using generated::GeneratorModel;
using generated::GeneratorOptions;
using generated::key;
using generated::Lines;
using generated::model;
using generated::run;

/// @param combType  0 strength, 1 special, 2 vertical, 3 underground, 4 underground special
GeneratorOptions ofType(int combType)
{
    GeneratorOptions options;
    options.combType = static_cast<zel::codes::CombType>(combType);
    return options;
}

struct Downgrade {
    const char* what;
    int asked;
    double shortPeriodCoefficient, verticalLoadFactor, verticalForceFactor;
    int becomes;
};
constexpr Downgrade downgrades[] = {
    {"strength stays", 0, 0.0, 0.0, 0.0, 0},
    {"special with both", 1, 0.5, 0.2, 0.0, 1},
    {"special without coefficient", 1, 0.0, 0.2, 0.3, 0},
    {"special without vertical factor", 1, 0.5, 0.0, 0.3, 0},
    {"vertical with its factor", 2, 0.0, 0.0, 0.2, 2},
    {"vertical without", 2, 0.5, 0.2, 0.0, 0},
    {"underground stays", 3, 0.0, 0.0, 0.0, 3},
    {"underground special with both", 4, 0.5, 0.2, 0.0, 4},
    {"underground special without", 4, 0.5, 0.0, 0.3, 3},
};

TEST(SeismicFactors, WithoutThemTheTypeFallsBack)
{
    for (const Downgrade& row : downgrades) {
        GeneratorModel of = model("DL:D");
        of.seismic.emplace();
        of.seismic->shortPeriodCoefficient = row.shortPeriodCoefficient;
        of.seismic->verticalLoadFactor = row.verticalLoadFactor;
        of.seismic->verticalForceFactor = row.verticalForceFactor;
        of.undergroundSeismic.emplace();
        of.undergroundSeismic->shortPeriodCoefficient = row.shortPeriodCoefficient;
        of.undergroundSeismic->verticalLoadFactor = row.verticalLoadFactor;
        Generator generator(of, ofType(row.asked));
        generator.readSeismicFactors();
        EXPECT_EQ(static_cast<int>(generator.state().combType), row.becomes) << row.what;
    }
}

TEST(SeismicFactors, ARecordThatCannotBeReadLeavesZeros)
{
    for (const auto& [asked, becomes] : {std::pair{1, 0}, std::pair{2, 0}, std::pair{4, 3}}) {
        Generator generator(model("DL:D"), ofType(asked));
        generator.readSeismicFactors();
        EXPECT_EQ(static_cast<int>(generator.state().combType), becomes);
        EXPECT_EQ(generator.state().shortPeriodCoefficient, 0.0);
    }
}

TEST(SeismicFactors, UndergroundTypesReadTheirOwnRecord)
{
    GeneratorModel of = model("DL:D EX:E");
    of.seismic.emplace();
    of.seismic->shortPeriodCoefficient = 0.9;
    of.seismic->overStrengthFactors = {{key(of, "EX"), 9.0}};
    of.undergroundSeismic.emplace();
    of.undergroundSeismic->shortPeriodCoefficient = 0.5;
    of.undergroundSeismic->overStrengthFactors = {{key(of, "EX"), 2.5}};
    Generator generator(of, ofType(4));
    generator.readSeismicFactors();
    EXPECT_EQ(generator.state().shortPeriodCoefficient, 0.5);
    EXPECT_EQ(generator.state().overstrengthOf(key(of, "EX")), 2.5);
}

TEST(VerticalSeismicLoad, AddsTwoRowsWithTheNegativeVerticalFactor)
{
    GeneratorModel of = model("DL:D EX:E");
    of.seismic.emplace();
    of.seismic->verticalForceFactor = 0.2;
    for (const char* code : {"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KCI-USD12", "KBC-USD09"}) {
        const Lines all = run(of, code, ofType(2));
        ASSERT_GT(all.size(), 2U) << code;
        EXPECT_EQ(all[all.size() - 2], "1 | DL -0.2, EX 1 | -(-0.2)D + 1.0EX") << code;
        EXPECT_EQ(all[all.size() - 1], "1 | DL -0.2, EX -1 | -(-0.2)D - 1.0EX") << code;
    }
}

TEST(SpecialSeismicLoad, ShowsBothFactorsAndPutsTheirProductIntoTheDeadLoad)
{
    GeneratorModel of = model("DL:D EX:E");
    of.seismic.emplace();
    of.seismic->shortPeriodCoefficient = 0.5;
    of.seismic->verticalLoadFactor = 0.25;
    of.seismic->overStrengthFactors = {{key(of, "EX"), 2.5}};
    const Lines all = run(of, "KDS 41 20 : 2022", ofType(1));
    // The token of the spectrum shows the coefficient and that of the coefficient the vertical factor.
    EXPECT_NE(std::find(all.begin(), all.end(), "1 | DL 1.325, EX 2.5 | 1.2D + 1.0(2.5)EX + (0.25)(0.5)D"), all.end());
    EXPECT_NE(std::find(all.begin(), all.end(), "1 | DL 0.775, EX -2.5 | 0.9D - 1.0(2.5)EX - (0.25)(0.5)D"), all.end());
}

/// A basement: EX with static and seismic earth pressure in both directions.
GeneratorModel basement()
{
    GeneratorModel of = model("DL:D LL:L EX:E EXT:ES S1:EH S2:EH P1:EEP");
    of.underground.emplace();
    of.underground->groups = {
        {key(of, "EX"), 0, {key(of, "P1")}, {key(of, "S2"), key(of, "S1")}},    // plus
        {key(of, "EX"), 1, {}, {key(of, "S2")}},                                // minus
    };
    return of;
}

TEST(UndergroundSets, AreReadForUndergroundTypesAlone)
{
    for (int type : {0, 1, 2}) {
        Generator generator(basement(), ofType(type));
        generator.readUndergroundSets();
        EXPECT_TRUE(generator.state().undergroundByCase.empty()) << type;
    }
    for (int type : {3, 4}) {
        Generator generator(basement(), ofType(type));
        generator.readUndergroundSets();
        EXPECT_EQ(generator.state().undergroundByCase.size(), 2U) << type;
        EXPECT_EQ(generator.state().undergroundByCaseOther.size(), 1U) << "an empty list is no entry";
    }
}

TEST(UndergroundSets, ReplaceTheScaleFactorsThatTheUserChose)
{
    GeneratorModel of = basement();
    of.underground->scaleUps = {{1.5, key(of, "EX"), key(of, "EXT")}, {1.2, key(of, "LL"), 99}};
    GeneratorOptions options = ofType(3);
    options.scaleFactors = {{key(of, "EX"), 9.0}};
    options.eccentricCases = {{key(of, "DL"), key(of, "EXT")}};
    Generator generator(of, options);
    generator.readUndergroundSets();
    EXPECT_EQ(generator.state().scaleFactors, (zel::loadcomb::KeyFactors{{key(of, "EX"), 1.5}, {key(of, "LL"), 1.2}}));
    EXPECT_EQ(generator.state().eccentricCases, (zel::loadcomb::KeyPairs{{key(of, "EX"), key(of, "EXT")}})) << "a partner that is gone is none";
}

TEST(UndergroundSets, AreDroppedEvenIfTheModelHasNone)
{
    GeneratorOptions options = ofType(3);
    options.scaleFactors = {{1, 9.0}};
    Generator generator(model("EX:E"), options);
    generator.readUndergroundSets();
    EXPECT_TRUE(generator.state().scaleFactors.empty());
}

Lines undergroundRow(const GeneratorModel& of, int flag, std::string_view text, std::initializer_list<generated::Factor> factors, int type = 3)
{
    Generator generator(of, ofType(type));
    generator.readUndergroundSets();
    generator.readSeismicFactors();
    return generated::add(generator, of, flag, text, factors);
}

TEST(UndergroundExtras, TakeTheRatioOfLiveLoadToEarthquake)
{
    // a = 1.6, b = 0.5: ratio 3.2. Static pressures |f| * 3.2 = 1.6, keys ascending, then seismic ones |f*g| = 0.5.
    EXPECT_EQ(undergroundRow(basement(), 1, "1.2DL + 0.5(SUF)EL + 1.6LL", {{"DL", 1.2}, {"EL", 0.5}, {"LL", 1.6}}), (Lines{
        "1 | DL 1.2, EX 0.5, LL 1.6, S1 1.6, S2 1.6, P1 0.5 | 1.2D + 0.5EX + 1.6L + 1.6S1 + 1.6S2 + 0.5P1",
    }));
}

TEST(UndergroundExtras, FollowTheSignOfTheEarthquakeAndAreAlwaysAdded)
{
    EXPECT_EQ(undergroundRow(basement(), 1, "0.9DL - 1.0(SUF)EL", {{"DL", 0.9}, {"EL", -1.0}}), (Lines{"1 | DL 0.9, EX -1, S2 1 | 0.9D - 1.0EX + 1S2"}));
}

TEST(UndergroundExtras, HaveRatioOneWithoutLiveLoad)
{
    EXPECT_EQ(undergroundRow(basement(), 1, "0.9DL + 0.7(SUF)EL", {{"DL", 0.9}, {"EL", 0.7}}),
              (Lines{"1 | DL 0.9, EX 0.7, S1 0.7, S2 0.7, P1 0.7 | 0.9D + 0.7EX + 0.7S1 + 0.7S2 + 0.7P1"}));
}

TEST(UndergroundExtras, TakeTheRatioOfSmallFactorsToo)
{
    // a = 0.125, b = 0.5: ratio 0.25.
    EXPECT_EQ(undergroundRow(basement(), 1, "0.9DL + 0.5(SUF)EL + 0.125LL", {{"DL", 0.9}, {"EL", 0.5}, {"LL", 0.125}}), (Lines{
        "1 | DL 0.9, EX 0.5, LL 0.125, S1 0.125, S2 0.125, P1 0.5 | 0.9D + 0.5EX + 0.125L + 0.125S1 + 0.125S2 + 0.5P1",
    }));
}

TEST(UndergroundExtras, FindTheFactorsOfTheRatioAtAnyPlace)
{
    EXPECT_EQ(undergroundRow(basement(), 1, "0.5LL + 0.25(SUF)EL", {{"LL", 0.5}, {"EL", 0.25}}), (Lines{
        "1 | LL 0.5, EX 0.25, S1 0.5, S2 0.5, P1 0.25 | 0.5L + 0.25EX + 0.5S1 + 0.5S2 + 0.25P1",
    }));
}

TEST(UndergroundExtras, ComeInServiceRowsToo)
{
    EXPECT_EQ(undergroundRow(basement(), 0, "DL - 0.7(SUF)EL", {{"DL", 1.0}, {"EL", -0.7}}), (Lines{"0 | DL 1, EX -0.7, S2 0.7 | D - 0.7EX + 0.7S2"}));
}

TEST(UndergroundExtras, ComeWithBothVariantsOfAnEccentricPartner)
{
    GeneratorModel of = basement();
    of.underground->scaleUps = {{2.0, key(of, "EX"), key(of, "EXT")}};
    EXPECT_EQ(undergroundRow(of, 1, "0.9DL - 1.0(SUF)EL", {{"DL", 0.9}, {"EL", -1.0}}), (Lines{
        "1 | DL 0.9, EX -2, EXT -2, S2 1 | 0.9D - 1.0(2.0)[EX+EXT] + 1S2",
        "1 | DL 0.9, EX -2, EXT 2, S2 1 | 0.9D - 1.0(2.0)[EX-EXT] + 1S2",
    }));
}

TEST(UndergroundExtras, TakeTheOverstrengthFactorInSeismicPressuresAlone)
{
    GeneratorModel of = basement();
    of.undergroundSeismic.emplace();
    of.undergroundSeismic->shortPeriodCoefficient = 0.5;
    of.undergroundSeismic->verticalLoadFactor = 0.2;
    of.undergroundSeismic->overStrengthFactors = {{key(of, "EX"), 2.5}};
    EXPECT_EQ(undergroundRow(of, 1, "0.9DL + 1.0(SUF)(OMG)EL", {{"DL", 0.9}, {"EL", 1.0}}, 4),
              (Lines{"1 | DL 0.9, EX 2.5, S1 1, S2 1, P1 2.5 | 0.9D + 1.0(2.5)EX + 1S1 + 1S2 + 2.5P1"}));
}

TEST(UndergroundExtras, LeaveOutCasesThatAreGoneAndKeepNamesAsTheyAre)
{
    GeneratorModel of = model("DL:D EX:E HDL:EH");
    of.underground.emplace();
    of.underground->groups = {{key(of, "EX"), 0, {77}, {99, key(of, "HDL")}}};
    EXPECT_EQ(undergroundRow(of, 1, "0.9DL + 1.0(SUF)EL", {{"DL", 0.9}, {"EL", 1.0}}), (Lines{"1 | DL 0.9, EX 1, HDL 1 | 0.9D + 1.0EX + 1HDL"}));
}

TEST(UndergroundExtras, GiveARecordATemporaryNumberThatIsNotZero)
{
    GeneratorModel of = model("DL:D EX:E EY:E H:EH");
    of.underground.emplace();
    of.underground->groups = {{key(of, "EY"), 0, {}, {key(of, "H")}}};
    Generator generator(of, ofType(3));
    generator.readUndergroundSets();
    generated::give(generator, 1, "0.9DL + 1.0(SUF)EL", {{"DL", 0.9}, {"EL", 1.0}});
    ASSERT_EQ(generator.rows().size(), 2U);
    EXPECT_EQ(generator.rows()[0].number, 0);
    EXPECT_EQ(generator.rows()[1].number, 2) << "the place among the records of the row";
}

TEST(UndergroundExtras, OfEqualRowsAreOneCombination)
{
    const GeneratorModel of = basement();
    Generator generator(of, ofType(3));
    generator.readUndergroundSets();
    generated::give(generator, 1, "0.9DL + 1.0(SUF)EL", {{"DL", 0.9}, {"EL", 1.0}});
    generated::give(generator, 1, "0.9(DL) + 1.0EL", {{"DL", 0.9}, {"EL", 1.0}});
    EXPECT_EQ(generator.rows().size(), 1U);
}

TEST(UndergroundExtras, AreNotReadByKbc16)
{
    GeneratorOptions options = ofType(3);
    const GeneratorModel of = basement();
    options.scaleFactors = {{key(of, "EX"), 1.25}};
    for (const std::string& line : run(of, "KBC-USD16", options))
        EXPECT_EQ(line.find("S1"), std::string::npos) << line;
    const Lines all = run(of, "KBC-USD16", options);
    EXPECT_NE(std::find(all.begin(), all.end(), "1 | DL 0.9, EX 1.25 | 0.9D + 1.0(1.25)EX"), all.end()) << "what the user chose stays";
}

}  // namespace
