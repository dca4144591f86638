#include "forms/grid_fixture.h"

using namespace zel::test;

namespace {

class GridEditing : public GridTestOf<> {};

}  // namespace

TEST_F(GridEditing, LeavingACellTestsItAndLeavingTheRowWritesIt)
{
    EXPECT_TRUE(grid.typeCell(1, 2, "6").ok());
    EXPECT_EQ(grid.take(), (Calls{"field 2 6", "edited 2 2", "row 2"}));
    EXPECT_EQ(grid.data[1].length, 3.0);
    EXPECT_EQ(grid.GetValueRowCol(2, 3), "6");
    EXPECT_EQ(grid.GetValueRowColBeforeEdit(2, 3), "3");
    EXPECT_TRUE(grid.IsEdit());
    EXPECT_EQ(grid.field("editing"), "1");

    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.take(), (Calls{"record B2", "field 0 2", "field 1 B2", "field 2 6", "field 3 beam", "field 4 0", "modify B2 B2"}));
    EXPECT_EQ(grid.data[1].length, 6.0);
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_EQ(grid.field("editing"), "null");
    EXPECT_EQ(grid.field("current"), "1,2");
}

TEST_F(GridEditing, GoingToAnotherRowWritesTheRowThatIsLeft)
{
    ASSERT_TRUE(grid.typeCell(1, 2, "6").ok());
    EXPECT_TRUE(grid.clickCell(0, 1).ok());
    EXPECT_EQ(grid.data[1].length, 6.0);
    EXPECT_EQ(grid.field("current"), "0,1");
}

TEST_F(GridEditing, TheClickedRecordIsMetWhenTheWrittenRowMovesPastIt)
{
    ASSERT_TRUE(grid.typeCell(0, 1, "Z1").ok());  // will stand last
    EXPECT_TRUE(grid.clickCell(2, 1).ok());       // on C1
    EXPECT_EQ(grid.lines(), (Calls{"2|B2|3|beam|0", "3|C1|4|column|1", "1|Z1|2.5|beam|1"}));
    EXPECT_EQ(grid.field("current"), "1,1");
}

namespace {

/// Notes, each with a date: grids whose first column takes texts.
class NoteGrid : public CTBCommon {
public:
    explicit NoteGrid(const zel::Place& place) : CTBCommon(place, "notes")
    {
        AddColInfo("Date", 3, 0);
        AddColInfo("Note", 3, 0);
    }
};

}  // namespace

TEST(GridOfTexts, TheFirstColumnIsTypedIntoStepByStep)
{
    zel::HeadlessUserInterface host;
    GridDialog<NoteGrid> dialog;
    NoteGrid& grid = dialog.grid;
    dialog.open();
    grid.Initialize();
    EXPECT_TRUE(grid.openCell(CTBGrid::append, 0).ok());
    EXPECT_EQ(grid.GetOpenCell(), 0);
    EXPECT_TRUE(grid.typeText("May").ok());
    EXPECT_EQ(grid.TextAt(1, 0), "May");
    EXPECT_EQ(grid.GetShownText(1, 0), "May");
    EXPECT_TRUE(grid.escape().ok());
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_TRUE(grid.openCell(CTBGrid::append, 0).ok());
    EXPECT_TRUE(grid.typeText("June").ok());
    EXPECT_TRUE(grid.leaveCell().ok());
    EXPECT_EQ(grid.GetOpenCell(), -1);
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.GetRowTexts(1), (CArray<CString>{"June", ""}));
    dialog.DestroyWindow();
}

TEST_F(GridEditing, ARefusedCellStaysOpenWithItsTextAndTheWarningIsShown)
{
    EXPECT_TRUE(grid.typeCell(1, 2, "-3").ok());
    EXPECT_EQ(host.warnings, (Calls{"length must be positive"}));
    EXPECT_EQ(grid.GetOpenCell(), MemberGrid::length);
    EXPECT_EQ(grid.field("rows"), "1|B1|2.50|beam|1\n2|B2|-3|beam|0\n3|C1|4.00|column|1\n");

    EXPECT_TRUE(grid.clickCell(0, 1).ok());  // does not let go
    EXPECT_EQ(host.warnings.size(), 2U);
    EXPECT_EQ(grid.field("current"), "1,2");
    EXPECT_TRUE(grid.typeCell(0, 1, "X").ok());  // nor for another cell
    EXPECT_EQ(host.warnings.size(), 3U);
    EXPECT_EQ(grid.TextAt(1, MemberGrid::name), "B1");

    EXPECT_TRUE(grid.typeCell(1, 2, "3.5").ok());
    EXPECT_EQ(host.warnings.size(), 3U);
    EXPECT_EQ(grid.GetOpenCell(), -1);
    EXPECT_EQ(grid.GetShownWarning(), "");
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.data[1].length, 3.5);
}

