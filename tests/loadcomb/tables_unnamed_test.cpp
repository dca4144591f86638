#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::unnamed_first;
using zel::codes::unnamed_second;

TEST(FirstTableWithoutAName, DeadAndLiveLoadGiveThreeRows)
{
    EXPECT_EQ(lines(unnamed_first, "DL LL"), (Lines{
        "strength 1: DL 1.35, LL 1.5",
        "strength 12: DL 1.35, LL 1.35",
        "strength 13: DL 1",
    }));
}

TEST(FirstTableWithoutAName, SnowWindAndEarthquake)
{
    EXPECT_EQ(lines(unnamed_first, "DL LL SL WL EL"), (Lines{
        "strength 1: DL 1.35, LL 1.5",
        "strength 2: DL 1.35, LL 1.35, SL 1.35",
        "strength 3: DL 1, SL 1.5",
        "strength 4: DL 1.35, LL 1.35, WL 1.35",
        "strength 5: DL 1.35, LL 1.35, WL -1.35",
        "strength 6: DL 1, WL 1.5",
        "strength 7: DL 1, WL -1.5",
        "strength 8: DL 1.35, LL 1.35, EL 1.35",
        "strength 9: DL 1.35, LL 1.35, EL -1.35",
        "strength 10: DL 1, EL 1.5",
        "strength 11: DL 1, EL -1.5",
        "strength 12: DL 1.35, LL 1.35",
        "strength 13: DL 1",
    }));
}

TEST(FirstTableWithoutAName, EarthAndWaterPressureClose)
{
    EXPECT_EQ(lines(unnamed_first, "DL LR EP WP"), (Lines{
        "strength 1: DL 1.35, LR 1.5",
        "strength 12: DL 1.35, LR 1.35",
        "strength 13: DL 1",
        "strength 14: DL 1.35, LR 1.35, EP 1.35, WP 1.35",
        "strength 15: DL 1, EP 1.5, WP 1.5",
    }));
    EXPECT_EQ(rowNumbers(unnamed_first, tables::everyGroup), "strength 1-15");
}

TEST(SecondTableWithoutAName, HasTheFactorOneThroughout)
{
    EXPECT_EQ(lines(unnamed_second, "DL LL"), (Lines{"strength 1: DL 1, LL 1"}));
    EXPECT_EQ(lines(unnamed_second, "DL LL LR WL EL"), (Lines{
        "strength 1: DL 1, LL 1, LR 1",
        "strength 2: DL 1, LL 1, LR 1, WL 1",
        "strength 3: DL 1, LL 1, LR 1, WL -1",
        "strength 4: DL 1, WL 1",
        "strength 5: DL 1, WL -1",
        "strength 6: DL 1, LL 1, LR 1, EL 1",
        "strength 7: DL 1, LL 1, LR 1, EL -1",
        "strength 8: DL 1, EL 1",
        "strength 9: DL 1, EL -1",
    }));
    EXPECT_EQ(rowNumbers(unnamed_second, tables::everyGroup), "strength 1-9");
}

TEST(TablesWithoutAName, AreReachedByNoLineOfTheRegistry)
{
    for (const zel::codes::CodeEntry& entry : zel::codes::codeRegistry) {
        for (const zel::codes::CodeTable* table : {&unnamed_first, &unnamed_second}) {
            EXPECT_NE(entry.table, table) << entry.name;
            EXPECT_NE(entry.tableOfLoadCode0, table) << entry.name;
        }
    }
}

}  // namespace
