#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::aci318_02;

TEST(Aci318Of2002, DeadAndLiveLoadGiveTwoRows)
{
    EXPECT_EQ(lines(aci318_02, "DL LL"), (Lines{
        "strength 2: DL 1.4",
        "strength 3: DL 1.2, LL 1.6",
    }));
}

TEST(Aci318Of2002, RoofSnowAndRainEachTakeTheirTurn)
{
    EXPECT_EQ(lines(aci318_02, "DL LL LR SL RL WL EL"), (Lines{
        "strength 2: DL 1.4",
        "strength 4: DL 1.2, LL 1.6, LR 0.5",
        "strength 5: DL 1.2, LL 1.6, SL 0.5",
        "strength 6: DL 1.2, LL 1.6, RL 0.5",
        "strength 10: DL 1.2, LR 1.6, LL 1",
        "strength 11: DL 1.2, LR 1.6, WL 0.8",
        "strength 12: DL 1.2, LR 1.6, WL -0.8",
        "strength 13: DL 1.2, SL 1.6, LL 1",
        "strength 14: DL 1.2, SL 1.6, WL 0.8",
        "strength 15: DL 1.2, SL 1.6, WL -0.8",
        "strength 16: DL 1.2, RL 1.6, LL 1",
        "strength 17: DL 1.2, RL 1.6, WL 0.8",
        "strength 18: DL 1.2, RL 1.6, WL -0.8",
        "strength 29: DL 1.2, WL 1.6, LL 1, LR 0.5",
        "strength 30: DL 1.2, WL -1.6, LL 1, LR 0.5",
        "strength 31: DL 1.2, WL 1.6, LL 1, SL 0.5",
        "strength 32: DL 1.2, WL -1.6, LL 1, SL 0.5",
        "strength 33: DL 1.2, WL 1.6, LL 1, RL 0.5",
        "strength 34: DL 1.2, WL -1.6, LL 1, RL 0.5",
        "strength 41: DL 1.2, EL 1, LL 1, SL 0.2",
        "strength 42: DL 1.2, EL -1, LL 1, SL 0.2",
        "strength 43: DL 0.9, WL 1.6",
        "strength 44: DL 0.9, WL -1.6",
        "strength 48: DL 0.9, EL 1",
        "strength 49: DL 0.9, EL -1",
    }));
}

// Without LL, EP and WP the rows of block 2 have nothing to multiply by 1.6.
TEST(Aci318Of2002, WithoutLiveLoadWindStandsWithRoofSnowOrRain)
{
    EXPECT_EQ(lines(aci318_02, "DL LR SL RL WL"), (Lines{
        "strength 2: DL 1.4",
        "strength 11: DL 1.2, LR 1.6, WL 0.8",
        "strength 12: DL 1.2, LR 1.6, WL -0.8",
        "strength 14: DL 1.2, SL 1.6, WL 0.8",
        "strength 15: DL 1.2, SL 1.6, WL -0.8",
        "strength 17: DL 1.2, RL 1.6, WL 0.8",
        "strength 18: DL 1.2, RL 1.6, WL -0.8",
        "strength 23: DL 1.2, WL 1.6, LR 0.5",
        "strength 24: DL 1.2, WL -1.6, LR 0.5",
        "strength 25: DL 1.2, WL 1.6, SL 0.5",
        "strength 26: DL 1.2, WL -1.6, SL 0.5",
        "strength 27: DL 1.2, WL 1.6, RL 0.5",
        "strength 28: DL 1.2, WL -1.6, RL 0.5",
        "strength 43: DL 0.9, WL 1.6",
        "strength 44: DL 0.9, WL -1.6",
    }));
}

TEST(Aci318Of2002, WithoutLiveLoadAndWindTheRoofStandsAlone)
{
    EXPECT_EQ(lines(aci318_02, "DL LR SL RL"), (Lines{
        "strength 2: DL 1.4",
        "strength 7: DL 1.2, LR 1.6",
        "strength 8: DL 1.2, SL 1.6",
        "strength 9: DL 1.2, RL 1.6",
    }));
}