TEST_F(GridEditing, ARefusedRowStaysUnderEdit)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "").ok());
    EXPECT_TRUE(grid.clickCell(2, 2).ok());
    EXPECT_EQ(host.warnings, (Calls{"Name is missing"}));
    EXPECT_EQ(grid.field("editing"), "1");
    EXPECT_EQ(grid.field("current"), "1,1");

    EXPECT_TRUE(grid.typeCell(2, 1, "X").ok());  // the other row takes nothing meanwhile
    EXPECT_EQ(grid.TextAt(3, MemberGrid::name), "C1");

    ASSERT_TRUE(grid.typeCell(1, 1, "B7").ok());
    EXPECT_TRUE(grid.clickCell(2, 2).ok());
    EXPECT_EQ(grid.data[1].name, "B7");
    EXPECT_EQ(grid.field("editing"), "null");
}

TEST_F(GridEditing, SeveralMissingCellsAreNamedLineByLine)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "").ok());
    ASSERT_TRUE(grid.typeCell(1, 2, "").ok());
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(host.warnings, (Calls{"Name is missing\nLength is missing"}));
}

TEST_F(GridEditing, ARowThatTheDataRefusesStaysUnderEdit)
{
    grid.refusesWrites = true;
    ASSERT_TRUE(grid.typeCell(1, 2, "6").ok());
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_TRUE(grid.IsEdit());
    EXPECT_TRUE(host.warnings.empty());
    EXPECT_EQ(grid.GetValueRowCol(2, 3), "6");

    grid.refusesWrites = false;
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.data[1].length, 6.0);
}

TEST_F(GridEditing, EscapeGivesUpTheOpenCellAndThenTheRow)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "B7").ok());
    ASSERT_TRUE(grid.typeCell(1, 2, "-1").ok());
    grid.calls.clear();
    EXPECT_TRUE(grid.escape().ok());
    EXPECT_EQ(grid.take(), (Calls{"given up 2 2"}));
    EXPECT_EQ(grid.line(2), "2|B7|3|beam|0");
    EXPECT_TRUE(grid.escape().ok());
    EXPECT_EQ(grid.line(2), "2|B2|3|beam|0");
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_TRUE(grid.take().empty());
    EXPECT_TRUE(grid.escape().ok());  // with nothing open
}

TEST_F(GridEditing, EscapeFromTheOnlyTypedCellEndsTheRowToo)
{
    ASSERT_TRUE(grid.typeCell(1, 2, "x").ok());
    EXPECT_EQ(host.warnings, (Calls{"stray character"}));
    EXPECT_TRUE(grid.escape().ok());
    EXPECT_EQ(grid.field("editing"), "null");
}

TEST_F(GridEditing, TypingTheTextThatStandsThereChangesNothing)
{
    EXPECT_TRUE(grid.typeCell(1, 1, "B2").ok());
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.take(), (Calls{"field 1 B2", "edited 2 1", "row 2"}));
}

TEST_F(GridEditing, OpeningACellWithoutTypingLeavesNoTrace)
{
    EXPECT_TRUE(grid.openCell(1, 1).ok());
    EXPECT_EQ(grid.GetOpenCell(), MemberGrid::name);
    EXPECT_TRUE(grid.leaveCell().ok());
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_TRUE(grid.openCell(1, 1).ok());
    EXPECT_TRUE(grid.typeText("B").ok());
    EXPECT_TRUE(grid.typeText("B5").ok());
    EXPECT_EQ(grid.shownText(1, 1), "B5");
    EXPECT_TRUE(grid.leaveCell().ok());
    EXPECT_TRUE(grid.IsEdit());
    EXPECT_FALSE(grid.typeText("B6").ok());
}

TEST_F(GridEditing, AFormulaIsStoredByItsValue)
{
    ASSERT_TRUE(grid.typeCell(1, 2, "1.2*2").ok());
    EXPECT_EQ(grid.GetValueRowCol(2, 3), "1.2*2");
    ASSERT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.data[1].length, 2.4);
    EXPECT_EQ(grid.GetValueRowCol(2, 3), "2.4");
}

TEST_F(GridEditing, TheAppendRowBeginsWithDefaultsAndANewKey)
{
    EXPECT_TRUE(grid.typeCell(append, 1, "B3").ok());
    EXPECT_EQ(grid.line(4), "4|B3|1.5|beam|1");
    EXPECT_TRUE(grid.IsAppend());
    EXPECT_EQ(grid.field("editing"), "append");
    EXPECT_EQ(grid.field("current"), "append,1");
    EXPECT_EQ(grid.field("rows"), "1|B1|2.50|beam|1\n2|B2|3.00|beam|0\n3|C1|4.00|column|1\n");
    grid.calls.clear();

    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.take().back(), "row 5");  // the append row is the fifth now
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1", "2|B2|3|beam|0", "4|B3|1.5|beam|1", "3|C1|4|column|1"}));
    EXPECT_EQ(grid.line(5), "||||");
    EXPECT_EQ(grid.field("current"), "append,1");
    EXPECT_EQ(grid.field("appendRow"), "true");
}

