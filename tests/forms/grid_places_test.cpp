#include "contract/forms/grid_places.h"

#include <type_traits>

#include <gtest/gtest.h>

using zel::ColumnIndex;
using zel::ColumnPlace;
using zel::Row;
using zel::UserColumn;
using zel::UserRow;

// No number of a row or a column is taken for one of another kind, nor for a plain number.
static_assert(!std::is_convertible_v<ColumnIndex, Row> && !std::is_convertible_v<Row, ColumnIndex>);
static_assert(!std::is_convertible_v<ColumnIndex, ColumnPlace> && !std::is_convertible_v<ColumnPlace, ColumnIndex>);
static_assert(!std::is_convertible_v<UserRow, Row> && !std::is_convertible_v<Row, UserRow>);
static_assert(!std::is_convertible_v<UserColumn, ColumnPlace> && !std::is_convertible_v<ColumnPlace, UserColumn>);
static_assert(!std::is_convertible_v<Row, int> && !std::is_convertible_v<UserRow, int>);

TEST(NumbersOfAGrid, LeadToTheirPlacesInListsAndBack)
{
    EXPECT_EQ(Row(1).place(), 0U);
    EXPECT_EQ(Row::at(4), Row(5));
    EXPECT_EQ(ColumnIndex(2).place(), 2U);
    EXPECT_EQ(ColumnIndex::at(2), ColumnIndex(2));
    EXPECT_EQ(ColumnPlace::at(0), ColumnPlace(1));
    EXPECT_EQ(UserRow::at(3).number(), 3);
    EXPECT_EQ(UserColumn(3).place(), 3U);
}

TEST(NumbersOfAGrid, AreCountedOnAndCompared)
{
    Row row = 2;
    ++row;
    EXPECT_EQ(row, 3);
    --row;
    EXPECT_EQ(row + 4, 6);
    EXPECT_EQ(row - 1, Row(1));
    EXPECT_EQ(Row(7) - row, 5);
    EXPECT_LT(row, Row(3));
    EXPECT_GE(row, 2);
    EXPECT_LT(row, 3);
    EXPECT_EQ(Row(), 0);
}
