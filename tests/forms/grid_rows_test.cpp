#include "forms/grid_fixture.h"

using namespace zel::test;

namespace {

class GridRows : public GridTestOf<> {};

/// A grid whose rows are moved by dragging, and which notes where they are dropped.
class DragGrid : public MemberGrid {
public:
    using MemberGrid::MemberGrid;
    bool takes = false;

    void Initialize() override
    {
        SetSortColumns({});
        SetRowDrag(true);
        SetColFrozen(name);
        MemberGrid::Initialize();
    }
    bool OnSelDragRowsDrop(Row firstRow, Row lastRow, Row targetRow) override
    {
        calls.push_back("drop " + std::to_string(firstRow.number()) + " " + std::to_string(lastRow.number()) + " " + std::to_string(targetRow.number()) +
                        (IsEdit() ? " editing" : ""));
        return takes && MemberGrid::OnSelDragRowsDrop(firstRow, lastRow, targetRow);
    }
    bool OnSelDragColsDrop(ColumnPlace firstColumn, ColumnPlace lastColumn, ColumnPlace targetColumn) override
    {
        return firstColumn > 2 && lastColumn > 2 && targetColumn > 2;
    }
    bool OnDropText(Row row, ColumnPlace column, const CString& text) override
    {
        note("dropped", row, column);
        if (text == "bad")
            SetWarningText("that can't be dropped here");
        return text == "good";
    }
};

class GridDrag : public GridTestOf<DragGrid> {};

}  // namespace

TEST_F(GridRows, AreNumberedFromOneBehindTheHeaderAndBeforeTheAppendRow)
{
    EXPECT_EQ(grid.GetDataRowCount(), 3);
    EXPECT_EQ(grid.GetRowCount(), 4);
    EXPECT_EQ(grid.GetAppendRow(), 4);
    EXPECT_TRUE(grid.IsAppendRow(4));
    EXPECT_FALSE(grid.IsAppendRow(3));
    EXPECT_EQ(grid.GetValueRowCol(0, 2), "Name");
    EXPECT_EQ(grid.GetValueRowCol(1, 2), "B1");
    EXPECT_EQ(grid.GetValueRowCol(4, 2), "");
    EXPECT_EQ(grid.GetValueRowCol(5, 2), "");
    EXPECT_EQ(grid.GetValueRowCol(1, 0), "");
    EXPECT_EQ(grid.toRow(2), 3);
    EXPECT_EQ(grid.toRow(append), 4);
    EXPECT_EQ(grid.toRow(3), -1);
    EXPECT_EQ(grid.toUserRow(4), append);
    grid.SetAppendRow(false);
    EXPECT_EQ(grid.GetRowCount(), 3);
    EXPECT_FALSE(grid.IsAppendRow(4));
    EXPECT_EQ(grid.toRow(append), -1);
}

TEST_F(GridRows, AreFoundByTheirSortValuesOrTheirPlaceIsTold)
{
    Row row;
    EXPECT_NE(grid.FindRecordByKey({"B2"}, row), 0);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(grid.FindRecordByKey({"A"}, row), 0);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(grid.FindRecordByKey({"B3"}, row), 0);
    EXPECT_EQ(row, 3);
    EXPECT_EQ(grid.FindRecordByKey({"D"}, row), 0);
    EXPECT_EQ(row, 4);
}

TEST_F(GridRows, SortNumbersByValueAndThenByTheNextColumn)
{
    grid.SetSortColumns({MemberGrid::length, MemberGrid::number});
    grid.SetTextAt(1, MemberGrid::length, "2");
    grid.SetTextAt(2, MemberGrid::length, "10");
    grid.SetTextAt(3, MemberGrid::length, "10");
    Row row;
    EXPECT_NE(grid.FindRecordByKey({"10.0", "3"}, row), 0);
    EXPECT_EQ(row, 3);
    EXPECT_EQ(grid.FindRecordByKey({"9", "1"}, row), 0);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(grid.FindRecordByKey({"text", "1"}, row), 0);  // behind all numbers
    EXPECT_EQ(row, 4);
}

TEST_F(GridRows, AreFoundByWhatIsStoredNotByWhatIsBeingTyped)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "Z").ok());
    Row row;
    EXPECT_NE(grid.FindRecordByKey({"B2"}, row), 0);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(grid.FindRecordByKey({"Z"}, row), 0);
}

