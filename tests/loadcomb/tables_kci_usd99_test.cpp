#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::kci_usd99;

TEST(KciUsd99, WithoutRoofLiveLoadTheRowsOfLiveLoadAloneServe)
{
    EXPECT_EQ(lines(kci_usd99, "DL LL"), (Lines{
        "service 4: DL 1, LL 1",
        "strength 18: DL 1.4, LL 1.7",
        "strength 34: DL 0.75*1.4, LL 1.275",
        "strength 35: DL 1.4",
    }));
}

TEST(KciUsd99, WithRoofLiveLoadTheRowsOfBothServe)
{
    EXPECT_EQ(lines(kci_usd99, "DL LL LR"), (Lines{
        "service 1: DL 1, LL 1, LR 1",
        "strength 15: DL 1.4, LL 1.7, LR 1.7",
        "strength 33: DL 0.75*1.4, LL 1.275, LR 1.275",
        "strength 35: DL 1.4",
    }));
    EXPECT_EQ(rowNumbers(kci_usd99, "DL LR"), "service 1 strength 15 33 35");
}

TEST(KciUsd99, WindAndEarthquakeStandWithAndWithoutLiveLoad)
{
    EXPECT_EQ(lines(kci_usd99, "DL LL WL EL"), (Lines{
        "service 4: DL 1, LL 1",
        "service 5: DL 2/3, LL 2/3, WL 2/3",
        "service 6: DL 2/3, LL 2/3, WL -2/3",
        "service 7: DL 2/3, WL 2/3",
        "service 8: DL 2/3, WL -2/3",
        "service 11: DL 2/3, LL 2/3, EL 2/3",
        "service 12: DL 2/3, LL 2/3, EL -2/3",
        "service 13: DL 2/3, EL 2/3",
        "service 14: DL 2/3, EL -2/3",
        "strength 18: DL 1.4, LL 1.7",
        "strength 19: DL 0.75*1.4, LL 1.275, WL 1.275",
        "strength 20: DL 0.75*1.4, LL 1.275, WL -1.275",
        "strength 21: DL 0.75*1.4, WL 1.275",
        "strength 22: DL 0.75*1.4, WL -1.275",
        "strength 23: DL 0.9, WL 1.3",
        "strength 24: DL 0.9, WL -1.3",
        "strength 27: DL 0.75*1.4, LL 1.275, EL 1.35",
        "strength 28: DL 0.75*1.4, LL 1.275, EL -1.35",
        "strength 29: DL 0.75*1.4, EL 1.35",
        "strength 30: DL 0.75*1.4, EL -1.35",
        "strength 31: DL 0.9, EL 1.4",
        "strength 32: DL 0.9, EL -1.4",
        "strength 34: DL 0.75*1.4, LL 1.275",
        "strength 35: DL 1.4",
    }));
}

TEST(KciUsd99, PressuresStandWithAndWithoutLiveLoad)
{
    EXPECT_EQ(lines(kci_usd99, "DL LL FP EP WP"), (Lines{
        "service 4: DL 1, LL 1",
        "strength 18: DL 1.4, LL 1.7",
        "strength 34: DL 0.75*1.4, LL 1.275",
        "strength 35: DL 1.4",
        "strength 38: DL 1.5, LL 1.7, FP 1.5",
        "strength 39: DL 0.9, LL 1.7, FP 1.5",
        "strength 40: DL 1.5, FP 1.5",
        "strength 41: DL 0.9, FP 1.5",
        "strength 44: DL 1.4, LL 1.7, EP 1.8, WP 1.8",
        "strength 45: DL 0.9, LL 1.7, EP 1.8, WP 1.8",
        "strength 46: DL 1.4, EP 1.8, WP 1.8",
        "strength 47: DL 0.9, EP 1.8, WP 1.8",
    }));
}

TEST(KciUsd99, WithRoofLiveLoadWindEarthquakeAndPressuresActTogetherWithBoth)
{
    EXPECT_EQ(lines(kci_usd99, "DL LL LR WL EL FP EP WP"), (Lines{
        "service 1: DL 1, LL 1, LR 1",
        "service 2: DL 2/3, LL 2/3, LR 2/3, WL 2/3",
        "service 3: DL 2/3, LL 2/3, LR 2/3, WL -2/3",
        "service 7: DL 2/3, WL 2/3",
        "service 8: DL 2/3, WL -2/3",
        "service 9: DL 2/3, LL 2/3, LR 2/3, EL 2/3",
        "service 10: DL 2/3, LL 2/3, LR 2/3, EL -2/3",
        "service 13: DL 2/3, EL 2/3",
        "service 14: DL 2/3, EL -2/3",
        "strength 15: DL 1.4, LL 1.7, LR 1.7",
        "strength 16: DL 0.75*1.4, LL 1.275, LR 1.275, WL 1.275",
        "strength 17: DL 0.75*1.4, LL 1.275, LR 1.275, WL -1.275",
        "strength 21: DL 0.75*1.4, WL 1.275",
        "strength 22: DL 0.75*1.4, WL -1.275",
        "strength 23: DL 0.9, WL 1.3",
        "strength 24: DL 0.9, WL -1.3",
        "strength 25: DL 0.75*1.4, LL 1.275, LR 1.275, EL 1.35",
        "strength 26: DL 0.75*1.4, LL 1.275, LR 1.275, EL -1.35",
        "strength 29: DL 0.75*1.4, EL 1.35",
        "strength 30: DL 0.75*1.4, EL -1.35",
        "strength 31: DL 0.9, EL 1.4",
        "strength 32: DL 0.9, EL -1.4",
        "strength 33: DL 0.75*1.4, LL 1.275, LR 1.275",
        "strength 35: DL 1.4",
        "strength 36: DL 1.5, LL 1.7, LR 1.7, FP 1.5",
        "strength 37: DL 0.9, LL 1.7, LR 1.7, FP 1.5",
        "strength 40: DL 1.5, FP 1.5",
        "strength 41: DL 0.9, FP 1.5",
        "strength 42: DL 1.4, LL 1.7, LR 1.7, EP 1.8, WP 1.8",
        "strength 43: DL 0.9, LL 1.7, LR 1.7, EP 1.8, WP 1.8",
        "strength 46: DL 1.4, EP 1.8, WP 1.8",
        "strength 47: DL 0.9, EP 1.8, WP 1.8",
    }));
}

TEST(KciUsd99, AFullModelGetsTheRowsWithRoofLiveLoad)
{
    EXPECT_EQ(rowNumbers(kci_usd99, tables::everyGroup), "service 1-3 7-10 13-14 strength 15-17 21-26 29-33 35-37 40-43 46-47");
    EXPECT_EQ(rowNumbers(kci_usd99, "DL LL WL EL RL FP EP WP"), "service 4-8 11-14 strength 18-24 27-32 34-35 38-41 44-47");
}

}  // namespace
