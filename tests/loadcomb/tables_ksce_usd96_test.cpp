#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::ksce_usd96;

TEST(KsceUsd96, DeadAndLiveLoadGiveFourRows)
{
    EXPECT_EQ(lines(ksce_usd96, "DL LL"), (Lines{
        "service 1: DL 1, LL 1",
        "strength 6: DL 1.5, LL 1.8",
        "strength 15: DL 1.125, LL 1.35",
        "strength 16: DL 1.5",
    }));
}

TEST(KsceUsd96, ServiceDividesWindAndEarthquakeByTheirOwnNumbers)
{
    EXPECT_EQ(lines(ksce_usd96, "DL LL WL EL"), (Lines{
        "service 1: DL 1, LL 1",
        "service 2: DL 0.8, LL 0.8, WL 0.8",
        "service 3: DL 0.8, LL 0.8, WL -0.8",
        "service 4: DL 1/1.35, LL 1/1.35, EL 1/1.35",
        "service 5: DL 1/1.35, LL 1/1.35, EL -1/1.35",
        "strength 6: DL 1.5, LL 1.8",
        "strength 7: DL 1.125, LL 1.35, WL 1.35",
        "strength 8: DL 1.125, LL 1.35, WL -1.35",
        "strength 9: DL 0.9, WL 1.4",
        "strength 10: DL 0.9, WL -1.4",
        "strength 11: DL 1.125, LL 1.35, EL 1.35",
        "strength 12: DL 1.125, LL 1.35, EL -1.35",
        "strength 13: DL 0.9, EL 1.4",
        "strength 14: DL 0.9, EL -1.4",
        "strength 15: DL 1.125, LL 1.35",
        "strength 16: DL 1.5",
    }));
}

TEST(KsceUsd96, RoofLiveLoadAloneServesAndPressuresFollow)
{
    EXPECT_EQ(lines(ksce_usd96, "DL LR FP EP"), (Lines{
        "service 1: DL 1, LR 1",
        "strength 6: DL 1.5, LR 1.8",
        "strength 15: DL 1.125, LR 1.35",
        "strength 16: DL 1.5",
        "strength 17: DL 1.5, LR 1.8, FP 1.5",
        "strength 18: DL 0.9, LR 1.8, FP 1.5",
        "strength 19: DL 1.5, FP 1.5",
        "strength 20: DL 0.9, FP 1.5",
        "strength 21: DL 1.5, LR 1.8, EP 1.8",
        "strength 22: DL 0.9, LR 1.8, EP 1.8",
        "strength 23: DL 1.5, EP 1.8",
        "strength 24: DL 0.9, EP 1.8",
    }));
}

TEST(KsceUsd96, AFullModelGetsEveryRow)
{
    EXPECT_EQ(rowNumbers(ksce_usd96, tables::everyGroup), "service 1-5 strength 6-24");
    EXPECT_EQ(lines(ksce_usd96, tables::everyGroup).at(20), "strength 21: DL 1.5, LL 1.8, LR 1.8, EP 1.8, WP 1.8");
}

}  // namespace