TEST_F(GridRows, SelectionIsByWholeRowsInTheOrderOfSelecting)
{
    EXPECT_TRUE(grid.select({2, 0, 2}).ok());
    EXPECT_EQ(grid.take(), (Calls{"selected 2: 3 1", "row 1"}));
    EXPECT_EQ(grid.field("selected"), "2,0");
    EXPECT_EQ(grid.field("current"), "0,1");
    CArray<std::uint32_t> keys;
    EXPECT_EQ(grid.GetSelectedKeys(keys), 2);
    EXPECT_EQ(keys, (CArray<std::uint32_t>{3, 1}));

    grid.InsertRecord(2);
    EXPECT_EQ(grid.GetSelectedRows(), (CArray<Row>{4, 1}));
    grid.DeleteRecord(1);
    EXPECT_EQ(grid.GetSelectedRows(), (CArray<Row>{3}));

    EXPECT_TRUE(grid.clickCell(1, 1).ok());
    EXPECT_TRUE(grid.GetSelectedRows().empty());
    EXPECT_EQ(grid.take(), (Calls{"selected 0:", "click 2 2", "row 2"}));
    EXPECT_TRUE(grid.select({}).ok());
    EXPECT_FALSE(grid.select({7}).ok());
    EXPECT_FALSE(grid.select({append.number()}).ok());
}

TEST_F(GridRows, SelectingLeavesTheRowUnderEditFirst)
{
    ASSERT_TRUE(grid.typeCell(0, 2, "-1").ok());
    EXPECT_TRUE(grid.select({2}).ok());
    EXPECT_TRUE(grid.GetSelectedRows().empty());
    ASSERT_TRUE(grid.escape().ok());
    ASSERT_TRUE(grid.typeCell(0, 1, "Z1").ok());
    EXPECT_TRUE(grid.select({1, 2}).ok());  // B2 and C1
    EXPECT_EQ(grid.GetSelectedRows(), (CArray<Row>{1, 2}));
    EXPECT_EQ(grid.line(1), "2|B2|3|beam|0");
}

TEST_F(GridRows, ClicksTellOfTheCellAndOfAnotherCurrentRow)
{
    EXPECT_TRUE(grid.clickCell(1, 2).ok());
    EXPECT_EQ(grid.take(), (Calls{"click 2 3", "row 2"}));
    EXPECT_TRUE(grid.doubleClickCell(1, 1).ok());
    EXPECT_EQ(grid.take(), (Calls{"click 2 2", "double click 2 2"}));
    EXPECT_TRUE(grid.rightDoubleClickCell(0, 1).ok());
    EXPECT_EQ(grid.take(), (Calls{"click 1 2", "row 1", "right double click 1 2"}));
    EXPECT_TRUE(grid.doubleClick(2).ok());
    EXPECT_EQ(grid.take(), (Calls{"click 3 2", "row 3", "double click 3 2"}));
    EXPECT_TRUE(grid.clickCell(append, 1).ok());
    EXPECT_EQ(grid.take(), (Calls{"click 4 2", "row 4"}));
}

TEST_F(GridRows, NextValidCellSkipsHiddenAndDisabledOnes)
{
    grid.SetColDisabled(MemberGrid::length);
    EXPECT_NE(grid.SetCurrentCell(1, 2), 0);
    EXPECT_EQ(grid.SetCurrentCell(1, 3), 0);
    EXPECT_EQ(grid.SetCurrentCell(1, 1), 0);
    EXPECT_EQ(grid.SetCurrentCell(0, 2), 0);
    EXPECT_EQ(grid.SetCurrentCell(5, 2), 0);
    EXPECT_EQ(grid.field("current"), "0,1");
    EXPECT_NE(grid.SetRightValidCell(1, 2), 0);
    EXPECT_EQ(grid.field("current"), "0,3");
    EXPECT_NE(grid.SetLeftValidCell(1, 4), 0);
    EXPECT_EQ(grid.field("current"), "0,1");
    EXPECT_EQ(grid.SetLeftValidCell(1, 2), 0);
    grid.SetRowHidden(2);
    EXPECT_NE(grid.SetDownValidCell(1, 2), 0);
    EXPECT_EQ(grid.field("current"), "2,1");
    EXPECT_NE(grid.SetDownValidCell(3, 2), 0);
    EXPECT_EQ(grid.field("current"), "append,1");
    EXPECT_EQ(grid.SetDownValidCell(4, 2), 0);
}

TEST_F(GridRows, MakingARowCurrentTellsOfItOnce)
{
    EXPECT_NE(grid.MakeRowCurrent(2), 0);
    EXPECT_NE(grid.MakeRowCurrent(2), 0);
    EXPECT_EQ(grid.take(), (Calls{"row 2"}));
    EXPECT_EQ(grid.MakeRowCurrent(0), 0);
    EXPECT_EQ(grid.MakeRowCurrent(5), 0);
    EXPECT_EQ(grid.field("current"), "1,1");
}

