#include "loadcomb/generator_fixture.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

// Edge cases of the generation, each derived by hand from the rows of a code.
namespace {

using generated::addTo;
using generated::Generator;
using generated::GeneratorOptions;
using generated::key;
using generated::Lines;
using generated::model;
using generated::run;

// 0.75*1.4 is 1.0499999999999998.
TEST(Generator, GivesTheCombinationsOfAik94ForASmallModel)
{
    const Lines expected{
        "0 | DL 1, LL 1 | 1.0D + 1.0L",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, WX 0.6666666666666666 | (1.0D + 1.0L + 1.0WX)/1.5",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, WX -0.6666666666666666 | (1.0D + 1.0L - 1.0WX)/1.5",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, EX 0.6666666666666666 | (1.0D + 1.0L + 1.0EX)/1.5",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, EX -0.6666666666666666 | (1.0D + 1.0L - 1.0EX)/1.5",
        "1 | DL 1.4, LL 1.7 | 1.4D + 1.7L",
        "1 | DL 1.0499999999999998, LL 1.275, WX 1.275 | 0.75(1.4D + 1.7L + 1.7WX)",
        "1 | DL 1.0499999999999998, LL 1.275, WX -1.275 | 0.75(1.4D + 1.7L - 1.7WX)",
        "1 | DL 0.9, WX 1.3 | 0.9D + 1.3WX",
        "1 | DL 0.9, WX -1.3 | 0.9D - 1.3WX",
        "1 | DL 1.0499999999999998, LL 1.275, EX 1.4025 | 0.75(1.4D + 1.7L + 1.7(1.1EX))",
        "1 | DL 1.0499999999999998, LL 1.275, EX -1.4025 | 0.75(1.4D + 1.7L - 1.7(1.1EX))",
        "1 | DL 0.9, EX 1.43 | 0.9D + 1.3(1.1EX)",
        "1 | DL 0.9, EX -1.43 | 0.9D - 1.3(1.1EX)",
        "1 | DL 1.0499999999999998, LL 1.275 | 0.75(1.4D + 1.7L)",
        "1 | DL 1.4 | 1.4D",
    };
    EXPECT_EQ(run(model("DL:D LL:L WX:W EX:E"), "AIK-USD94"), expected);
}

TEST(Generator, NamesInOrder)
{
    const auto of = model("DL:D LL:L WX:W EX:E");
    Generator generator(of, {});
    generator.dispatch("AIK-USD94");
    ASSERT_EQ(generator.rows().size(), 16U);
    EXPECT_EQ(generator.rows().front().name, "gLCB1  ");
    EXPECT_EQ(generator.rows()[9].name, "gLCB10 ");
    EXPECT_EQ(generator.rows().back().name, "gLCB16 ");
}

TEST(Generator, ASecondWindCaseDoublesTheRowsWithWindFormulaFirst)
{
    const Lines all = run(model("DL:D LL:L WX:W WY:W"), "AIK-USD94");
    EXPECT_EQ(Lines(all.begin() + 1, all.begin() + 5), (Lines{
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, WX 0.6666666666666666 | (1.0D + 1.0L + 1.0WX)/1.5",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, WY 0.6666666666666666 | (1.0D + 1.0L + 1.0WY)/1.5",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, WX -0.6666666666666666 | (1.0D + 1.0L - 1.0WX)/1.5",
        "0 | DL 0.6666666666666666, LL 0.6666666666666666, WY -0.6666666666666666 | (1.0D + 1.0L - 1.0WY)/1.5",
    }));
}

TEST(Generator, LiveRoofWithoutLiveLoadKeepsTheRowAndLosesTheParentheses)
{
    EXPECT_EQ(run(model("DL:D LR:LR"), "AIK-USD94")[0], "0 | DL 1, LR 1 | 1.0D + 1.0LR");
}

TEST(Generator, NeitherLiveLoadNorLiveRoofDropsTheRow)
{
    EXPECT_EQ(run(model("DL:D"), "AIK-USD94"), (Lines{"1 | DL 1.4 | 1.4D"}));
}

TEST(Generator, EqualRowsGiveOneCombinationAndTheNumberFallsBack)
{
    const auto of = model("DL:D LL:L");
    Generator generator(of, {});
    generated::give(generator, 1, "1.2(DL+EV) + 1.6LL", {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}});
    generated::give(generator, 1, "1.2DL + 1.6LL", {{"DL", 1.2}, {"LL", 1.6}});
    generated::give(generator, 1, "1.4DL", {{"DL", 1.4}});
    ASSERT_EQ(generator.rows().size(), 2U);
    EXPECT_EQ(generator.rows()[0].description, "1.2D + 1.6L");
    EXPECT_EQ(generator.rows()[1].name, "gLCB2  ");
}

