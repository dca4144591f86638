#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::kbc_usd05;
using zel::codes::Word;

TEST(KbcUsd05, DeadAndLiveLoadGiveTheRowsOfTheirType)
{
    EXPECT_EQ(lines(kbc_usd05, "DL LL"), (Lines{
        "service 1: DL 1, LL 1",
        "strength 10: DL 1.4, LL 1.7",
        "strength 23: DL 0.75*1.4, LL 1.275",
        "strength 24: DL 1.4",
    }));
    EXPECT_EQ(lines(kbc_usd05, "DL LL", Word::typeSpecial), (Lines{
        "service 1: DL 1, LL 1",
        "strength 46: DL 0.75*1.4, LL 1.275",
        "strength 47: DL 1.4",
        "strength 56: DL 1.4, LL 1.7",
    }));
    // The vertical block has no row 1.4DL + 1.7(LL+LR).
    EXPECT_EQ(lines(kbc_usd05, "DL LL", Word::typeVertical), (Lines{
        "service 1: DL 1, LL 1",
        "strength 71: DL 0.75*1.4, LL 1.275",
        "strength 72: DL 1.4",
    }));
}

// Rows 13, 14, 19 and 20 stand in the strength block with the flag of service.
TEST(KbcUsd05, WindAndEarthquakeInTheOrdinaryBlock)
{
    EXPECT_EQ(lines(kbc_usd05, "DL LL WL EL"), (Lines{
        "service 1: DL 1, LL 1",
        "service 2: DL 2/3, LL 2/3, WL 2/3",
        "service 3: DL 2/3, LL 2/3, WL -2/3",
        "service 4: DL 2/3, WL 2/3",
        "service 5: DL 2/3, WL -2/3",
        "service 6: DL 2/3, LL 2/3, EL 0.7*2/3",
        "service 7: DL 2/3, LL 2/3, EL -0.7*2/3",
        "service 8: DL 2/3, EL 0.7*2/3",
        "service 9: DL 2/3, EL -0.7*2/3",
        "strength 10: DL 1.4, LL 1.7",
        "strength 11: DL 0.75*1.4, LL 1.275, WL 1.275",
        "strength 12: DL 0.75*1.4, LL 1.275, WL -1.275",
        "service 13: DL 0.75*1.4, WL 1.275",
        "service 14: DL 0.75*1.4, WL -1.275",
        "strength 15: DL 0.9, WL 1.3",
        "strength 16: DL 0.9, WL -1.3",
        "strength 17: DL 0.75*1.4, LL 1.275, EL 1",
        "strength 18: DL 0.75*1.4, LL 1.275, EL -1",
        "service 19: DL 0.75*1.4, EL 1",
        "service 20: DL 0.75*1.4, EL -1",
        "strength 21: DL 0.9, EL 1",
        "strength 22: DL 0.9, EL -1",
        "strength 23: DL 0.75*1.4, LL 1.275",
        "strength 24: DL 1.4",
    }));
}

// The vertical load of the spectrum goes with gravity in rows 40 and 41 and against it in 42 to 45.
TEST(KbcUsd05, TheSpecialBlockVariesTheDeadLoad)
{
    EXPECT_EQ(lines(kbc_usd05, "DL LR EL", Word::typeSpecial), (Lines{
        "service 1: DL 1, LR 1",
        "service 6: DL 2/3, LR 2/3, EL 0.7*2/3",
        "service 7: DL 2/3, LR 2/3, EL -0.7*2/3",
        "service 8: DL 2/3, EL 0.7*2/3",
        "service 9: DL 2/3, EL -0.7*2/3",
        "strength 40: DL 0.75*1.4 + S*V, LR 1.275, EL 1",
        "strength 41: DL 0.75*1.4 + S*V, LR 1.275, EL -1",
        "service 42: DL 0.75*1.4 - S*V, EL 1",
        "service 43: DL 0.75*1.4 - S*V, EL -1",
        "strength 44: DL 0.9 - S*V, EL 1",
        "strength 45: DL 0.9 - S*V, EL -1",
        "strength 46: DL 0.75*1.4, LR 1.275",
        "strength 47: DL 1.4",
        "strength 56: DL 1.4, LR 1.7",
    }));
}

