#include "journal/recorder_fixture.h"

#include "command/command.h"

#include <gmock/gmock.h>

namespace {

using journal_test::GridForm;
using journal_test::Recording;
using testing::ElementsAre;

class RecordedGrids : public journal_test::RecorderTest {
protected:
    RecordedGrids()
    {
        dialogs = [this] { form = new GridForm; };  // its window frees it
    }

    void typeInto(const CString& text)
    {
        for (std::size_t length = 1; length <= text.size(); ++length)
            EXPECT_TRUE(hand.typeText(form->grid, text.substr(0, length)));
    }
    void edit(zel::UserRow row, zel::UserColumn column, const CString& text)
    {
        EXPECT_TRUE(hand.openCell(form->grid, row, column));
        typeInto(text);
        EXPECT_TRUE(hand.leaveCell(form->grid));
    }

    GridForm* form = nullptr;
};

constexpr int name = 1;
constexpr int length = 2;
constexpr int kind = 3;

TEST_F(RecordedGrids, OpeningTypingAndLeavingACellIsOneCommand)
{
    const Recording recording = record([this] {
        edit(1, length, "2*3");
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::cell, .row = 1, .column = kind, .text = "column"}));
        EXPECT_TRUE(hand.act(form->grid, {zel::Verb::leaveRow}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "cell", "control": "members", "row": 1, "column": "Length", "text": "2*3"})",
                            R"({"do": "cell", "control": "members", "row": 1, "column": "Kind", "text": "column"})",
                            R"({"do": "leave_row", "control": "members"})"));
    EXPECT_EQ(form->grid.line(2), "2|B2|6|column|0");
}

TEST_F(RecordedGrids, TheRowForNewEntriesIsCalledAppend)
{
    const Recording recording = record([this] {
        edit(CTBGrid::append, name, "A0");
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::key, .key = zel::UserKey::enter}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "cell", "control": "members", "row": "append", "column": "Name", "text": "A0"})",
                            R"({"do": "key", "control": "members", "value": "Enter"})"));
    EXPECT_EQ(form->grid.line(1), "4|A0|1.5|beam|1");
}

TEST_F(RecordedGrids, ACellThatWasRefusedStaysOpenInBoth)
{
    const Recording recording = record([this] {
        edit(0, length, "-1");
        EXPECT_GE(form->grid.GetOpenCell(), 0);
        typeInto("7");
        EXPECT_TRUE(hand.leaveCell(form->grid));
        edit(0, length, "-2");
        EXPECT_TRUE(hand.act(form->grid, {zel::Verb::escape}));
        EXPECT_LT(form->grid.GetOpenCell(), 0);
        EXPECT_TRUE(hand.act(form->grid, {zel::Verb::leaveRow}));
    });
    EXPECT_EQ(form->grid.line(1), "1|B1|7|beam|1");
    EXPECT_EQ(recording.lines()[3], R"({"do": "escape", "control": "members"})");
}

TEST_F(RecordedGrids, ARefusedCellThatIsLeftAgainIsRefusedAgain)
{
    record([this] {
        edit(0, length, "-1");
        EXPECT_TRUE(hand.leaveCell(form->grid));
        EXPECT_EQ(host.warnings.size(), 2U);
        EXPECT_TRUE(hand.act(form->done, {zel::Verb::press}));
    });
}

TEST_F(RecordedGrids, ACellThatIsGivenUpWasOnlyClicked)
{
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.openCell(form->grid, 2, length));
        typeInto("9");
        EXPECT_TRUE(hand.act(form->grid, {zel::Verb::escape}));
        EXPECT_TRUE(hand.openCell(form->grid, 2, length));  // it is the current one already
        typeInto("8");
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::key, .key = zel::UserKey::escape}));
        EXPECT_TRUE(hand.openCell(form->grid, 2, length));
        EXPECT_TRUE(hand.leaveCell(form->grid));
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "current", "control": "members", "row": 2, "column": "Length"})"));
}