TEST(Generator, AServiceRowIsNoDuplicateOfAStrengthRow)
{
    const auto of = model("DL:D");
    Generator generator(of, {});
    generated::give(generator, 0, "1.0DL", {{"DL", 1.0}});
    generated::give(generator, 1, "1.0DL", {{"DL", 1.0}});
    EXPECT_EQ(generator.rows().size(), 2U);
}

TEST(Generator, SpecialSeismicLoadWithoutVerticalFactorGeneratesAsStrength)
{
    auto of = model("DL:D LL:L EX:E");
    of.seismic.emplace();
    of.seismic->shortPeriodCoefficient = 0.5;
    of.seismic->verticalLoadFactor = 0.0;
    of.seismic->overStrengthFactors = {{key(of, "EX"), 2.5}};
    GeneratorOptions special;
    special.combType = zel::codes::CombType::special;
    for (const zel::codes::CodeEntry& code : zel::codes::codeRegistry)
        EXPECT_EQ(run(of, code.name, special), run(of, code.name)) << code.name;
}

TEST(Generator, ACaseNameThatHoldsDLIsShortenedInTheDescription)
{
    EXPECT_EQ(addTo(model("DL:D WDL:W"), {}, 1, "0.9DL + 1.3WL", {{"DL", 0.9}, {"WL", 1.3}}), (Lines{"1 | DL 0.9, WDL 1.3 | 0.9D + 1.3WD"}));
}

TEST(Generator, AnEarthquakeCaseOutsideEveryPairIsLeftOutWithTheOrthogonalEffect)
{
    auto of = model("DL:D LL:L EX:E EY:E EZ:E");
    of.orthogonal.emplace();
    of.orthogonal->pairs = {{key(of, "EX"), key(of, "EY")}};
    GeneratorOptions options;
    options.orthoOption = true;
    const Lines all = run(of, "KDS 41 20 : 2022", options);
    EXPECT_FALSE(all.empty());
    for (const std::string& line : all)
        EXPECT_EQ(line.find("EZ"), std::string::npos) << line;
}

