#include "loadcomb/generation/code_rows.h"

#include <charconv>
#include <gtest/gtest.h>

// How printed rows are written out: signs, X, wind numbers, conditions and computed factors.
namespace {

using namespace zel::codes;
using zel::loadcomb::countRows;
using zel::loadcomb::RowValues;
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

Facts typeFact(int number)
{
    return zel::loadcomb::typeFact(static_cast<CombType>(number));
}

constexpr WindScale scale{{{"0.85", 0.85}, {"0.65", 0.65}, {"1.3", 1.3}, {"(0.75*0.85)", 0.6375}}};

/// One line a row: "1 | 0.9DL + 1.3WL | DL 0.9, WL 1.3".
Lines written(std::span<const Row> rows, Facts facts = 0, const RowValues& values = {}, Pass pass = asPrinted)
{
    const Part part{"part", Reads::nothing, "", rows, pass};
    Lines lines;
    writeRows(part, scale, facts, values, [&lines](const WrittenRow& row) {
        std::string line = std::to_string(static_cast<int>(row.flag)) + " | " + row.text + " |";
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
    EXPECT_EQ(written(rows, factsOf({Word::SL}), {}, liveRoofIsSnow), (Lines{"1 | DL + SL | DL 1 SL 1.4"}));
    EXPECT_EQ(written(rows, factsOf({Word::LR}), {}, liveRoofIsSnow), (Lines{"1 | LL | LL 1"}));
}

TEST(PrintedRows, AServiceRowOfTheSecondPassStaysAServiceRowAndItsXMeansSnowToo)
{
    static constexpr Row rows[] = {
        {"1", service, "", "DL + LR", {{"DL", 1.0}, {"LR", 1.0}}},
        {"2", service, "", "DL + X", {{"DL", 1.0}, {"X", 0.5}}},
    };
    EXPECT_EQ(written(rows, 0, {}, liveRoofIsSnow), (Lines{
        "0 | DL + SL | DL 1 SL 1",
        "0 | DL + SL | DL 1 SL 0.5", "0 | DL + SL | DL 1 SL 0.5", "0 | DL + RL | DL 1 RL 0.5",
    }));
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
    for (int type : {0, 2, 3, 5, 6, 9, -1})
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

TEST(PrintedRows, ANumberThatIsNoTypeOfCombinationsIsNoFact)
{
    for (int type : {0, 1, 2, 3, 4})
        EXPECT_NE(typeFact(type), 0U) << type;
    for (int type : {-21, -1, 5, 6, 7, 19, 100})
        EXPECT_EQ(typeFact(type), 0U) << type;
}

/// One line a listed row: "S1 | service | DL + 0.85WL | when | of the part | title | clause".
Lines listed(const CodeTable& table)
{
    Lines lines;
    for (const zel::loadcomb::ListedRow& row : zel::loadcomb::listRows(table)) {
        std::string line(row.block);
        for (const std::string_view part : {std::string_view(row.flag == service ? "service" : "strength"), std::string_view(row.formula), row.condition,
                                            row.partCondition, row.part, row.clause})
            line.append(" | ").append(part);
        lines.push_back(line);
    }
    return lines;
}

TEST(PrintedRows, AreListedWhateverTheirConditionsWithSignsXAndWindNumbersWrittenOut)
{
    static constexpr Row rows[] = {
        {"S1", service, "no LL", "DL ± w1WL", {{"DL", 1.0}, {"WL", 1.0, w1}}},
        {"U1", strength, "increments", "1.2DL + X", {{"DL", 1.2, plusSpectrum}, {"X", 1.0}}},
    };
    static constexpr Part parts[] = {
        {"First", Reads::nothing, "vertical", rows, asPrinted, "2.3.1"},
        {"With snow", Reads::nothing, "", rows, liveRoofIsSnow},
    };
    const CodeTable table{parts, scale};
    EXPECT_EQ(listed(table), (Lines{
        "S1 | service | DL + 0.85WL | no LL | vertical | First | 2.3.1",
        "S1 | service | DL - 0.85WL | no LL | vertical | First | 2.3.1",
        "U1 | strength | 1.2DL + LR | increments | vertical | First | 2.3.1",
        "U1 | strength | 1.2DL + SL | increments | vertical | First | 2.3.1",
        "U1 | strength | 1.2DL + RL | increments | vertical | First | 2.3.1",
        "S1 | service | DL + 0.85WL | no LL |  | With snow | ",
        "S1 | service | DL - 0.85WL | no LL |  | With snow | ",
        "U1 | strength | 1.2DL + SL | increments |  | With snow | ",
        "U1 | strength | 1.2DL + SL | increments |  | With snow | ",
        "U1 | strength | 1.2DL + RL | increments |  | With snow | ",
    }));
    EXPECT_EQ(countRows(table), 10);
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
