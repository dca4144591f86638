#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::csa_a23_3_94;

TEST(CsaA23Of1994, DeadAndLiveLoadGiveThreeRows)
{
    EXPECT_EQ(lines(csa_a23_3_94, "DL LL"), (Lines{
        "strength 1: DL 1.25, LL 1.5",
        "strength 4: DL 1.25",
        "strength 7: DL 1.25, LL 0.75*1.4",
    }));
}

TEST(CsaA23Of1994, WindAndEarthquake)
{
    EXPECT_EQ(lines(csa_a23_3_94, "DL LL WL EL"), (Lines{
        "strength 1: DL 1.25, LL 1.5",
        "strength 2: DL 0.85, WL 1.5",
        "strength 3: DL 0.85, WL -1.5",
        "strength 4: DL 1.25",
        "strength 5: DL 1.25, LL 0.75*1.4, WL 0.75*1.4",
        "strength 6: DL 1.25, LL 0.75*1.4, WL -0.75*1.4",
        "strength 7: DL 1.25, LL 0.75*1.4",
        "strength 8: DL 1.25, WL 0.75*1.4",
        "strength 9: DL 1.25, LL 0.9, WL 0.9",
        "strength 10: DL 1.25, LL 0.9, WL -0.9",
        "strength 11: DL 1, EL 1",
        "strength 12: DL 1, EL -1",
        "strength 13: DL 1, LL 0.5, EL 1",
        "strength 14: DL 1, LL 0.5, EL -1",
    }));
}

TEST(CsaA23Of1994, AFullModelGetsEveryRow)
{
    EXPECT_EQ(rowNumbers(csa_a23_3_94, tables::everyGroup), "strength 1-14");
    EXPECT_EQ(lines(csa_a23_3_94, tables::everyGroup).at(4), "strength 5: DL 1.25, LL 0.75*1.4, LR 0.75*1.4, WL 0.75*1.4");
}

TEST(CsaA23Of1994, TheSpellingOfRows5And6IsKept)
{
    EXPECT_EQ(csa_a23_3_94.parts[0].rows[4].text, "1.25DL + 0.7(1.5(LL+LR) + 1.50WL)");
    EXPECT_EQ(csa_a23_3_94.parts[0].rows[5].text, "1.25DL + 0.7(1.5(LL+LR) - 1.50WL)");
}

// The stray factor belongs to no load: it stands in the table and in no combination.
TEST(CsaA23Of1994, Row7KeepsItsFactorWithoutAGroup)
{
    const zel::codes::Row& row = csa_a23_3_94.parts[0].rows[6];
    EXPECT_EQ(row.pairs[3].group.name, "");
    EXPECT_EQ(row.pairs[3].factor, 0.875);
    EXPECT_EQ(lines(csa_a23_3_94, "DL LL LR").at(2), "strength 7: DL 1.25, LL 0.75*1.4, LR 0.75*1.4");
}

}  // namespace