TEST(Generator, ASpecialRowWithoutEarthquakeCasesLosesEL)
{
    // "EL" is found in "(ZEL)" and so counts as standing in parentheses: the row stays and the first "EL" goes.
    auto of = model("DL:D EV:EV");
    of.seismic.emplace();
    of.seismic->shortPeriodCoefficient = 0.5;
    of.seismic->verticalLoadFactor = 0.2;
    GeneratorOptions special;
    special.combType = zel::codes::CombType::special;
    Generator generator(of, special);
    generator.readSeismicFactors();
    EXPECT_EQ(generated::add(generator, of, 1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + (SPC)(ZEL)(DL+EV)", {{"DL", 1.3}, {"EV", 1.3}, {"EL", 1.0}}),
              (Lines{"1 | DL 1.3, EV 1.3 | 1.2(D+EV) + 1.0(SUF)(OMG) + (0.2)(0.5)(D+EV)"}));
}

TEST(Generator, OnlyTheGeneralKindHasTables)
{
    for (int kind : {0, 2, 3, 4, 5, 6}) {
        GeneratorOptions options;
        options.kind = kind;
        Generator generator(model("DL:D"), options);
        EXPECT_TRUE(generator.dispatch("AIK-USD94"));
        EXPECT_TRUE(generator.rows().empty()) << kind;
    }
}

TEST(Generator, CodeNamesAreComparedExactly)
{
    for (const char* name : {"", "AIK-USD9", "aik-usd94", "AIK-USD94 ", "KDS 41 20: 2022"})
        EXPECT_TRUE(run(model("DL:D"), name).empty()) << name;
}

TEST(Generator, AModelWithoutLoadCasesIsNotDispatched)
{
    Generator generator({}, {});
    EXPECT_FALSE(generator.dispatch("AIK-USD94"));
}

TEST(Generator, ALoadCaseOfAnotherTypeTakesPartInNothing)
{
    EXPECT_EQ(run(model("DL:D LL:L T:T WA:WA"), "AIK-USD94"), run(model("DL:D LL:L"), "AIK-USD94"));
}

TEST(Generator, ANewStartForgetsTheRunBefore)
{
    Generator generator(model("DL:D LL:L"), {});
    generator.trace();
    for (int run = 0; run < 2; ++run) {
        generator.start(0, 0);
        ASSERT_TRUE(generator.dispatch("AIK-USD94"));
        EXPECT_EQ(generator.rows().size(), 4U) << run;    // 1.0D + 1.0L; 1.4D + 1.7L; 0.75(1.4D + 1.7L); 1.4D
        EXPECT_EQ(generator.rows().front().name, "gLCB1  ") << run;
        EXPECT_EQ(generator.origins().size(), 4U) << run;
        EXPECT_EQ(generator.outcomes().size(), 24U) << run << ": the printed rows of the code";
    }
}

TEST(Generator, ALoadCodeOfZeroWouldSelectTheOtherWindScale)
{
    const auto of = model("DL:D WX:W");
    GeneratorOptions other;
    other.loadCode = 0;
    EXPECT_EQ(run(of, "KDS 41 30 : 2018"), run(of, "KBC-USD16"));
    EXPECT_EQ(run(of, "KDS 41 30 : 2018", other), run(of, "KDS 41 20 : 2022"));
    EXPECT_NE(run(of, "KBC-USD16"), run(of, "KDS 41 20 : 2022"));
}

TEST(Generator, RowsSayWhyTheyGaveNothing)
{
    using zel::loadcomb::RowResult;
    auto of = model("DL:D EX:E");
    GeneratorOptions options;
    options.orthoOption = true;
    Generator generator(of, options);
    generated::give(generator, 1, "1.4DL", {{"DL", 1.4}});
    generated::give(generator, 1, "DL + WL", {{"DL", 1.0}, {"WL", 1.0}});
    generated::give(generator, 1, "DL + (LL+LR)", {{"DL", 1.0}, {"LL", 1.0}, {"LR", 1.0}});
    generated::give(generator, 1, "DL + EL", {{"DL", 1.0}, {"EL", 1.0}});
    generated::give(generator, 1, "1.4(DL)", {{"DL", 1.4}});
    generated::give(generator, 1, "0DL", {{"DL", 0.0}});
    const auto& outcomes = generator.outcomes();
    ASSERT_EQ(outcomes.size(), 6U);
    EXPECT_EQ(outcomes[0].result, RowResult::gave);
    EXPECT_EQ(outcomes[0].combinations, 1);
    EXPECT_EQ(outcomes[1].result, RowResult::groupWithoutCases);
    EXPECT_EQ(outcomes[1].missing, "WL");
    EXPECT_EQ(outcomes[2].result, RowResult::setWithoutCases);
    EXPECT_EQ(outcomes[2].missing, "LL, LR");
    EXPECT_EQ(outcomes[3].result, RowResult::noOrthogonalPair);
    EXPECT_EQ(outcomes[4].result, RowResult::onlyDuplicates);
    EXPECT_EQ(outcomes[4].duplicates, 1);
    EXPECT_EQ(outcomes[5].result, RowResult::noFactors);
    EXPECT_EQ(outcomes[1].source.text, "DL + WL");
}

TEST(Generator, KeepsWhereACombinationComesFromWhenItIsAsked)
{
    auto of = model("DL:D WX:W EX:E EXT:ES");
    GeneratorOptions options;
    options.scaleFactors = {{key(of, "EX"), 1.25}};
    options.eccentricCases = {{key(of, "EX"), key(of, "EXT")}};
    Generator generator(of, options);
    generator.trace();
    generated::give(generator, 1, "1.4DL", {{"DL", 1.4}});
    generated::give(generator, 1, "0.9DL + WL + 0.7(SUF)EL", {{"DL", 0.9}, {"WL", 1.0}, {"EL", 0.7}});
    generated::give(generator, 1, "1.4(DL)", {{"DL", 1.4}});
    const auto& origins = generator.origins();
    ASSERT_EQ(origins.size(), generator.rows().size());
    ASSERT_EQ(origins.size(), 3U);
    EXPECT_EQ(origins[0].absorbedRows, std::vector<std::size_t>{2});
    ASSERT_EQ(origins[2].choices.size(), 2U);
    EXPECT_EQ(origins[2].row, 1U);
    EXPECT_EQ(origins[2].choices[0].windCase, key(of, "WX"));
    const auto& earthquake = origins[2].choices[1].earthquakes.at(0);
    EXPECT_EQ(earthquake.key, key(of, "EX"));
    EXPECT_EQ(earthquake.scale, 1.25);
    EXPECT_EQ(earthquake.partner, key(of, "EXT"));
    EXPECT_EQ(earthquake.partnerSign, -1);

    Generator untraced(of, options);
    generated::give(untraced, 1, "1.4DL", {{"DL", 1.4}});
    EXPECT_TRUE(untraced.origins().empty());
}

}  // namespace