// Rows 59, 60 and 65 to 68 have the flag of service. The first sign of wind with live load, row 57, belongs to the block before.
TEST(KbcUsd05, TheVerticalBlockLiftsTheDeadLoad)
{
    EXPECT_EQ(lines(kbc_usd05, "DL LL WL EL", Word::typeVertical), (Lines{
        "service 1: DL 1, LL 1",
        "service 2: DL 2/3, LL 2/3, WL 2/3",
        "service 3: DL 2/3, LL 2/3, WL -2/3",
        "service 4: DL 2/3, WL 2/3",
        "service 5: DL 2/3, WL -2/3",
        "service 6: DL 2/3, LL 2/3, EL 0.7*2/3",
        "service 7: DL 2/3, LL 2/3, EL -0.7*2/3",
        "service 8: DL 2/3, EL 0.7*2/3",
        "service 9: DL 2/3, EL -0.7*2/3",
        "strength 58: DL 0.75*1.4, LL 1.275, WL -1.275",
        "service 59: DL 0.75*1.4, WL 1.275",
        "service 60: DL 0.75*1.4, WL -1.275",
        "strength 61: DL 0.9, WL 1.3",
        "strength 62: DL 0.9, WL -1.3",
        "strength 63: DL 0.75*1.4, LL 1.275, EL 1",
        "strength 64: DL 0.75*1.4, LL 1.275, EL -1",
        "service 65: DL 0.75*1.4, EL 1",
        "service 66: DL 0.75*1.4, EL -1",
        "service 67: DL 0.9, EL 1",
        "service 68: DL 0.9, EL -1",
        "strength 69: DL -VER, EL 1",
        "strength 70: DL -VER, EL -1",
        "strength 71: DL 0.75*1.4, LL 1.275",
        "strength 72: DL 1.4",
    }));
}

TEST(KbcUsd05, PressuresCloseEachBlock)
{
    const Lines rows{
        ": DL 1.5, LL 1.7, FP 1.5", ": DL 0.9, LL 1.7, FP 1.5", ": DL 1.5, FP 1.5",         ": DL 0.9, FP 1.5",
        ": DL 1.4, LL 1.7, EP 1.8", ": DL 0.9, LL 1.7, EP 1.8", ": DL 1.4, EP 1.8",         ": DL 0.9, EP 1.8",
    };
    struct Block {
        Word type;
        int firstRow;
        std::size_t linesBefore;
    };
    for (const Block& block : {Block{Word::typeStrength, 25, 4}, Block{Word::typeSpecial, 48, 3}, Block{Word::typeVertical, 73, 3}}) {
        const Lines all = lines(kbc_usd05, "DL LL FP EP", block.type);
        ASSERT_GE(all.size(), block.linesBefore + rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
            EXPECT_EQ(all[block.linesBefore + i], "strength " + std::to_string(block.firstRow + static_cast<int>(i)) + rows[i]);
    }
}

// Row 33 repeats row 10 and row 57 repeats row 34.
TEST(KbcUsd05, AFullModelGetsEveryRowOfItsBlock)
{
    EXPECT_EQ(rowNumbers(kbc_usd05, tables::everyGroup),
              "service 1-9 strength 10-12 service 13-14 strength 15-18 service 19-20 strength 21-32");
    EXPECT_EQ(rowNumbers(kbc_usd05, tables::everyGroup, Word::typeSpecial), 
              "service 1-9 strength 34-35 service 36-37 strength 38-41 service 42-43 strength 44-56");
    EXPECT_EQ(rowNumbers(kbc_usd05, tables::everyGroup, Word::typeVertical), 
              "service 1-9 strength 58 service 59-60 strength 61-64 service 65-68 strength 69-80");
}

TEST(KbcUsd05, UndergroundTypesGetServiceRowsOnly)
{
    EXPECT_EQ(rowNumbers(kbc_usd05, tables::everyGroup, Word::typeUnderground), "service 1-9");
    EXPECT_EQ(rowNumbers(kbc_usd05, tables::everyGroup, Word::typeUndergroundSpecial), "service 1-9");
}

// They decide which strength block follows, and the service rows need nothing.
TEST(KbcUsd05, SeismicFactorsAreReadOnceBehindTheServiceRows)
{
    using zel::codes::Reads;
    ASSERT_EQ(kbc_usd05.parts.size(), 4U);
    EXPECT_EQ(kbc_usd05.parts[0].reads, Reads::nothing);
    EXPECT_EQ(kbc_usd05.parts[1].reads, Reads::seismicFactors);
    EXPECT_EQ(kbc_usd05.parts[2].reads, Reads::nothing);
    EXPECT_EQ(kbc_usd05.parts[3].reads, Reads::nothing);
}

}  // namespace