TEST_F(RecordedGrids, GivingACellUpLeavesTheOthersOfItsRow)
{
    const Recording recording = record([this] {
        edit(0, length, "9");
        EXPECT_TRUE(hand.openCell(form->grid, 0, name));
        typeInto("Z");
        EXPECT_TRUE(hand.key(*form, zel::UserKey::escape));
        EXPECT_TRUE(form->grid.IsEdit());
        EXPECT_TRUE(hand.act(form->grid, {zel::Verb::leaveRow}));
    });
    EXPECT_EQ(form->grid.line(1), "1|B1|9|beam|1");
    EXPECT_EQ(recording.lines().size(), 3U);
}

TEST_F(RecordedGrids, WhatIsTypedIntoACellIsWrittenBeforeTheNextCommand)
{
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.openCell(form->grid, 0, length));
        typeInto("5");
        EXPECT_TRUE(hand.act(form->done, {zel::Verb::press}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "cell", "control": "members", "row": 0, "column": "Length", "text": "5"})", R"({"do": "press", "control": "Done"})"));
}

TEST_F(RecordedGrids, ACellThatItsFormTakesWithItIsNotWritten)
{
    const Recording recording = recordOnly([this] {
        EXPECT_TRUE(hand.openCell(form->grid, 0, length));
        typeInto("5");
        EXPECT_TRUE(hand.close(*form));
    });
    EXPECT_EQ(recording.lines().back(), R"({"do": "close"})");
    EXPECT_EQ(recording.journal.find("\"cell\""), std::string::npos);
}

TEST_F(RecordedGrids, RowsAreSelectedDraggedDeletedAndPasted)
{
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::current, .row = 1, .column = name}));
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::select, .rows = {0, 2}}));
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::dragRows, .rows = {0}, .to = 2}));
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::dragRows, .rows = {0}, .to = CTBGrid::append}));
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::deleteRows, .rows = {1}}));
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::paste, .row = CTBGrid::append, .column = name, .text = "P1\t3\tbeam\t1\nP2\t4\tcolumn\t0"}));
        EXPECT_FALSE(hand.act(form->grid, {.verb = zel::Verb::drop, .row = 0, .column = name, .text = "no use"}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "current", "control": "members", "row": 1, "column": "Name"})",
                            R"({"do": "select", "control": "members", "rows": [0, 2]})", R"({"do": "drag_rows", "control": "members", "rows": [0], "to": 2})",
                            R"({"do": "drag_rows", "control": "members", "rows": [0], "to": "append"})",
                            R"({"do": "delete_rows", "control": "members", "rows": [1]})",
                            R"({"do": "paste", "control": "members", "row": "append", "column": "Name", "text": "P1\t3\tbeam\t1\nP2\t4\tcolumn\t0"})"));
}

TEST_F(RecordedGrids, AColumnIsCalledByItsNumberWhereItsTitleLeadsElsewhere)
{
    dialogs = [this] {
        form = new GridForm;
        form->grid.AddColInfo("Name", 3, 0);
    };
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::current, .row = 0, .column = 5}));
        EXPECT_TRUE(hand.act(form->grid, {.verb = zel::Verb::current, .row = 0, .column = name}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "current", "control": "members", "row": 0, "column": 5})",
                            R"({"do": "current", "control": "members", "row": 0, "column": "Name"})"));
}

TEST_F(RecordedGrids, ADoubleClickedCellIsItsRowDoubleClicked)
{
    const Recording recording = record([this] { EXPECT_TRUE(hand.doubleClickCell(form->grid, 1, length)); });
    EXPECT_THAT(
        recording.lines(),
        ElementsAre(R"({"do": "current", "control": "members", "row": 1, "column": "Length"})", R"({"do": "double_click", "control": "members", "row": 1})"));
}

TEST_F(RecordedGrids, WhatNoCommandDoesIsACommentWrittenOnce)
{
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.resizeColumn(form->grid, name, 90));
        EXPECT_TRUE(hand.resizeColumn(form->grid, name, 80));
        EXPECT_TRUE(hand.rightDoubleClickCell(form->grid, 0, name));
        EXPECT_FALSE(hand.pressCell(form->grid, 0, name));
        EXPECT_TRUE(hand.act(form->done, {zel::Verb::press}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre("# A column was made wider or narrower. No command does that.",
                            R"({"do": "current", "control": "members", "row": 0, "column": "Name"})",
                            "# A cell was double-clicked with the right button. No command does that.", R"({"do": "press", "control": "Done"})"));
}