TEST_F(GridRows, AnUpdateKeepsTheRowNumberAndTellsOfAnotherRecordThere)
{
    ASSERT_TRUE(grid.clickCell(2, 2).ok());
    grid.calls.clear();
    {
        const zel::GridUpdate update{grid};
        grid.DeleteRecord(3);
    }
    EXPECT_EQ(grid.field("current"), "1,2");  // the last row, as there are fewer
    EXPECT_EQ(grid.take(), (Calls{"row 2"}));
    {
        const zel::GridUpdate update{grid};
        grid.InsertRecord(1);
        grid.SetRowTexts(1, {"9", "A1", "1", "beam", "1"});
    }
    EXPECT_EQ(grid.field("current"), "1,2");
    EXPECT_EQ(grid.take(), (Calls{"row 2"}));
    {
        const zel::GridUpdate update{grid};
        grid.SetTextAt(2, MemberGrid::length, "77");
        grid.SetColHidden(MemberGrid::length);
    }
    EXPECT_EQ(grid.field("current"), "1,3");
    EXPECT_TRUE(grid.take().empty());
}

TEST_F(GridRows, AnUpdateOfAllRowsAwayLeavesTheAppendRowCurrent)
{
    ASSERT_TRUE(grid.clickCell(0, 1).ok());
    {
        const zel::GridUpdate update{grid};
        for (Row row = 3; row >= 1; --row)
            grid.DeleteRecord(row);
    }
    EXPECT_EQ(grid.field("current"), "append,1");
    EXPECT_EQ(grid.field("rows"), "");
}

TEST_F(GridRows, TheCurrentAppendRowStaysCurrentWhileRowsCome)
{
    ASSERT_TRUE(grid.clickCell(append, 2).ok());
    {
        const zel::GridUpdate update{grid};
        grid.InsertRecord(1);
    }
    EXPECT_EQ(grid.field("current"), "append,2");
}

TEST_F(GridRows, RebuildingKeepsWhatIsBeingTyped)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "B5").ok());
    grid.RebuildRows();
    EXPECT_EQ(grid.line(2), "2|B5|3|beam|0");
    grid.data.pop_back();
    grid.data.pop_back();
    grid.RebuildRows();
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1"}));
}

TEST_F(GridRows, PaintingLocksNestAndTellOnce)
{
    dialog.count.changes = 0;
    grid.LockPainting();
    grid.SetTextAt(1, MemberGrid::name, "X");
    {
        const zel::GridPaintLock inner{grid};
        grid.SetTextAt(2, MemberGrid::name, "Y");
        grid.InsertRecord(1);
    }
    EXPECT_EQ(dialog.count.changes, 0);
    EXPECT_TRUE(grid.UnlockPainting());
    EXPECT_EQ(dialog.count.changes, 1);

    grid.LockPainting();
    grid.LockPainting();
    EXPECT_FALSE(grid.UnlockPainting());
    EXPECT_TRUE(grid.UnlockPainting());
    EXPECT_EQ(dialog.count.changes, 1);  // nothing had changed
    grid.SetTextAt(1, MemberGrid::name, "Z");
    EXPECT_EQ(dialog.count.changes, 2);
}

TEST_F(GridDrag, TellsRowsAndTargetInGridNumbers)
{
    EXPECT_TRUE(grid.dragRows({0, 1}, 2).ok());
    EXPECT_EQ(grid.take(), (Calls{"selected 2: 1 2", "row 2", "drop 1 2 3"}));
    EXPECT_TRUE(grid.dragRows({0}, 3).ok());  // the row count: behind the last data row
    EXPECT_EQ(grid.take().back(), "drop 1 1 4");
    EXPECT_TRUE(grid.dragRows({2}, 0).ok());
    EXPECT_EQ(grid.take().back(), "drop 3 3 1");
    EXPECT_TRUE(grid.dragRows({2}, append).ok());
    EXPECT_EQ(grid.take(), (Calls{"drop 3 3 4"}));
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1", "2|B2|3|beam|0", "3|C1|4|column|1"}));  // the grid has moved nothing
}

TEST_F(GridDrag, MovesTheRowsIfTheGridLetsIt)
{
    grid.takes = true;
    EXPECT_TRUE(grid.dragRows({2, 0}, 2).ok());
    EXPECT_EQ(grid.lines(), (Calls{"2|B2|3|beam|0", "3|C1|4|column|1", "1|B1|2.5|beam|1"}));
    EXPECT_EQ(grid.field("selected"), "1,2");
    EXPECT_EQ(grid.field("current"), "2,1");  // the row that was current
}

