#include "loadcomb/generation/code_rows.h"

#include <charconv>
#include <gtest/gtest.h>

// How printed rows are written out: signs, X, wind numbers, conditions and computed factors.
namespace {

using namespace zel::codes;
using zel::loadcomb::countRows;
using zel::loadcomb::RowValues;
using zel::loadcomb::typeFact;
using zel::loadcomb::writeRows;
using zel::loadcomb::WrittenRow;

using Lines = std::vector<std::string>;

std::string shortest(double value)
{
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

Facts factsOf(std::initializer_list<Word> words)
{
    Facts facts = 0;
    for (const Word word : words)
        facts |= fact(word);
    return facts;
}

constexpr WindScale scale{{{"0.85", 0.85}, {"0.65", 0.65}, {"1.3", 1.3}, {"(0.75*0.85)", 0.6375}}};

/// One line a row: "1 | 0.9DL + 1.3WL | DL 0.9, WL 1.3".
Lines written(std::span<const Row> rows, Facts facts = 0, const RowValues& values = {}, bool liveRoofIsSnow = false)
{
    const Part part{"part", Reads::nothing, "", rows, liveRoofIsSnow};
    Lines lines;
    writeRows(part, scale, facts, values, [&lines](const WrittenRow& row) {
        std::string line = std::to_string(row.flag) + " | " + row.text + " |";
        for (const WrittenRow::Factor& factor : row.factors)
            line.append(" ").append(factor.group).append(" ").append(shortest(factor.factor));
        lines.push_back(line);
    });
    return lines;
}

TEST(PrintedRows, BothSignsAreTwoRowsPlusFirst)
{
    static constexpr Row rows[] = {{"1", service, "", "(DL + WL)/1.5 ± 0.7EL", {{"DL", 1.0}, {"WL", 0.5}, {"EL", 0.7}}}};
    EXPECT_EQ(written(rows), (Lines{
        "0 | (DL + WL)/1.5 + 0.7EL | DL 1 WL 0.5 EL 0.7",
        "0 | (DL + WL)/1.5 - 0.7EL | DL 1 WL 0.5 EL -0.7",
    }));
}

TEST(PrintedRows, OfOneBlockAreWalkedTogetherForEachX)
{
    static constexpr Row rows[] = {
        {"U3", strength, "", "DL + X", {{"DL", 1.0}, {"X", 1.6}}},
        {"U3", strength, "", "DL + X ± WL", {{"DL", 1.0}, {"X", 1.6}, {"WL", 0.5}}},
        {"U4", strength, "", "DL + 2X", {{"DL", 1.0}, {"X", 2.0}}},
    };
    EXPECT_EQ(written(rows), (Lines{
        "1 | DL + LR | DL 1 LR 1.6", "1 | DL + LR + WL | DL 1 LR 1.6 WL 0.5", "1 | DL + LR - WL | DL 1 LR 1.6 WL -0.5",
        "1 | DL + SL | DL 1 SL 1.6", "1 | DL + SL + WL | DL 1 SL 1.6 WL 0.5", "1 | DL + SL - WL | DL 1 SL 1.6 WL -0.5",
        "1 | DL + RL | DL 1 RL 1.6", "1 | DL + RL + WL | DL 1 RL 1.6 WL 0.5", "1 | DL + RL - WL | DL 1 RL 1.6 WL -0.5",
        "1 | DL + 2LR | DL 1 LR 2", "1 | DL + 2SL | DL 1 SL 2", "1 | DL + 2RL | DL 1 RL 2",
    }));
}

TEST(PrintedRows, ARowWithoutXEndsTheWalk)
{
    static constexpr Row rows[] = {
        {"1", strength, "", "X", {{"X", 1.0}}},
        {"1", strength, "", "DL", {{"DL", 1.0}}},
    };
    EXPECT_EQ(written(rows), (Lines{"1 | LR | LR 1", "1 | SL | SL 1", "1 | RL | RL 1", "1 | DL | DL 1"}));
}

TEST(PrintedRows, WindNumbersStandInTextAndFactor)
{
    static constexpr Row rows[] = {
        {"1", service, "", "DL ± w1WL", {{"DL", 1.0}, {"WL", 1.0, w1}}},
        {"2", service, "", "DL + w4WL", {{"DL", 1.0}, {"WL", 1.0, w4}}},
    };
    EXPECT_EQ(written(rows), (Lines{
        "0 | DL + 0.85WL | DL 1 WL 0.85",
        "0 | DL - 0.85WL | DL 1 WL -0.85",
        "0 | DL + (0.75*0.85)WL | DL 1 WL 0.6375",
    }));
}

TEST(PrintedRows, FactorsAreComputedFromTheValues)
{
    static constexpr Row rows[] = {{"1", strength, "", "DL EV EH EL EP",
                                    {{"DL", 1.2, plusSpectrum}, {"EV", 1.6, alphaH}, {"EH", 0.9, minusSpectrum}, {"EL", -1.0, verticalForce}, {"EP", 1.0}}}};
    EXPECT_EQ(written(rows, 0, {0.875, 0.5, 0.25, 0.2}), (Lines{"1 | DL EV EH EL EP | DL 1.325 EV 1.4000000000000001 EH 0.775 EL -0.2 EP 1"}));
}

TEST(PrintedRows, AFactorOfExactlyZeroIsNoPair)
{
    static constexpr Row rows[] = {{"1", strength, "", "DL (APH)EV", {{"DL", 1.0}, {"EV", 1.0, alphaH}}}};
    EXPECT_EQ(written(rows, 0, {0.0, 0.0, 0.0, 0.0}), (Lines{"1 | DL (APH)EV | DL 1"}));
}

TEST(PrintedRows, TheSecondPassMeansSnowWhereTheRowsSayLiveRoof)
{
    static constexpr Row rows[] = {
        {"1", strength, "LL or LR", "DL + LR", {{"DL", 1.0}, {"LR", 1.4}}},
        {"2", strength, "first-pass", "DL", {{"DL", 1.0}}},
        {"3", strength, "no LR", "LL", {{"LL", 1.0}}},
    };
    const Lines first{"1 | DL + LR | DL 1 LR 1.4", "1 | DL | DL 1"};
    EXPECT_EQ(written(rows, factsOf({Word::LR})), first);
    // The text is turned later, by the flag; groups and conditions are turned here.
    EXPECT_EQ(written(rows, factsOf({Word::SL}), {}, true), (Lines{"11 | DL + LR | DL 1 SL 1.4"}));
    EXPECT_EQ(written(rows, factsOf({Word::LR}), {}, true), (Lines{"11 | LL | LL 1"}));
}

TEST(PrintedRows, IncrementsAreForSpecialTypesAndNeverForServiceRows)
{
    static constexpr Row rows[] = {
        {"1", service, "increments", "DL", {{"DL", 1.0}}},
        {"2", strength, "increments", "DL", {{"DL", 2.0}}},
        {"3", strength, "no increments", "DL", {{"DL", 3.0}}},
    };
    for (int type : {1, 4})
        EXPECT_EQ(written(rows, typeFact(type)), (Lines{"1 | DL | DL 2"})) << type;
    for (int type : {0, 2, 3, 9, -1})
        EXPECT_EQ(written(rows, typeFact(type)), (Lines{"1 | DL | DL 3"})) << type;
}

TEST(PrintedRows, AreCountedWithSignsAndXWrittenOut)
{
    static constexpr Row rows[] = {
        {"1", strength, "", "DL", {{"DL", 1.0}}},
        {"2", strength, "", "DL ± WL", {{"DL", 1.0}, {"WL", 1.0}}},
        {"3", strength, "", "X ± WL", {{"X", 1.0}, {"WL", 1.0}}},
    };
    static constexpr Part parts[] = {{"part", Reads::nothing, "", rows}};
    EXPECT_EQ(countRows(CodeTable{parts}), 1 + 2 + 6);
}

struct ConditionCase {
    Condition condition;
    Facts facts;
    bool met;
};

TEST(Conditions, AreTermsThatMustAllHold)
{
    const ConditionCase cases[] = {
        {"", 0, true},
        {"LL", factsOf({Word::LL}), true},
        {"LL", factsOf({Word::LR}), false},
        {"no LL", 0, true},
        {"no LL", factsOf({Word::LL}), false},
        {"LL or WL", factsOf({Word::WL}), true},
        {"LL or WL", 0, false},
        {"LL, no WL", factsOf({Word::LL}), true},
        {"LL, no WL", factsOf({Word::LL, Word::WL}), false},
        {"EP or WP, EL or no WL", factsOf({Word::EP}), true},
        {"EP or WP, EL or no WL", factsOf({Word::WP, Word::WL}), false},
        {"EP or WP, EL or no WL", factsOf({Word::WP, Word::WL, Word::EL}), true},
        {"strength or special or vertical", typeFact(2), true},
        {"strength or special or vertical", typeFact(3), false},
    };
    for (const ConditionCase& row : cases)
        EXPECT_EQ(row.condition.met(row.facts), row.met) << row.condition.text << " of " << row.facts;
}

}  // namespace