TEST(Aci318Of2002, WindAloneAndWindWithLiveLoad)
{
    EXPECT_EQ(lines(aci318_02, "DL WL"), (Lines{
        "strength 2: DL 1.4",
        "strength 19: DL 1.2, WL 1.6",
        "strength 20: DL 1.2, WL -1.6",
        "strength 43: DL 0.9, WL 1.6",
        "strength 44: DL 0.9, WL -1.6",
    }));
    EXPECT_EQ(lines(aci318_02, "DL LL WL"), (Lines{
        "strength 2: DL 1.4",
        "strength 3: DL 1.2, LL 1.6",
        "strength 21: DL 1.2, WL 1.6, LL 1",
        "strength 22: DL 1.2, WL -1.6, LL 1",
        "strength 43: DL 0.9, WL 1.6",
        "strength 44: DL 0.9, WL -1.6",
    }));
}

TEST(Aci318Of2002, EarthquakeStandsWithWhatThereIsOfLiveLoadAndSnow)
{
    EXPECT_EQ(lines(aci318_02, "DL EL"), (Lines{
        "strength 2: DL 1.4",
        "strength 35: DL 1.2, EL 1",
        "strength 36: DL 1.2, EL -1",
        "strength 48: DL 0.9, EL 1",
        "strength 49: DL 0.9, EL -1",
    }));
    EXPECT_EQ(lines(aci318_02, "DL LL EL"), (Lines{
        "strength 2: DL 1.4",
        "strength 3: DL 1.2, LL 1.6",
        "strength 37: DL 1.2, EL 1, LL 1",
        "strength 38: DL 1.2, EL -1, LL 1",
        "strength 48: DL 0.9, EL 1",
        "strength 49: DL 0.9, EL -1",
    }));
    EXPECT_EQ(lines(aci318_02, "DL SL EL"), (Lines{
        "strength 2: DL 1.4",
        "strength 8: DL 1.2, SL 1.6",
        "strength 39: DL 1.2, EL 1, SL 0.2",
        "strength 40: DL 1.2, EL -1, SL 0.2",
        "strength 48: DL 0.9, EL 1",
        "strength 49: DL 0.9, EL -1",
    }));
}

TEST(Aci318Of2002, EarthPressureAloneGivesTheLeastDeadLoadOnce)
{
    EXPECT_EQ(lines(aci318_02, "DL WP"), (Lines{
        "strength 2: DL 1.4",
        "strength 3: DL 1.2, WP 1.6",
        "strength 45: DL 0.9, WP 1.6",
    }));
}

TEST(Aci318Of2002, EarthPressureWithWindAlsoStandsAlone)
{
    EXPECT_EQ(lines(aci318_02, "DL LL WL EP"), (Lines{
        "strength 2: DL 1.4",
        "strength 3: DL 1.2, LL 1.6, EP 1.6",
        "strength 21: DL 1.2, WL 1.6, LL 1",
        "strength 22: DL 1.2, WL -1.6, LL 1",
        "strength 46: DL 0.9, WL 1.6, EP 1.6",
        "strength 47: DL 0.9, WL -1.6, EP 1.6",
        "strength 50: DL 0.9, EP 1.6",
    }));
}

TEST(Aci318Of2002, EarthPressureWithEarthquake)
{
    EXPECT_EQ(lines(aci318_02, "DL EL EP WP"), (Lines{
        "strength 2: DL 1.4",
        "strength 3: DL 1.2, EP 1.6, WP 1.6",
        "strength 35: DL 1.2, EL 1",
        "strength 36: DL 1.2, EL -1",
        "strength 45: DL 0.9, EP 1.6, WP 1.6",
        "strength 51: DL 0.9, EL 1, EP 1.6, WP 1.6",
        "strength 52: DL 0.9, EL -1, EP 1.6, WP 1.6",
    }));
}

TEST(Aci318Of2002, FluidPressureTakesTheFirstRow)
{
    EXPECT_EQ(lines(aci318_02, "DL FP LL"), (Lines{
        "strength 1: DL 1.4, FP 1.4",
        "strength 3: DL 1.2, FP 1.2, LL 1.6",
    }));
}

TEST(Aci318Of2002, AFullModelGetsOneAlternativeOfEachBlock)
{
    EXPECT_EQ(rowNumbers(aci318_02, tables::everyGroup), "strength 1 4-6 10-18 29-34 41-42 46-47 51-52");
    EXPECT_EQ(lines(aci318_02, tables::everyGroup).at(1), "strength 4: DL 1.2, FP 1.2, LL 1.6, EP 1.6, WP 1.6, LR 0.5");
}

}  // namespace