TEST_F(GridEditing, ARefusedNewRowStaysOnTheAppendRow)
{
    ASSERT_TRUE(grid.typeCell(append, 2, "7").ok());
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(host.warnings, (Calls{"Name is missing"}));
    EXPECT_EQ(grid.field("editing"), "append");
    EXPECT_EQ(grid.data.size(), 3U);
    EXPECT_TRUE(grid.escape().ok());
    EXPECT_EQ(grid.line(4), "||||");
}

TEST_F(GridEditing, WithoutMirroringOfTheGridTheBrowserPutsRowsInTheirPlace)
{
    grid.mirrors = false;
    ASSERT_TRUE(grid.typeCell(append, 1, "A1").ok());
    ASSERT_TRUE(grid.typeCell(append, 2, "2+2").ok());
    ASSERT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.lines(), (Calls{"4|A1|4|beam|1", "1|B1|2.5|beam|1", "2|B2|3|beam|0", "3|C1|4|column|1"}));
    ASSERT_TRUE(grid.typeCell(1, 1, "B9").ok());
    ASSERT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.lines(), (Calls{"4|A1|4|beam|1", "2|B2|3|beam|0", "1|B9|2.5|beam|1", "3|C1|4|column|1"}));
    EXPECT_EQ(grid.data[2].name, "B9");
}

TEST_F(GridEditing, DisplayOnlyTakesNoInputButShowsSelectsAndClicks)
{
    grid.SetModeDisplayOnly(1);
    const CString refusal = "\"members\" is for display only: its cells take no input";
    EXPECT_EQ(grid.typeCell(1, 1, "X").refusal, refusal);
    EXPECT_EQ(grid.typeCell(append, 1, "X").refusal, refusal);
    EXPECT_EQ(grid.paste(1, 1, "X").refusal, refusal);
    EXPECT_EQ(grid.deleteRows({0}).refusal, refusal);
    EXPECT_TRUE(grid.clickCell(1, 1).ok());
    EXPECT_TRUE(grid.clickCell(append, 1).ok());
    EXPECT_TRUE(grid.select({1}).ok());
    EXPECT_EQ(grid.lines().size(), 3U);
    grid.SetModeDisplayOnly(0);
    EXPECT_TRUE(grid.typeCell(1, 1, "X").ok());
}

TEST_F(GridEditing, RefusesWithASentenceWhatNoUserCouldDo)
{
    EXPECT_EQ(grid.typeCell(3, 1, "X").refusal, "\"members\" has no row 3: it has 3 rows, from 0");
    EXPECT_EQ(grid.typeCell(0, 5, "X").refusal, "\"members\" has no column 5: it has 5 columns, from 0");
    EXPECT_EQ(grid.typeCell(0, -1, "X").refusal, "\"members\" has no column -1: it has 5 columns, from 0");
    EXPECT_EQ(grid.typeCell(0, 0, "X").refusal, "\"members\" does not show its column \"Key\" of row 0");
    EXPECT_EQ(grid.typeCell(0, 3, "wall").refusal, "\"members\" does not offer \"wall\" in column \"Kind\" of row 0");
    EXPECT_EQ(grid.typeCell(append, 4, "yes").refusal, "\"members\" takes only 0 or 1 in column \"Active\" of the row for a new entry, not \"yes\"");
    grid.SetColReadOnly(MemberGrid::name);
    EXPECT_EQ(grid.typeCell(0, 1, "X").refusal, "\"members\" has column \"Name\" of row 0 for reading only");
    EXPECT_TRUE(grid.clickCell(0, 1).ok());
    grid.SetColDisabled(MemberGrid::name);
    EXPECT_EQ(grid.typeCell(0, 1, "X").refusal, "\"members\" has column \"Name\" of row 0 disabled");
    EXPECT_EQ(grid.clickCell(0, 1).refusal, "\"members\" has column \"Name\" of row 0 disabled");
    grid.SetAppendRow(false);
    EXPECT_EQ(grid.typeCell(append, 2, "1").refusal, "\"members\" has no row for a new entry");
    grid.EnableWindow(false);
    EXPECT_EQ(grid.typeCell(0, 2, "1").refusal, "\"members\" is disabled");
    EXPECT_EQ(grid.leaveRow().refusal, "\"members\" is disabled");
    EXPECT_FALSE(grid.IsEdit());
}

