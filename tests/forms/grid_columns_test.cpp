#include "forms/grid_fixture.h"

#include "contract/units.h"

using namespace zel::test;

namespace {

class GridColumns : public GridTestOf<> {};

}  // namespace

TEST_F(GridColumns, KeepTheirIndexWhenTheyAreMovedOnScreen)
{
    EXPECT_TRUE(grid.dragColumns(1, 1, 5).ok());  // the name to the end

    ColumnPlace column;
    EXPECT_NE(grid.GetColumnNoFor(MemberGrid::name, column), 0);
    EXPECT_EQ(column, 5);
    EXPECT_NE(grid.GetColumnNoFor("Length", column), 0);
    EXPECT_EQ(column, 2);
    EXPECT_EQ(grid.GetValueRowCol(1, 5), "B1");
    EXPECT_EQ(grid.TextAt(1, MemberGrid::name), "B1");
    EXPECT_EQ(grid.field("columns"), "[Key,60,hidden][Length,60][Kind,60,2 choices][Active,60][Name,80]");
    EXPECT_EQ(grid.field("rows"), "1|2.50|beam|1|B1\n2|3.00|beam|0|B2\n3|4.00|column|1|C1\n");
}

TEST_F(GridColumns, MoveLeftAsWellAsRight)
{
    EXPECT_TRUE(grid.dragColumns(3, 4, 1).ok());
    EXPECT_EQ(grid.field("columns"), "[Key,60,hidden][Kind,60,2 choices][Active,60][Name,80][Length,60]");
    EXPECT_TRUE(grid.dragColumns(1, 2, 1).ok());  // onto itself
    EXPECT_TRUE(grid.dragColumns(1, 2, 3).ok());  // behind itself
    EXPECT_EQ(grid.field("columns"), "[Key,60,hidden][Kind,60,2 choices][Active,60][Name,80][Length,60]");
}

TEST_F(GridColumns, AreEditedWhereTheyStandOnScreen)
{
    ASSERT_TRUE(grid.dragColumns(1, 1, 5).ok());
    EXPECT_TRUE(grid.typeCell(0, 4, "A9").ok());
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.data[0].name, "A9");
}

TEST_F(GridColumns, UnknownIndexAndTitleLeaveTheNumberAlone)
{
    ColumnPlace column = 77;
    EXPECT_EQ(grid.GetColumnNoFor(9, column), 0);
    EXPECT_EQ(grid.GetColumnNoFor(-1, column), 0);
    EXPECT_EQ(grid.GetColumnNoFor("Colour", column), 0);
    EXPECT_EQ(column, 77);
}

TEST_F(GridColumns, StayWhenTheGridHoldsThem)
{
    grid.SetColDrag(false);
    EXPECT_EQ(grid.dragColumns(1, 1, 5).refusal, "\"members\" keeps these columns where they are");
    EXPECT_FALSE(grid.dragColumns(3, 1, 2).ok());
    EXPECT_FALSE(grid.dragColumns(1, 5, 2).ok());
    EXPECT_EQ(grid.columnByTitle("Name"), 1);
}

TEST_F(GridColumns, AreFoundByHeaderAndByTitle)
{
    grid.SetColHeader(MemberGrid::length, "Length\n (mm)");
    EXPECT_EQ(grid.columnByTitle("Length (mm)"), 2);
    EXPECT_EQ(grid.columnByTitle("Length"), 2);
    EXPECT_EQ(grid.columnByTitle(" Active "), 4);
    EXPECT_EQ(grid.columnByTitle("Colour"), -1);
}

