#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::aci318_89;

TEST(Aci318From1989To1999, OneTableServesThreeEditions)
{
    for (const char* name : {"ACI318-89", "ACI318-95", "ACI318-99"}) {
        ASSERT_NE(zel::codes::findCode(name), nullptr) << name;
        EXPECT_EQ(zel::codes::findCode(name)->table, &aci318_89) << name;
    }
}

TEST(Aci318From1989To1999, DeadAndLiveLoadGiveFourRows)
{
    EXPECT_EQ(lines(aci318_89, "DL LL"), (Lines{
        "service 1: DL 1, LL 1",
        "strength 6: DL 1.4, LL 1.7",
        "strength 19: DL 0.75*1.4, LL 1.275",
        "strength 20: DL 1.4",
    }));
}

TEST(Aci318From1989To1999, WithoutAnyLiveLoadItsPlaceIsEmpty)
{
    EXPECT_EQ(lines(aci318_89, "DL WL EL"), (Lines{
        "strength 7: DL 0.75*1.4, WL 1.275",
        "strength 8: DL 0.75*1.4, WL -1.275",
        "strength 11: DL 0.9, WL 1.3",
        "strength 12: DL 0.9, WL -1.3",
        "strength 13: DL 0.75*1.4, EL 1.4025",
        "strength 14: DL 0.75*1.4, EL -1.4025",
        "strength 17: DL 0.9, EL 1.43",
        "strength 18: DL 0.9, EL -1.43",
        "strength 20: DL 1.4",
    }));
}

TEST(Aci318From1989To1999, WindAndEarthquakeStandWithLiveLoad)
{
    EXPECT_EQ(lines(aci318_89, "DL LL WL EL"), (Lines{
        "service 1: DL 1, LL 1",
        "service 2: DL 0.75, LL 0.75, WL 0.75",
        "service 3: DL 0.75, LL 0.75, WL -0.75",
        "service 4: DL 0.75, LL 0.75, EL 0.75",
        "service 5: DL 0.75, LL 0.75, EL -0.75",
        "strength 6: DL 1.4, LL 1.7",
        "strength 9: DL 0.75*1.4, LL 1.275, WL 1.275",
        "strength 10: DL 0.75*1.4, LL 1.275, WL -1.275",
        "strength 11: DL 0.9, WL 1.3",
        "strength 12: DL 0.9, WL -1.3",
        "strength 15: DL 0.75*1.4, LL 1.275, EL 1.4025",
        "strength 16: DL 0.75*1.4, LL 1.275, EL -1.4025",
        "strength 17: DL 0.9, EL 1.43",
        "strength 18: DL 0.9, EL -1.43",
        "strength 19: DL 0.75*1.4, LL 1.275",
        "strength 20: DL 1.4",
    }));
}

TEST(Aci318From1989To1999, RoofLiveLoadAloneServesAndPressuresFollow)
{
    EXPECT_EQ(lines(aci318_89, "DL LR FP WP"), (Lines{
        "service 1: DL 1, LR 1",
        "strength 6: DL 1.4, LR 1.7",
        "strength 19: DL 0.75*1.4, LR 1.275",
        "strength 20: DL 1.4",
        "strength 21: DL 1.4, LR 1.7, FP 1.4",
        "strength 22: DL 0.9, LR 1.7, FP 1.4",
        "strength 23: DL 1.4, FP 1.4",
        "strength 24: DL 0.9, FP 1.4",
        "strength 25: DL 1.4, LR 1.7, WP 1.7",
        "strength 26: DL 0.9, LR 1.7, WP 1.7",
        "strength 27: DL 1.4, WP 1.7",
        "strength 28: DL 0.9, WP 1.7",
    }));
}

TEST(Aci318From1989To1999, AFullModelGetsEveryRowWithLiveLoad)
{
    EXPECT_EQ(rowNumbers(aci318_89, tables::everyGroup), "service 1-5 strength 6 9-12 15-28");
    EXPECT_EQ(rowNumbers(aci318_89, "DL LR WL EL"), "service 1-5 strength 6 9-12 15-20");
}

}  // namespace