TEST_F(GridEditing, ChoicesMayBeMerelySuggestions)
{
    grid.SetColChoices(MemberGrid::kind, {"beam", "column"}, false);
    EXPECT_TRUE(grid.typeCell(0, 3, "wall").ok());
    EXPECT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.data[0].kind, "wall");
}

TEST_F(GridEditing, TerminateWritesOrGivesUpWhatIsOpen)
{
    EXPECT_NE(grid.OnTerminate(2), 0);
    ASSERT_TRUE(grid.typeCell(0, 2, "8").ok());
    EXPECT_NE(grid.OnTerminate(2), 0);
    EXPECT_EQ(grid.data[0].length, 8.0);

    ASSERT_TRUE(grid.typeCell(0, 2, "-8").ok());
    EXPECT_EQ(grid.OnTerminate(1), 0);
    EXPECT_TRUE(grid.IsEdit());
    EXPECT_EQ(grid.OnTerminate(2), 0);
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_EQ(grid.data[0].length, 8.0);

    ASSERT_TRUE(grid.typeCell(0, 2, "9").ok());
    EXPECT_EQ(grid.OnTerminate(0), 0);
    EXPECT_EQ(grid.data[0].length, 8.0);
    EXPECT_EQ(grid.TextAt(1, MemberGrid::length), "8");
}

TEST_F(GridEditing, AClosingWindowGivesUpWhatIsStillOpen)
{
    ASSERT_TRUE(grid.typeCell(0, 2, "8").ok());
    dialog.DestroyWindow();
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_EQ(grid.data[0].length, 2.5);
}

TEST_F(GridEditing, EnterGoesDownAndTabGoesOn)
{
    ASSERT_TRUE(grid.clickCell(0, 1).ok());
    EXPECT_TRUE(grid.key(zel::UserKey::enter).ok());
    EXPECT_EQ(grid.field("current"), "1,1");
    EXPECT_TRUE(grid.key(zel::UserKey::tab).ok());
    EXPECT_EQ(grid.field("current"), "1,2");
    ASSERT_TRUE(grid.clickCell(1, 4).ok());
    EXPECT_TRUE(grid.key(zel::UserKey::tab).ok());
    EXPECT_EQ(grid.field("current"), "2,1");

    ASSERT_TRUE(grid.typeCell(append, 1, "D1").ok());
    EXPECT_TRUE(grid.key(zel::UserKey::enter).ok());
    EXPECT_EQ(grid.data.size(), 4U);
    EXPECT_EQ(grid.field("current"), "append,1");
    EXPECT_TRUE(dialog.IsWindow());
}

TEST_F(GridEditing, EscapeKeyGoesToTheDialogWhenNothingIsOpen)
{
    ASSERT_TRUE(grid.typeCell(0, 1, "X").ok());
    EXPECT_TRUE(grid.key(zel::UserKey::escape).ok());
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_TRUE(dialog.IsWindow());
}

TEST_F(GridEditing, DeletingAsksForAllRowsAtOnce)
{
    EXPECT_TRUE(grid.deleteRows({2, 0}).ok());
    EXPECT_EQ(grid.take(), (Calls{"delete 2"}));
    EXPECT_EQ(grid.lines(), (Calls{"2|B2|3|beam|0"}));
    EXPECT_FALSE(grid.deleteRows({1}).ok());
    EXPECT_FALSE(grid.deleteRows({append.number()}).ok());
    EXPECT_FALSE(grid.deleteRows({}).ok());
    grid.refusesWrites = true;
    EXPECT_TRUE(grid.deleteRows({0}).ok());
    EXPECT_EQ(grid.lines().size(), 1U);
}

TEST_F(GridEditing, DeletingTheRowUnderEditGivesItsTextsUp)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "").ok());
    EXPECT_TRUE(grid.deleteRows({1}).ok());
    EXPECT_TRUE(host.warnings.empty());
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1", "3|C1|4|column|1"}));
}

TEST_F(GridEditing, DeletingOtherRowsFirstWritesTheRowUnderEditAndThenMeetsTheRightOnes)
{
    ASSERT_TRUE(grid.typeCell(0, 1, "Z1").ok());
    EXPECT_TRUE(grid.deleteRows({1}).ok());  // B2, which then stands first
    EXPECT_EQ(grid.lines(), (Calls{"3|C1|4|column|1", "1|Z1|2.5|beam|1"}));
}

TEST_F(GridEditing, ARecordThatIsDeletedElsewhereTakesItsEditAlong)
{
    ASSERT_TRUE(grid.typeCell(1, 1, "B5").ok());
    {
        const zel::GridUpdate update{grid};
        grid.DeleteRecord(1);
    }
    EXPECT_EQ(grid.field("editing"), "0");
    EXPECT_EQ(grid.line(1), "2|B5|3|beam|0");
    grid.DeleteRecord(1);
    EXPECT_FALSE(grid.IsEdit());
}
