#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::aik_usd94;

TEST(AikUsd94, DeadAndLiveLoadGiveFourRows)
{
    EXPECT_EQ(lines(aik_usd94, "DL LL"), (Lines{
        "service 1: DL 1, LL 1",
        "strength 6: DL 1.4, LL 1.7",
        "strength 15: DL 0.75*1.4, LL 1.275",
        "strength 16: DL 1.4",
    }));
}

TEST(AikUsd94, WindAndEarthquakeStandWithBothSigns)
{
    EXPECT_EQ(lines(aik_usd94, "DL LL WL EL"), (Lines{
        "service 1: DL 1, LL 1",
        "service 2: DL 2/3, LL 2/3, WL 2/3",
        "service 3: DL 2/3, LL 2/3, WL -2/3",
        "service 4: DL 2/3, LL 2/3, EL 2/3",
        "service 5: DL 2/3, LL 2/3, EL -2/3",
        "strength 6: DL 1.4, LL 1.7",
        "strength 7: DL 0.75*1.4, LL 1.275, WL 1.275",
        "strength 8: DL 0.75*1.4, LL 1.275, WL -1.275",
        "strength 9: DL 0.9, WL 1.3",
        "strength 10: DL 0.9, WL -1.3",
        "strength 11: DL 0.75*1.4, LL 1.275, EL 1.4025",
        "strength 12: DL 0.75*1.4, LL 1.275, EL -1.4025",
        "strength 13: DL 0.9, EL 1.43",
        "strength 14: DL 0.9, EL -1.43",
        "strength 15: DL 0.75*1.4, LL 1.275",
        "strength 16: DL 1.4",
    }));
}

TEST(AikUsd94, RoofLiveLoadAloneServesAndPressuresFollow)
{
    EXPECT_EQ(lines(aik_usd94, "DL LR FP WP"), (Lines{
        "service 1: DL 1, LR 1",
        "strength 6: DL 1.4, LR 1.7",
        "strength 15: DL 0.75*1.4, LR 1.275",
        "strength 16: DL 1.4",
        "strength 17: DL 1.4, LR 1.7, FP 1.4",
        "strength 18: DL 0.9, LR 1.7, FP 1.4",
        "strength 19: DL 1.4, FP 1.4",
        "strength 20: DL 0.9, FP 1.4",
        "strength 21: DL 1.4, LR 1.7, WP 1.7",
        "strength 22: DL 0.9, LR 1.7, WP 1.7",
        "strength 23: DL 1.4, WP 1.7",
        "strength 24: DL 0.9, WP 1.7",
    }));
}

TEST(AikUsd94, AFullModelGetsEveryRow)
{
    EXPECT_EQ(rowNumbers(aik_usd94, tables::everyGroup), "service 1-5 strength 6-24");
    EXPECT_EQ(lines(aik_usd94, tables::everyGroup).at(20), "strength 21: DL 1.4, LL 1.7, LR 1.7, EP 1.7, WP 1.7");
}

TEST(AikUsd94, SnowAndRainStandInNoRow)
{
    EXPECT_EQ(rowNumbers(aik_usd94, "DL SL RL EH EV"), "strength 16");
}

TEST(AikUsd94, TheTypeOfCombinationsChangesNothing)
{
    for (const auto type : {zel::codes::Word::typeSpecial, zel::codes::Word::typeVertical, zel::codes::Word::typeUnderground})
        EXPECT_EQ(lines(aik_usd94, tables::everyGroup, type), lines(aik_usd94, tables::everyGroup));
}

}  // namespace
