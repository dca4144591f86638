#include "loadcomb/editor_fixture.h"

namespace zel::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// Cells, rows and blocks of the spreadsheet.
class LoadCombinationSheet : public EditorTest {
protected:
    /// A model with more load cases; their keys are 1 to `count`.
    void addCasesUpTo(int count)
    {
        std::vector<T_STLD_D> cases;
        for (int key = 4; key <= count; ++key) {
            cases.emplace_back();
            cases.back().name = "C" + std::to_string(key);
            cases.back().type = "L";
        }
        ASSERT_NE(CDataStld().Add(cases), 0);
    }
};

TEST_F(LoadCombinationSheet, AFormulaIsStoredAsItsValue)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{dl, "1.2*2"}, {wx, " (1+2)/4 "}});
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 2.4}, T_LCOM_ITEM{1, 3, 0.75}));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB1|2.4000||0.7500|"));
    EXPECT_EQ(sheet(form).TextAt(1, dl), "2.399999999999999911");
}

TEST_F(LoadCombinationSheet, ACellOfZeroAndAnEmptyOneClearTheItem)
{
    store("LCB1", {{1, 1, 1.2}, {1, 2, 1.6}, {1, 3, 0.5}});
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{dl, "0"}, {ll, "   "}});
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 3, 0.5}));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB1|||0.5000|"));
    type(sheet(form), 0, {{wx, "2-2"}});
    EXPECT_THAT(stored("LCB1").items, IsEmpty());
}

TEST_F(LoadCombinationSheet, ANewRowTakesWhatIsTypedAndDefaultsForTheRest)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    type(sheet(form), append, {{ll, "1.6"}});
    type(sheet(form), append, {{sheetName, "wind"}, {sheetActive, "0"}, {wx, "1"}, {sheetDescription, "W"}});
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB1||||", "2|1|LCB2||1.6000||", "3|0|wind|||1.0000|W"));
    EXPECT_EQ(stored("wind").active, 0);
    EXPECT_EQ(stored("wind").number, 3);
    EXPECT_THAT(stored("LCB2").items, ElementsAre(T_LCOM_ITEM{1, 2, 1.6}));
}

TEST_F(LoadCombinationSheet, ActiveIsACheckBox)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    EXPECT_FALSE(sheet(form).typeCell(0, sheetActive, "yes").ok());
    type(sheet(form), 0, {{sheetActive, "0"}});
    EXPECT_EQ(stored("LCB1").active, 0);
    type(sheet(form), 0, {{sheetActive, "1"}});
    EXPECT_EQ(stored("LCB1").active, 1);
}

TEST_F(LoadCombinationSheet, FactorsAreJudgedWhenTheCellIsLeft)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    struct Bad {
        const char* text;
        const char* key;
    };
    for (const Bad& bad : {Bad{"1.2*", "IDS_ZEL_CMD__Invalid_formula_"}, Bad{"1.2x", "IDS_ZEL_CMD__Character_exists_in_double_value"},
                           Bad{"1e31", "IDS_ZEL_CMD__Value_is_too_big_"}}) {
        done(sheet(form).typeCell(0, dl, bad.text));
        EXPECT_THAT(warnings(), ElementsAre(bad.key));
        EXPECT_EQ(sheet(form).GetOpenCell(), dl);
        EXPECT_EQ(sheet(form).TextAt(1, dl), bad.text);
    }
    done(sheet(form).typeText("1.25"));
    done(sheet(form).leaveRow());
    EXPECT_THAT(warnings(), IsEmpty());
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.25}));
}

TEST_F(LoadCombinationSheet, ABlankNameKeepsTheRowOpenAndNothingIsWritten)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{sheetName, " \t "}, {dl, "1.2"}});
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
    EXPECT_EQ(sheet(form).GetEditRow(), 1);
    EXPECT_EQ(sheet(form).TextAt(1, dl), "1.2");
    EXPECT_EQ(stored("LCB1"), [] {
        T_LCOM_D record = combination("LCB1");
        record.kind = 1;
        record.number = 1;
        return record;
    }());
    type(sheet(form), 0, {{sheetName, "G"}});
    EXPECT_THAT(stored("G").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.2}));
    type(sheet(form), append, {{sheetName, ""}});
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
    EXPECT_THAT(storedNames(), ElementsAre("G"));
}