TEST_F(GridColumns, KeepAFixedHeaderAndComposeTheOthersWithTheUnit)
{
    CString unit;
    CUnitCtrl::GetUnitSystem(Unit::length, unit);
    ASSERT_FALSE(unit.empty());
    grid.ComposeHeader(MemberGrid::length, " (", ")");
    grid.ComposeHeader(MemberGrid::name, " (", ")", "\n(g)");
    grid.SetColHeader(MemberGrid::kind, "Kind of member");
    grid.UpdateHeaders();
    EXPECT_EQ(grid.GetColInfo(MemberGrid::length).header, "Length (" + unit + ")");
    EXPECT_EQ(grid.GetColInfo(MemberGrid::name).header, "Name\n(g)");
    EXPECT_EQ(grid.GetColInfo(MemberGrid::kind).header, "Kind of member");
    EXPECT_EQ(grid.GetValueRowCol(0, 3), "Length (" + unit + ")");
    EXPECT_EQ(grid.GetColTitle(MemberGrid::length), "Length");
}

TEST_F(GridColumns, ShowNumbersInTheirStyleAndKeepAllDigits)
{
    grid.SetTextAt(1, MemberGrid::length, "2.123456789012345");
    EXPECT_EQ(grid.GetShownText(1, MemberGrid::length), "2.12");
    EXPECT_EQ(grid.TextAt(1, MemberGrid::length), "2.123456789012345");

    using Form = zel::GridNumberStyle::Form;
    EXPECT_EQ(zel::gridNumberText("1234.5678", {Form::general, 4}), "1235");
    EXPECT_EQ(zel::gridNumberText("1234.5678", {Form::scientific, 4}), "1.2346e+03");
    EXPECT_EQ(zel::gridNumberText("1234.5678", {Form::asKept, 1}), "1234.5678");
    EXPECT_EQ(zel::gridNumberText("1.2*2", {Form::fixed, 2}), "1.2*2");
    EXPECT_EQ(zel::gridNumberText("", {Form::fixed, 2}), "");
    EXPECT_EQ(zel::gridNumberText("1e300", {Form::fixed, 2}).size(), 304U);
}

TEST_F(GridColumns, TakeAnotherWidthUnlessTheyKeepTheirs)
{
    grid.SetColResizable(MemberGrid::kind, false);
    EXPECT_TRUE(grid.resizeColumn(1, 120).ok());
    EXPECT_EQ(grid.resizeColumn(3, 120).refusal, "\"members\" keeps the width of column \"Kind\"");
    EXPECT_FALSE(grid.resizeColumn(5, 120).ok());
    EXPECT_EQ(grid.field("columns"), "[Key,60,hidden][Name,120][Length,60][Kind,60,2 choices][Active,60]");
}

TEST_F(GridColumns, HidingTheCurrentOneMovesTheCurrentCellOn)
{
    ASSERT_TRUE(grid.clickCell(1, 2).ok());
    grid.SetColHidden(MemberGrid::length);
    EXPECT_EQ(grid.field("current"), "1,3");
    EXPECT_EQ(grid.typeCell(1, 2, "5").refusal, "\"members\" does not show its column \"Length\" of row 1");
    EXPECT_EQ(grid.TextAt(2, MemberGrid::length), "3");
}

TEST_F(GridColumns, AddedLaterAreEmptyInTheRowsThatStand)
{
    const ColumnIndex index = grid.AddColInfo("Note", 3, 0);
    EXPECT_EQ(grid.line(1), "1|B1|2.5|beam|1|");
    grid.SetTextAt(1, index, "first");
    grid.SetTextAt(1, MemberGrid::name, "");
    EXPECT_EQ(grid.line(1), "1||2.5|beam|1|first");
    grid.RemoveColumns();
    EXPECT_EQ(grid.GetColCount(), 0);
    EXPECT_EQ(grid.GetDataRowCount(), 0);
}

TEST_F(GridColumns, RowHeadersNumberRowsAndNameTheAppendRow)
{
    EXPECT_EQ(grid.GetRowHeaderText(2), "2");
    EXPECT_EQ(grid.GetRowHeaderText(4), "Append Row");
    ASSERT_TRUE(grid.typeCell(append, 1, "D1").ok());
    EXPECT_EQ(grid.GetRowHeaderText(4), "New Row");
    grid.SetRowHeader(false, 0);
    EXPECT_EQ(grid.GetRowHeaderText(2), "");
}
