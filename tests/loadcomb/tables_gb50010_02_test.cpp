#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::gb50010_02;

TEST(Gb50010Of2002, DeadAndLiveLoadGiveThreeRows)
{
    EXPECT_EQ(lines(gb50010_02, "DL LL"), (Lines{
        "strength 1: DL 1.35, LL 0.98",
        "strength 2: DL 1.2, LL 1.4",
        "strength 3: DL 1, LL 1.4",
    }));
}

TEST(Gb50010Of2002, WithoutLiveLoadDeadLoadStandsAlone)
{
    EXPECT_EQ(lines(gb50010_02, "DL"), (Lines{
        "strength 4: DL 1.2",
        "strength 5: DL 1",
    }));
}

// The first pass does not look at snow: it has neither live nor roof live load.
TEST(Gb50010Of2002, SnowAloneIsTheLiveLoadOfTheSecondPass)
{
    EXPECT_EQ(lines(gb50010_02, "DL SL"), (Lines{
        "strength 4: DL 1.2",
        "strength 5: DL 1",
        "strength 1 with snow: DL 1.35, SL 0.98",
        "strength 2 with snow: DL 1.2, SL 1.4",
        "strength 3 with snow: DL 1, SL 1.4",
    }));
}

TEST(Gb50010Of2002, TheSecondPassRepeatsAllButWindAlone)
{
    EXPECT_EQ(lines(gb50010_02, "DL LL SL WL"), (Lines{
        "strength 1: DL 1.35, LL 0.98",
        "strength 2: DL 1.2, LL 1.4",
        "strength 3: DL 1, LL 1.4",
        "strength 6: DL 1.2, WL 1.4",
        "strength 7: DL 1.2, WL -1.4",
        "strength 8: DL 1, WL 1.4",
        "strength 9: DL 1, WL -1.4",
        "strength 10: DL 1.2, LL 1.4, WL 0.84",
        "strength 11: DL 1.2, LL 1.4, WL -0.84",
        "strength 12: DL 1, LL 1.4, WL 0.84",
        "strength 13: DL 1, LL 1.4, WL -0.84",
        "strength 14: DL 1.2, LL 0.98, WL 1.4",
        "strength 15: DL 1.2, LL 0.98, WL -1.4",
        "strength 16: DL 1, LL 0.98, WL 1.4",
        "strength 17: DL 1, LL 0.98, WL -1.4",
        "strength 1 with snow: DL 1.35, LL 0.98, SL 0.98",
        "strength 2 with snow: DL 1.2, LL 1.4, SL 1.4",
        "strength 3 with snow: DL 1, LL 1.4, SL 1.4",
        "strength 10 with snow: DL 1.2, LL 1.4, SL 1.4, WL 0.84",
        "strength 11 with snow: DL 1.2, LL 1.4, SL 1.4, WL -0.84",
        "strength 12 with snow: DL 1, LL 1.4, SL 1.4, WL 0.84",
        "strength 13 with snow: DL 1, LL 1.4, SL 1.4, WL -0.84",
        "strength 14 with snow: DL 1.2, LL 0.98, SL 0.98, WL 1.4",
        "strength 15 with snow: DL 1.2, LL 0.98, SL 0.98, WL -1.4",
        "strength 16 with snow: DL 1, LL 0.98, SL 0.98, WL 1.4",
        "strength 17 with snow: DL 1, LL 0.98, SL 0.98, WL -1.4",
    }));
}

TEST(Gb50010Of2002, EarthquakeStandsWithHalfTheLiveLoadAndAFifthOfWind)
{
    EXPECT_EQ(lines(gb50010_02, "DL LR WL EL"), (Lines{
        "strength 1: DL 1.35, LR 0.98",
        "strength 2: DL 1.2, LR 1.4",
        "strength 3: DL 1, LR 1.4",
        "strength 6: DL 1.2, WL 1.4",
        "strength 7: DL 1.2, WL -1.4",
        "strength 8: DL 1, WL 1.4",
        "strength 9: DL 1, WL -1.4",
        "strength 10: DL 1.2, LR 1.4, WL 0.84",
        "strength 11: DL 1.2, LR 1.4, WL -0.84",
        "strength 12: DL 1, LR 1.4, WL 0.84",
        "strength 13: DL 1, LR 1.4, WL -0.84",
        "strength 14: DL 1.2, LR 0.98, WL 1.4",
        "strength 15: DL 1.2, LR 0.98, WL -1.4",
        "strength 16: DL 1, LR 0.98, WL 1.4",
        "strength 17: DL 1, LR 0.98, WL -1.4",
        "strength 18: DL 1.2, LR 0.6, EL 1.3",
        "strength 19: DL 1.2, LR 0.6, EL -1.3",
        "strength 20: DL 1, LR 0.5, EL 1.3",
        "strength 21: DL 1, LR 0.5, EL -1.3",
        "strength 22: DL 1.2, LR 0.6, EL 1.3, WL 0.28",
        "strength 23: DL 1.2, LR 0.6, EL 1.3, WL -0.28",
        "strength 24: DL 1.2, LR 0.6, EL -1.3, WL 0.28",
        "strength 25: DL 1.2, LR 0.6, EL -1.3, WL -0.28",
        "strength 26: DL 1, LR 0.5, EL 1.3, WL 0.28",
        "strength 27: DL 1, LR 0.5, EL 1.3, WL -0.28",
        "strength 28: DL 1, LR 0.5, EL -1.3, WL 0.28",
        "strength 29: DL 1, LR 0.5, EL -1.3, WL -0.28",
    }));
}

// "(DL+0.5(LL+LR))" needs one of its three groups, and dead load is one.
TEST(Gb50010Of2002, EarthquakeNeedsNoLiveLoad)
{
    EXPECT_EQ(lines(gb50010_02, "DL EL"), (Lines{
        "strength 4: DL 1.2",
        "strength 5: DL 1",
        "strength 18: DL 1.2, EL 1.3",
        "strength 19: DL 1.2, EL -1.3",
        "strength 20: DL 1, EL 1.3",
        "strength 21: DL 1, EL -1.3",
    }));
}

TEST(Gb50010Of2002, AFullModelGetsBothPasses)
{
    EXPECT_EQ(rowNumbers(gb50010_02, tables::everyGroup), "strength 1-3 6-29 strength with snow 1-3 10-29");
    EXPECT_EQ(rowNumbers(gb50010_02, "DL LL LR WL EL"), "strength 1-3 6-29");
}

}  // namespace