TEST_F(LoadCombinationSheet, ANameInUseIsRefusedByTheTableAndTheRowStaysOpen)
{
    store("LCB1");
    store("LCB2");
    const Form form = openSpreadsheet();
    type(sheet(form), 1, {{sheetName, "lcb1"}});
    EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_DUPLICATE_NAME"));
    EXPECT_EQ(sheet(form).GetEditRow(), 2);
    done(sheet(form).escape());
    EXPECT_THAT(column(sheet(form), sheetName), ElementsAre("LCB1", "LCB2"));
}

TEST_F(LoadCombinationSheet, TheFiftyFirstCaseRefusesTheRow)
{
    addCasesUpTo(60);
    std::vector<T_LCOM_ITEM> items;
    for (Key key = 1; key <= 50; ++key)
        items.push_back({1, key, 0.1 * key});
    store("FULL", items);
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{dl + 50, "1"}});
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li_MSG1"));
    EXPECT_EQ(sheet(form).GetEditRow(), 1);
    EXPECT_EQ(stored("FULL").items, items);
    type(sheet(form), 0, {{dl, "0"}});
    items.erase(items.begin());
    items.push_back({1, 51, 1.0});
    EXPECT_EQ(stored("FULL").items, items);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(LoadCombinationSheet, TheMessageNamesTheLimit)
{
    addCasesUpTo(60);
    std::vector<T_LCOM_ITEM> items;
    for (Key key = 1; key <= 51; ++key)
        items.push_back({1, key, 1.0});
    store("FULL", items);
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{sheetName, "X"}});
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_THAT(user.boxes[0].text, testing::HasSubstr("50"));
    EXPECT_EQ(storedNames(), Texts{"FULL"});
}

TEST_F(LoadCombinationSheet, FactorsThatAreNotTouchedKeepTheirLastDigit)
{
    const double third = 1.0 / 3.0;
    const double tiny = 1.23456789012345e-12;
    store("LCB1", {{1, 3, tiny}, {1, 1, third}});
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{sheetDescription, "third"}});
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 3, tiny}, T_LCOM_ITEM{1, 1, third}));
    type(sheet(form), 0, {{ll, "2"}});
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, third}, T_LCOM_ITEM{1, 2, 2.0}, T_LCOM_ITEM{1, 3, tiny}));
}

TEST_F(LoadCombinationSheet, ALoadCaseThatACombinationHoldsTwiceShowsTheSum)
{
    store("LCB1", {{1, 1, 1.0}, {1, 2, 0.5}, {1, 1, 0.25}});
    const Form form = openSpreadsheet();
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB1|1.2500|0.5000||"));
    type(sheet(form), 0, {{ll, "0"}});
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.25}));
}

TEST_F(LoadCombinationSheet, ItemsThatNoColumnShowsStay)
{
    store("LCB1", {{7, 1, 3.0}, {1, 1, 1.0}});
    const Form form = openSpreadsheet();
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB1|1.0000|||"));
    type(sheet(form), 0, {{wx, "2"}});
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.0}, T_LCOM_ITEM{1, 3, 2.0}, T_LCOM_ITEM{7, 1, 3.0}));
}

TEST_F(LoadCombinationSheet, AModificationIsOneStepOfUndo)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    type(sheet(form), 0, {{dl, "1.2"}, {sheetName, "A"}});
    ASSERT_NE(model->Undo(), 0);
    EXPECT_THAT(rows(sheet(form)), ElementsAre("1|1|LCB1||||"));
    ASSERT_NE(model->Redo(), 0);
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|A|1.2000|||"));
}