TEST_F(GridDrag, RefusesNumbersOutsideAndGridsThatKeepTheirRows)
{
    EXPECT_EQ(grid.dragRows({0}, 4).refusal, "\"members\" has no row 4 to drop rows before: it has 3 rows");
    EXPECT_FALSE(grid.dragRows({3}, 0).ok());
    EXPECT_FALSE(grid.dragRows({0}, -2).ok());
    EXPECT_TRUE(grid.take().empty());
    grid.SetRowDrag(false);
    EXPECT_EQ(grid.dragRows({0}, 2).refusal, "\"members\" keeps its rows where they are: they can't be dragged");
    EXPECT_FALSE(grid.moveRows(1).ok());
}

TEST_F(GridDrag, ReachesTheGridWhileARowIsUnderEdit)
{
    ASSERT_TRUE(grid.typeCell(0, 2, "9").ok());
    grid.calls.clear();
    grid.takes = true;
    EXPECT_TRUE(grid.dragRows({1}, 0).ok());
    EXPECT_EQ(grid.take(), (Calls{"selected 1: 2", "drop 2 2 1 editing"}));
    EXPECT_TRUE(grid.IsEdit());
    EXPECT_EQ(grid.line(1), "1|B1|9|beam|1");
}

TEST_F(GridDrag, WithNoRowsSelectedComesWithTheCurrentRow)
{
    ASSERT_TRUE(grid.clickCell(1, 2).ok());
    grid.calls.clear();
    EXPECT_TRUE(grid.dragRows({}, 0).ok());
    EXPECT_EQ(grid.take(), (Calls{"drop 2 2 1"}));
    EXPECT_TRUE(grid.GetSelectedRows().empty());
}

TEST_F(GridDrag, MovingByOneIsADropOneRowFurther)
{
    grid.takes = true;
    ASSERT_TRUE(grid.select({1}).ok());
    grid.calls.clear();
    EXPECT_TRUE(grid.moveRows(-1).ok());
    EXPECT_EQ(grid.take().front(), "drop 2 2 1");
    EXPECT_EQ(grid.line(1), "2|B2|3|beam|0");
    EXPECT_TRUE(grid.moveRows(-1).ok());  // at the top already
    EXPECT_EQ(grid.line(1), "2|B2|3|beam|0");
    EXPECT_TRUE(grid.moveRows(1).ok());
    EXPECT_TRUE(grid.moveRows(1).ok());
    EXPECT_EQ(grid.line(3), "2|B2|3|beam|0");
    EXPECT_TRUE(grid.moveRows(1).ok());  // at the end already
    EXPECT_EQ(grid.line(3), "2|B2|3|beam|0");
}

TEST_F(GridDrag, AClickIntoAFrozenColumnSelectsTheRow)
{
    EXPECT_TRUE(grid.clickCell(1, 1).ok());
    EXPECT_EQ(grid.take(), (Calls{"selected 1: 2", "click 2 2", "row 2"}));
    grid.SetColDisabled(MemberGrid::name);
    EXPECT_TRUE(grid.clickCell(2, 1).ok());  // the frozen column takes no cell, the row becomes current all the same
    EXPECT_EQ(grid.field("selected"), "2");
    EXPECT_EQ(grid.field("current"), "2,2");
    EXPECT_TRUE(grid.clickCell(append, 1).ok());
    EXPECT_EQ(grid.field("selected"), "");
    EXPECT_EQ(grid.field("current"), "append,2");
}

TEST_F(GridDrag, OfColumnsIsRefusedWhereTheGridSaysSo)
{
    EXPECT_FALSE(grid.dragColumns(1, 1, 3).ok());
    EXPECT_FALSE(grid.dragColumns(3, 3, 1).ok());
    EXPECT_TRUE(grid.dragColumns(2, 2, 5).ok());
    EXPECT_EQ(grid.columnByTitle("Length"), 4);
}

TEST_F(GridDrag, TextFromOutsideGoesToTheGrid)
{
    EXPECT_TRUE(grid.dropText(1, 2, "good").ok());
    EXPECT_TRUE(grid.dropText(append, 2, "bad").ok());
    EXPECT_EQ(host.warnings, (Calls{"that can't be dropped here"}));
    EXPECT_EQ(grid.dropText(1, 2, "other").refusal, "\"members\" has no use for what was dropped");
    EXPECT_EQ(grid.take(), (Calls{"dropped 2 3", "dropped 4 3", "dropped 2 3"}));
}