TEST_F(RecordedGrids, TabsAreChosenByTheirTitles)
{
    const Recording recording = record([this] { EXPECT_TRUE(hand.choose(form->tabs, 1)); });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "tab", "control": "tabs", "value": "Second"})"));
}

// The grid of a combination's items writes its row when the focus goes. An undo after that must find the write.
TEST_F(RecordedGrids, ARowThatIsWrittenBecauseTheFocusGoesIsLeftInTheJournalToo)
{
    dialogs = [] {};
    const Recording recording = record([this] {
        CDialog& cases = *hand.modeless(D_CMD_MODEL_LOAD_LOADCASE);
        EXPECT_TRUE(hand.act(at("Name"), {.verb = zel::Verb::set, .value = CString("DL")}));
        EXPECT_TRUE(hand.act(at("Type"), {.verb = zel::Verb::set, .value = CString("Dead Load (D)")}));
        EXPECT_TRUE(hand.act(at("Self Weight Factor"), {.verb = zel::Verb::set, .value = CString("-1")}));
        press("Add");
        EXPECT_TRUE(hand.close(cases));
        hand.modeless(D_CMD_RESULT_LOADCOMB);
        auto& main = at<CTBBrowserWndEx>("mainGrid");
        auto& items = at<CTBBrowserWndEx>("subGrid");
        EXPECT_TRUE(hand.act(main, {.verb = zel::Verb::cell, .row = CTBGrid::append, .column = main.columnByTitle("Name"), .text = "C1"}));
        EXPECT_TRUE(hand.act(main, {zel::Verb::leaveRow}));
        EXPECT_TRUE(hand.act(main, {.verb = zel::Verb::current, .row = 0, .column = main.columnByTitle("Name")}));
        EXPECT_TRUE(hand.act(items, {.verb = zel::Verb::cell, .row = CTBGrid::append, .column = 0, .text = "DL(ST)"}));
        EXPECT_TRUE(hand.act(items, {.verb = zel::Verb::cell, .row = CTBGrid::append, .column = items.columnByTitle("Factor"), .text = "1.5"}));
        EXPECT_TRUE(items.IsEdit());
        EXPECT_TRUE(hand.focus(at("toggle")));
        EXPECT_FALSE(items.IsEdit());
        EXPECT_EQ(hand.undo(*document), 1);
    });
    EXPECT_NE(recording.journal.find(R"({"do": "leave_row", "control": "subGrid"})"), std::string::npos) << recording.journal;
}

TEST_F(RecordedGrids, ARowThatIsRefusedWhenTheFocusGoesIsNotLeft)
{
    dialogs = [] {};
    const Recording recording = record([this] {
        hand.modeless(D_CMD_RESULT_LOADCOMB);
        auto& main = at<CTBBrowserWndEx>("mainGrid");
        auto& items = at<CTBBrowserWndEx>("subGrid");
        EXPECT_TRUE(hand.act(main, {.verb = zel::Verb::cell, .row = CTBGrid::append, .column = main.columnByTitle("Name"), .text = "C1"}));
        EXPECT_TRUE(hand.act(main, {zel::Verb::leaveRow}));
        EXPECT_TRUE(hand.act(main, {.verb = zel::Verb::current, .row = 0, .column = main.columnByTitle("Name")}));
        EXPECT_TRUE(hand.act(items, {.verb = zel::Verb::cell, .row = CTBGrid::append, .column = items.columnByTitle("Factor"), .text = "2"}));
        EXPECT_TRUE(hand.focus(at("toggle")));
        EXPECT_TRUE(items.IsEdit());
        hand.units(*document, {T_UNIT_INDEX::CM, T_UNIT_INDEX::KN});
        EXPECT_TRUE(hand.act(at("toggle"), {zel::Verb::press}));
    });
    EXPECT_EQ(recording.journal.find("leave_row\", \"control\": \"subGrid"), std::string::npos) << recording.journal;
}

}  // namespace