TEST_F(LoadCombinationSheet, SelectedRowsAreDeletedInOneStep)
{
    for (const char* name : {"A", "B", "C", "D"})
        store(name);
    const Form form = openSpreadsheet();
    done(sheet(form).deleteRows({0, 2}));
    EXPECT_THAT(rows(sheet(form)), ElementsAre("1|1|B||||", "2|1|D||||"));
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|B|1|", "2|D|1|"));
    ASSERT_NE(model->Undo(), 0);
    EXPECT_THAT(column(sheet(form), sheetName), ElementsAre("A", "B", "C", "D"));
    EXPECT_THAT(column(sheet(form), no), ElementsAre("1", "2", "3", "4"));
}

// Pasting

TEST_F(LoadCombinationSheet, ABlockIsPastedOverRowsAndIntoNewOnes)
{
    store("A", {{1, 1, 9.0}});
    store("B");
    const Form form = openSpreadsheet();
    done(sheet(form).paste(0, sheetName, "A\t1.2\t1.6\nB\t1.4\t\nC\t2*0.5\t0\n"));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|A|1.2000|1.6000||", "2|1|B|1.4000|||", "3|1|C|1.0000|||"));
    EXPECT_THAT(column(mainGrid(form), mainName), ElementsAre("A", "B", "C"));
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(warnings(), IsEmpty());
}

TEST_F(LoadCombinationSheet, BadDataInAnyCellUndoesThePasteAsAWhole)
{
    store("A", {{1, 1, 9.0}});
    store("B");
    const Form form = openSpreadsheet();
    for (const char* block : {"A\t1.2\nB\tx\nC\t1\n", "A\t1\nB\t1\nC\t1**\n", "A\t1\n \t2\n", "A\t1e40\n"}) {
        done(sheet(form).paste(0, sheetName, block));
        EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance")) << block;
        EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|A|9.0000|||", "2|1|B||||")) << block;
        EXPECT_THAT(stored("A").items, ElementsAre(T_LCOM_ITEM{1, 1, 9.0})) << block;
    }
    EXPECT_THAT(storedNames(), ElementsAre("A", "B"));
}

TEST_F(LoadCombinationSheet, APasteOfTooManyCasesIsUndoneAsAWhole)
{
    addCasesUpTo(60);
    store("A");
    const Form form = openSpreadsheet();
    CString block = "A";
    for (int count = 0; count < 51; ++count)
        block += "\t1";
    done(sheet(form).paste(0, sheetName, "A\t5\n" + block + "\n"));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li_MSG1"));
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance"));
    EXPECT_THAT(stored("A").items, IsEmpty());
    EXPECT_THAT(storedNames(), ElementsAre("A"));
}

TEST_F(LoadCombinationSheet, ANameInUseUndoesThePasteAsAWhole)
{
    store("A");
    store("B");
    const Form form = openSpreadsheet();
    done(sheet(form).paste(1, sheetName, "B\t7\na\t1\n"));
    EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_DUPLICATE_NAME"));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|A||||", "2|1|B||||"));
    EXPECT_THAT(stored("B").items, IsEmpty());
}

