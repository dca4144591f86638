#include "loadcomb/table_lines.h"

#include "loadcomb/tables/code_registry.h"

#include <gtest/gtest.h>

namespace {

using tables::Lines;
using tables::lines;
using tables::rowNumbers;
using zel::codes::bs8110_97;

TEST(Bs8110Of1997, DeadAndLiveLoadGiveOneRow)
{
    EXPECT_EQ(lines(bs8110_97, "DL LL"), (Lines{"strength 1: DL 1.4, LL 1.6"}));
}

// Rows 2 and 3 have 1.4 and 1.6 whatever their formula shows.
TEST(Bs8110Of1997, WindAndEarthquakeStandWithBothSigns)
{
    EXPECT_EQ(lines(bs8110_97, "DL LL LR WL EL"), (Lines{
        "strength 1: DL 1.4, LL 1.6, LR 1.6",
        "strength 2: DL 1.4, LL 1.6, LR 1.6, WL 1.2",
        "strength 3: DL 1.4, LL 1.6, LR 1.6, WL -1.2",
        "strength 4: DL 1, WL 1.4",
        "strength 5: DL 1, WL -1.4",
        "strength 6: DL 1.2, LL 1.2, LR 1.2, EL 1.2",
        "strength 7: DL 1.2, LL 1.2, LR 1.2, EL -1.2",
        "strength 8: DL 1, EL 1.4",
        "strength 9: DL 1, EL -1.4",
    }));
    EXPECT_EQ(bs8110_97.parts[0].rows[1].text, "1.2DL + 1.2(LL+LR) + 1.2WL");
    EXPECT_EQ(bs8110_97.parts[0].rows[2].text, "1.2DL + 1.2(LL+LR) - 1.2WL");
}

TEST(Bs8110Of1997, EarthAndWaterPressureClose)
{
    EXPECT_EQ(lines(bs8110_97, "DL LR EP WP"), (Lines{
        "strength 1: DL 1.4, LR 1.6",
        "strength 10: DL 1.2, LR 1.2, EP 1.2, WP 1.2",
        "strength 11: DL 1, EP 1.4, WP 1.4",
    }));
}

TEST(Bs8110Of1997, AFullModelGetsEveryRow)
{
    EXPECT_EQ(rowNumbers(bs8110_97, tables::everyGroup), "strength 1-11");
}

}  // namespace
