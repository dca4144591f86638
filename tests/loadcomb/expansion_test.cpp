#include "loadcomb/generator_fixture.h"

#include <gtest/gtest.h>

namespace {

using generated::addTo;
using generated::Generator;
using generated::GeneratorOptions;
using generated::key;
using generated::Lines;
using generated::model;

TEST(PlainForm, GivesEachCaseOfTheGroupTheFactor)
{
    EXPECT_EQ(addTo(model("D1:D LL:L D2:D"), {}, 1, "1.4DL + 1.7LL", {{"DL", 1.4}, {"LL", 1.7}}), (Lines{"1 | D1 1.4, D2 1.4, LL 1.7 | 1.4D + 1.7L"}));
}

TEST(PlainForm, ItemsFollowThePairsAndNotTheText)
{
    EXPECT_EQ(addTo(model("DL:D LL:L"), {}, 1, "1.4DL + 1.7LL", {{"LL", 1.7}, {"DL", 1.4}}), (Lines{"1 | LL 1.7, DL 1.4 | 1.4D + 1.7L"}));
}

TEST(PlainForm, EvReplacesAlphaH)
{
    GeneratorOptions options;
    options.alphaH = 0.875;
    EXPECT_EQ(addTo(model("DL:D EV:EV"), options, 1, "DL + (APH)EV", {{"DL", 1.0}, {"EV", 0.875}}), (Lines{"1 | DL 1, EV 0.875 | D + (0.875)EV"}));
}

TEST(WindForm, GivesOneCombinationAWindCase)
{
    EXPECT_EQ(addTo(model("DL:D WX:W WY:W"), {}, 1, "0.9DL + 1.3WL", {{"DL", 0.9}, {"WL", 1.3}}), (Lines{
        "1 | DL 0.9, WX 1.3 | 0.9D + 1.3WX",
        "1 | DL 0.9, WY 1.3 | 0.9D + 1.3WY",
    }));
}

TEST(WindForm, MayStartARow)
{
    EXPECT_EQ(addTo(model("WX:W WY:W"), {}, 0, "1.0WL", {{"WL", 1.0}}), (Lines{"0 | WX 1 | 1.0WX", "0 | WY 1 | 1.0WY"}));
}

TEST(WindForm, ReplacesEveryOccurrenceAndTakesAPercentSignAsItIs)
{
    EXPECT_EQ(addTo(model("DL:D W%s:W"), {}, 1, "DL + WL (WL)", {{"DL", 1.0}, {"WL", 1.0}}), (Lines{"1 | DL 1, W%s 1 | D + W%s (W%s)"}));
}

TEST(CombinationForm, TakesTheEntriesOfTheWindSetsInParentheses)
{
    auto of = model("DL:D WX:W WXA:WA");
    of.windSets.emplace();
    of.windSets->sets = {{0, 0, key(of, "WX"), key(of, "WXA"), 0, 2.0, 0.8}};
    EXPECT_EQ(addTo(of, {}, 1, "0.9DL - 1.3WL", {{"DL", 0.9}, {"WL", -1.3}}), (Lines{
        "1 | DL 0.9, WX -1.3, WXA -1.3 | 0.9D - 1.3(WX + WXA)",
        "1 | DL 0.9, WX -1.3, WXA 1.3 | 0.9D - 1.3(WX - WXA)",
    }));
}

TEST(CombinationForm, MayStartARow)
{
    auto of = model("WX:W");
    of.windSets.emplace();
    of.windSets->sets = {{0, 1, key(of, "WX"), 0, 0, 2.0, 0.8}};
    EXPECT_EQ(addTo(of, {}, 1, "1.3WL", {{"WL", 1.3}}), (Lines{"1 | WX 1.3 | 1.3WX"}));
}

TEST(Expansion, TheGroupThatStandsFirstIsTheOuterLoop)
{
    EXPECT_EQ(addTo(model("DL:D W1:W W2:W E1:E E2:E"), {}, 1, "DL + WL + EL", {{"DL", 1.0}, {"WL", 1.0}, {"EL", 1.0}}), (Lines{
        "1 | DL 1, W1 1, E1 1 | D + W1 + E1",
        "1 | DL 1, W1 1, E2 1 | D + W1 + E2",
        "1 | DL 1, W2 1, E1 1 | D + W2 + E1",
        "1 | DL 1, W2 1, E2 1 | D + W2 + E2",
    }));
}

TEST(Expansion, AlternativesKeepTheirOrderWhenLaterGroupsAreAdded)
{
    EXPECT_EQ(addTo(model("DL:D LL:L W1:W W2:W"), {}, 1, "DL + WL + LL", {{"DL", 1.0}, {"WL", 0.5}, {"LL", 0.25}}), (Lines{
        "1 | DL 1, W1 0.5, LL 0.25 | D + W1 + L",
        "1 | DL 1, W2 0.5, LL 0.25 | D + W2 + L",
    }));
}

TEST(Rows, APairWithFactorZeroIsNone)
{
    EXPECT_EQ(addTo(model("DL:D LL:L"), {}, 1, "1.4DL", {{"DL", 1.4}, {"LL", 0.0}}), (Lines{"1 | DL 1.4 | 1.4D"}));
    EXPECT_TRUE(addTo(model("DL:D"), {}, 1, "1.4DL", {{"DL", 0.0}}).empty());
}

TEST(Rows, APairWithoutAGroupIsNone)
{
    EXPECT_EQ(addTo(model("DL:D"), {}, 1, "1.25DL", {{"DL", 1.25}, {"", 0.875}}), (Lines{"1 | DL 1.25 | 1.25D"}));
}

TEST(Rows, EarthquakeStartsFromTheRowTextWhenTheFactorsBeforeItAreZero)
{
    EXPECT_EQ(addTo(model("DL:D EX:E"), {}, 1, "0.9DL + 1.0(SUF)EL", {{"DL", 0.0}, {"EL", 1.0}}), (Lines{"1 | EX 1 | 0.9D + 1.0EX"}));
}

struct FlagCase {
    int flag;
    const char* text;
    int active;
};
// From 11 on the tens say which text is meant and the units are the flag.
constexpr FlagCase flags[] = {
    {0, "DL + LR", 0}, {1, "DL + LR", 1}, {11, "DL + SL", 1}, {31, "DL + SL", 1}, {21, "DL + LR", 1}, {30, "DL + SL", 0},
};

TEST(Rows, AServiceRowOfTheSecondPassIsStoredAsServiceAndReadsSnow)
{
    namespace codes = zel::codes;
    static constexpr codes::Row rows[] = {
        {"S", codes::service, "", "DL + (LL+LR)", {{"DL", 1.0}, {"LL", 1.0}, {"LR", 0.5}}},
        {"U", codes::strength, "", "1.2DL + 1.6LR", {{"DL", 1.2}, {"LR", 1.6}}},
    };
    static constexpr codes::Part parts[] = {{"With snow", codes::Reads::nothing, "SL", rows, codes::liveRoofIsSnow}};
    const auto of = model("DL:D LL:L roof:LR snow:S");
    Generator generator(of, {});
    generator.runTable(codes::CodeTable{parts});
    EXPECT_EQ(generated::lines(generator.rows(), of), (Lines{
        "0 | DL 1, LL 1, snow 0.5 | D + (L+S)",
        "1 | DL 1.2, snow 1.6 | 1.2D + 1.6S",
    }));
}

TEST(Rows, AServiceRowOfTheSecondPassTakesNoOverStrength)
{
    namespace codes = zel::codes;
    static constexpr codes::Row rows[] = {{"S", codes::service, "", "DL + (SUF)(OMG)EL", {{"DL", 1.0}, {"EL", 1.0}}}};
    static constexpr codes::Part parts[] = {{"With snow", codes::Reads::nothing, "", rows, codes::liveRoofIsSnow}};
    const auto of = model("DL:D EX:E");
    Generator generator(of, {});
    generator.state().combType = codes::CombType::special;
    generator.state().overstrength[2] = 2.5;
    generator.runTable(codes::CodeTable{parts});
    ASSERT_EQ(generator.rows().size(), 1U);
    EXPECT_EQ(generated::items(generator.rows().front().items, of), "DL 1, EX 1");
}

TEST(Rows, AFlagWithTensReadsSnowForLiveRoof)
{
    for (const FlagCase& row : flags) {
        const auto of = model("DL:D SL:S LR:LR");
        zel::loadcomb::Generator generator(of, {});
        generated::give(generator, row.flag, "DL + LR", {{"DL", 1.0}});
        ASSERT_EQ(generator.rows().size(), 1U) << row.flag;
        EXPECT_EQ(generator.rows().front().active, row.active) << row.flag;
        // "SL" in a text becomes "S" like every group name; LR stays.
        EXPECT_EQ(generator.rows().front().description, std::string_view(row.text) == "DL + SL" ? "D + S" : "D + LR") << row.flag;
    }
}

}  // namespace