TEST_F(LoadCombinationSheet, NamesMayChangePlacesInAPaste)
{
    store("A", {{1, 1, 1.0}});
    store("B", {{1, 1, 2.0}});
    const Form form = openSpreadsheet();
    done(sheet(form).paste(0, sheetName, "B\nA\n"));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|B|1.0000|||", "2|1|A|2.0000|||"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(LoadCombinationSheet, FactorsPastedBehindTheLastRowMakeRowsWithFreeNames)
{
    store("LCB3");
    const Form form = openSpreadsheet();
    done(sheet(form).paste(append, dl, "1\n2\n3\n"));
    EXPECT_THAT(column(sheet(form), sheetName), ElementsAre("LCB3", "LCB2", "LCB4", "LCB5"));
    EXPECT_THAT(boxes(), IsEmpty());
}

// Moving

TEST_F(LoadCombinationSheet, RowsMoveUpAndDownAndTheTableKeepsTheOrder)
{
    for (const char* name : {"A", "B", "C", "D"})
        store(name);
    const Form form = openSpreadsheet();
    done(sheet(form).select({2}));
    done(sheet(form).moveRows(-1));
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "B", "D"));
    EXPECT_THAT(rows(sheet(form)), ElementsAre("1|1|A||||", "2|1|C||||", "3|1|B||||", "4|1|D||||"));
    EXPECT_THAT(column(mainGrid(form), mainName), ElementsAre("A", "C", "B", "D"));
    EXPECT_THAT(sheet(form).GetSelectedRows(), ElementsAre(Row{2}));
    done(sheet(form).moveRows(-1));
    EXPECT_THAT(storedNames(), ElementsAre("C", "A", "B", "D"));
    done(sheet(form).moveRows(1));
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "B", "D"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(LoadCombinationSheet, DraggedRowsStandInTheOrderOfTheirSelection)
{
    for (const char* name : {"A", "B", "C", "D"})
        store(name);
    const Form form = openSpreadsheet();
    done(sheet(form).dragRows({3, 1}, 0));
    EXPECT_THAT(storedNames(), ElementsAre("D", "B", "A", "C"));
    done(sheet(form).dragRows({0}, 4));
    EXPECT_THAT(storedNames(), ElementsAre("B", "A", "C", "D"));
    done(sheet(form).dragRows({0}, append));
    EXPECT_THAT(storedNames(), ElementsAre("A", "C", "D", "B"));
    EXPECT_THAT(column(sheet(form), sheetName), ElementsAre("A", "C", "D", "B"));
    ASSERT_NE(model->Undo(), 0);
    EXPECT_THAT(column(sheet(form), sheetName), ElementsAre("B", "A", "C", "D"));
}

TEST_F(LoadCombinationSheet, MovingIsRefusedWhileARowIsEdited)
{
    store("A");
    store("B");
    const Form form = openSpreadsheet();
    typeOpen(sheet(form), 0, {{dl, "1"}});
    done(sheet(form).dragRows({0}, 2));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Can_t_Move_row_while_editing_"));
    EXPECT_THAT(storedNames(), ElementsAre("A", "B"));
    form.press("toggle");
    typeOpen(mainGrid(form), 0, {{mainDescription, "x"}});
    done(mainGrid(form).moveRows(1));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Can_t_Move_row_while_editing_"));
}

TEST_F(LoadCombinationSheet, MovingNeedsASelectionAndATargetOutsideOfIt)
{
    for (const char* name : {"A", "B", "C"})
        store(name);
    const Form form = openSpreadsheet();
    done(sheet(form).dragRows({}, 0));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_load_combination_"));
    done(sheet(form).dragRows({0, 1}, 2));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Select_target_load_combination"));
    done(sheet(form).select({2}));
    done(sheet(form).moveRows(1));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Select_target_load_combination"));
    EXPECT_THAT(storedNames(), ElementsAre("A", "B", "C"));
}

TEST_F(LoadCombinationSheet, TheFirstColumnStaysInFront)
{
    const Form form = openSpreadsheet();
    EXPECT_FALSE(sheet(form).dragColumns(0, 0, 3).ok());
    EXPECT_FALSE(sheet(form).dragColumns(3, 3, 0).ok());
    EXPECT_TRUE(sheet(form).dragColumns(3, 3, 5).ok());
    type(sheet(form), append, {{4, "1.5"}});    // DL now stands behind LL
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.5}));
}

TEST_F(LoadCombinationSheet, SelectedKeysComeInTheOrderOfTheSelection)
{
    const Key first = store("LCB1");
    const Key second = store("LCB2");
    const Form form = openSpreadsheet();
    CArray<Key> selected{7};
    EXPECT_EQ(sheet(form).GetSelectedKeys(selected), 0);
    EXPECT_THAT(selected, IsEmpty());
    done(sheet(form).select({1, 0}));
    EXPECT_EQ(sheet(form).GetSelectedKeys(selected), 2);
    EXPECT_THAT(selected, ElementsAre(second, first));
}

TEST_F(LoadCombinationSheet, DeletingNoRowsIsDone)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    EXPECT_TRUE(sheet(form).DeleteFromDB(CArray<Row>{}));
    EXPECT_TRUE(subGrid(form).DeleteFromDB(CArray<Row>{}));
    EXPECT_EQ(sheet(form).GetDataRowCount(), 1);
}

}  // namespace zel::test
