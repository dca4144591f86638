#include "load/dialog_test.h"

#include "command/command.h"
#include "contract/forms/grid_records.h"
#include "contract/forms/open_dialogs.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DialogTest;
using zel::test::Form;
using zel::test::Texts;

class StaticLoadCases : public DialogTest {
protected:
    /// Opens the dialog, or brings it to the front.
    Form open() { return Form(*CMD_DoModeless(D_CMD_MODEL_LOAD_LOADCASE, nullptr)); }

    static CTBBrowserWndEx& gridOf(const Form& form) { return form.at<CTBBrowserWndEx>("grid"); }

    static void enter(const Form& form, const char* name, int type, const char* factor)
    {
        form.set("Name", name);
        form.choose("Type", type);
        form.set("Self Weight Factor", factor);
    }
    static void add(const Form& form, const char* name, int type = dead, const char* factor = "0")
    {
        enter(form, name, type, factor);
        form.press("Add");
    }

    /// Clicks into the name of a row, from 0.
    static void click(const Form& form, zel::UserRow row)
    {
        constexpr int nameColumn = 2;
        ASSERT_TRUE(gridOf(form).clickCell(row, nameColumn).ok());
    }
    static void select(const Form& form, const std::vector<int>& rows) { ASSERT_TRUE(gridOf(form).select(rows).ok()); }
    static void drag(const Form& form, const std::vector<int>& rows, int to) { ASSERT_TRUE(gridOf(form).dragRows(rows, to).ok()); }

    static Texts names(const Form& form) { return column(form, 2); }
    static Texts column(const Form& form, zel::ColumnIndex index)
    {
        const CTBGrid& grid = gridOf(form);
        Texts texts;
        for (zel::Row row = 1; row <= grid.GetDataRowCount(); ++row)
            texts.push_back(grid.TextAt(row, index));
        return texts;
    }
    static Texts storedNames()
    {
        Texts all;
        CDataStld().GetNameList(all);
        return all;
    }
    static T_STLD_D stored(const char* name)
    {
        CDataStld cases;
        EXPECT_NE(cases.Get(CString(name)), 0) << name;
        return cases.currentRecord;
    }

    static constexpr int dead = 1;  // places in the Type list
    static constexpr int live = 2;
};

// Opening

TEST_F(StaticLoadCases, OpensWithNoSubLoadCasesAndTheirFieldsDisabled)
{
    const Form form = open();
    EXPECT_EQ(form.dialog().GetWindowText(), "Static Load Cases");
    EXPECT_EQ(form.dialog().templateId(), 14047U);
    EXPECT_EQ(form.text("Name        :"), "");
    EXPECT_EQ(form.chosen("Type         :"), -1);
    EXPECT_EQ(form.text("Self Weight Factor :"), "");
    EXPECT_EQ(form.text("Number of Sub-Load Case :"), "0");
    EXPECT_FALSE(form.enabled("Combination Type :"));
    EXPECT_FALSE(form.enabled("Major Case :"));
    EXPECT_EQ(form.at<CComboBox>("Combination Type :").selectedData(), 2U);
    EXPECT_THAT(form.items("Combination Type :"),
                ElementsAre(shown("IDS_CMD_STLD_ADD"), shown("IDS_CMD_STLD_SRSS_ABS"), shown("IDS_CMD_STLD_SRSS_MAX"), shown("IDS_CMD_STLD_SRSS_MAJOR")));
    EXPECT_THAT(form.items("Major Case :"), IsEmpty());
    EXPECT_EQ(form.text("Description :"), "");
}

TEST_F(StaticLoadCases, OffersTheTypesOfTheCatalogueInItsOrder)
{
    const CLoadDB& catalogue = *model->GetLoadDB();
    CArray<CString> codes;
    catalogue.GetLoadTypeList(&codes);
    Texts display;
    for (const CString& code : codes)
        display.push_back(catalogue.GetLoadTypeName(code));
    EXPECT_EQ(open().items("Type"), display);
    EXPECT_EQ(display[1], "Dead Load (D)");
}

TEST_F(StaticLoadCases, TheListHasItsColumnsAndOnlyShows)
{
    const Form form = open();
    const CTBBrowserWndEx& grid = gridOf(form);
    struct Column {
        CString title;
        int width;
        zel::GridKind kind;
        zel::GridAlign align;
    };
    const Column columns[] = {
        {"Key", 0, zel::GridKind::integer, zel::GridAlign::right},
        {shown("IDS_ZEL_CMD__No"), 40, zel::GridKind::integer, zel::GridAlign::right},
        {shown("IDS_ZEL_CMD__Name"), 80, zel::GridKind::text, zel::GridAlign::left},
        {shown("IDS_ZEL_CMD__Type"), 135, zel::GridKind::text, zel::GridAlign::left},
        {shown("IDS_ZEL_CMD__Factor"), 60, zel::GridKind::real, zel::GridAlign::right},
        {shown("IDS_ZEL_CMD__Description"), 178, zel::GridKind::text, zel::GridAlign::left},
    };
    ASSERT_EQ(grid.GetColCount(), 6);
    for (int index = 0; index < 6; ++index) {
        const zel::GridColumn& column = grid.GetColInfo(zel::ColumnIndex::of(index));
        EXPECT_EQ(column.title, columns[index].title);
        EXPECT_EQ(column.width, columns[index].width);
        EXPECT_EQ(column.kind, columns[index].kind);
        EXPECT_EQ(column.align, columns[index].align);
    }
    EXPECT_TRUE(grid.GetColInfo(0).hidden);
    EXPECT_TRUE(grid.GetColInfo(0).disabled);
    EXPECT_FALSE(grid.GetColInfo(0).resizable);
    EXPECT_TRUE(grid.GetColInfo(1).disabled);
    EXPECT_TRUE(grid.GetColInfo(1).frozen);
    EXPECT_EQ(grid.GetColInfo(4).number.places, 2);
    EXPECT_TRUE(grid.IsModeDisplayOnly());
    EXPECT_FALSE(gridOf(form).typeCell(CTBGrid::append, 2, "DL").ok());
}

TEST_F(StaticLoadCases, OpensOnTheStoredCases)
{
    addCase("DL", "D");
    addCase("LL", "L");
    changeCase("DL", [](T_STLD_D& record) {
        record.selfWeightFactor = -1.2345;
        record.description = "own weight";
    });
    const Form form = open();
    const CTBGrid& grid = gridOf(form);
    EXPECT_THAT(grid.GetRowTexts(1), ElementsAre("1", "1", "DL", "Dead Load (D)", "-1.2345", "own weight"));
    EXPECT_THAT(grid.GetRowTexts(2), ElementsAre("2", "2", "LL", "Live Load (L)", "0", ""));
    EXPECT_EQ(grid.GetShownText(1, 4), "-1.23");
}

// Sub-load cases

TEST_F(StaticLoadCases, ThreeSubLoadCasesWithAMajorOneOfferTheirNumbers)
{
    const Form form = open();
    form.set("Number of Sub-Load Case :", "3");
    EXPECT_TRUE(form.enabled("Combination Type :"));
    EXPECT_FALSE(form.enabled("Major Case :"));
    EXPECT_THAT(form.items("Major Case :"), IsEmpty());
    form.choose("Combination Type :", 3);
    EXPECT_TRUE(form.enabled("Major Case :"));
    EXPECT_THAT(form.items("Major Case :"), ElementsAre("1", "2", "3"));
    EXPECT_EQ(form.chosen("Major Case :"), 0);
}

TEST_F(StaticLoadCases, LoweringTheNumberByOneKeepsASelectionThatTheListCanNotShow)
{
    const Form form = open();
    form.set("Number of Sub-Load Case :", "3");
    form.choose("Combination Type :", 3);
    form.choose("Major Case :", 2);
    form.set("Number of Sub-Load Case :", "2");
    EXPECT_THAT(form.items("Major Case :"), ElementsAre("1", "2"));
    EXPECT_EQ(form.chosen("Major Case :"), 2);
    EXPECT_EQ(form.text("Major Case :"), "");
    form.set("Number of Sub-Load Case :", "1");
    EXPECT_EQ(form.chosen("Major Case :"), 0);
}

TEST_F(StaticLoadCases, WithoutANumberOrAMajorCaseTheListIsEmptyAndDisabled)
{
    const Form form = open();
    form.set("Number of Sub-Load Case :", "3");
    form.choose("Combination Type :", 3);
    form.set("Number of Sub-Load Case :", "abc");
    EXPECT_FALSE(form.enabled("Combination Type :"));
    EXPECT_FALSE(form.enabled("Major Case :"));
    EXPECT_THAT(form.items("Major Case :"), IsEmpty());
    form.set("Number of Sub-Load Case :", "2");
    EXPECT_TRUE(form.enabled("Major Case :"));
    form.choose("Combination Type :", 0);
    EXPECT_FALSE(form.enabled("Major Case :"));
    EXPECT_THAT(form.items("Major Case :"), IsEmpty());
}

TEST_F(StaticLoadCases, TheSpinChangesTheNumberWithinZeroToAHundredButTypingIsFree)
{
    const Form form = open();
    zel::Control& spin = form.at("subLoadCaseSpin");
    ASSERT_TRUE(spin.spin(-1).ok());
    EXPECT_EQ(form.text("Number of Sub-Load Case :"), "0");
    ASSERT_TRUE(spin.spin(1).ok());
    EXPECT_EQ(form.text("Number of Sub-Load Case :"), "1");
    EXPECT_TRUE(form.enabled("Combination Type :"));
    form.set("Number of Sub-Load Case :", "100");
    ASSERT_TRUE(spin.spin(1).ok());
    EXPECT_EQ(form.text("Number of Sub-Load Case :"), "100");

    form.set("Number of Sub-Load Case :", "250");
    add(form, "X");
    EXPECT_EQ(stored("X").subLoadCaseCount, 250);
}

// Add

TEST_F(StaticLoadCases, AddWritesTheFormAndMakesTheNewRowCurrent)
{
    const Form form = open();
    add(form, "DL", dead, "-1");
    form.set("Description :", "live load");
    add(form, "LL", live, "0.5");
    EXPECT_THAT(names(form), ElementsAre("DL", "LL"));
    EXPECT_EQ(gridOf(form).GetCurrentRow(), 2);
    const T_STLD_D ll = stored("LL");
    EXPECT_EQ(ll.type, "L");
    EXPECT_EQ(ll.no, 2);
    EXPECT_EQ(ll.selfWeightFactor, 0.5);
    EXPECT_EQ(ll.description, "live load");
    EXPECT_EQ(ll.subLoadCaseCount, 0);
    EXPECT_EQ(ll.combinationType, 2U);
    EXPECT_EQ(ll.majorCase, 0);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(StaticLoadCases, AddStoresTheMajorCaseOfTheSubLoadCases)
{
    const Form form = open();
    form.set("Number of Sub-Load Case :", "3");
    form.choose("Combination Type :", 3);
    form.choose("Major Case :", 1);
    add(form, "EX");
    EXPECT_EQ(stored("EX").subLoadCaseCount, 3);
    EXPECT_EQ(stored("EX").combinationType, 3U);
    EXPECT_EQ(stored("EX").majorCase, 2);
}

TEST_F(StaticLoadCases, AddReturnsToTheNameWithAllOfItSelected)
{
    const Form form = open();
    add(form, "DL");
    EXPECT_TRUE(form.at("Name").HasFocus());
    EXPECT_EQ(form.at<CEdit>("Name").GetSel(), std::make_pair(0, 2));
}

TEST_F(StaticLoadCases, AddWithAnEmptyFactorShowsTwoMessagesAndModifyOne)
{
    const Form form = open();
    add(form, "DL");
    form.set("Self Weight Factor :", "");
    form.press("Add");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Invalid_Self_Weight_Factor_", "IDS_ZEL_CMD__Error___Input_data_error_"));
    form.press("Modify");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Invalid_Self_Weight_Factor_"));
    EXPECT_EQ(form.text("Name"), "DL");
    EXPECT_THAT(storedNames(), ElementsAre("DL"));
}

TEST_F(StaticLoadCases, AddWithoutATypeShowsTheInputErrorAlone)
{
    const Form form = open();
    form.set("Name", "DL");
    form.set("Self Weight Factor", "1");
    form.press("Add");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Input_data_error_"));
    EXPECT_THAT(storedNames(), IsEmpty());
}

TEST_F(StaticLoadCases, AddWithAnEmptyNameGoesToTheTableWhichRefusesIt)
{
    const Form form = open();
    add(form, "");
    EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_EMPTY_NAME"));
    EXPECT_TRUE(form.at("Name").HasFocus());
    EXPECT_THAT(storedNames(), IsEmpty());
}

TEST_F(StaticLoadCases, AddOfANameInUseIsRefusedByTheTableAndKeepsTheForm)
{
    const Form form = open();
    add(form, "DL");
    enter(form, "dl", live, "2");
    form.press("Add");
    EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_DUPLICATE_NAME"));
    EXPECT_EQ(form.text("Name"), "dl");
    EXPECT_TRUE(form.at("Name").HasFocus());
    EXPECT_THAT(storedNames(), ElementsAre("DL"));
}

TEST_F(StaticLoadCases, ANameIsTakenAsTyped)
{
    const Form form = open();
    add(form, "  wind from north  ");
    EXPECT_THAT(storedNames(), ElementsAre("  wind from north  "));
}

TEST_F(StaticLoadCases, AnyNumberPassesAsFactorAndAFormulaIsReckoned)
{
    const Form form = open();
    add(form, "A", dead, "-1e6");
    add(form, "B", dead, "1.2*2");
    EXPECT_EQ(stored("A").selfWeightFactor, -1e6);
    EXPECT_EQ(stored("B").selfWeightFactor, 2.4);
}

TEST_F(StaticLoadCases, ANumberOfSubLoadCasesThatIsNoNumberIsNone)
{
    const Form form = open();
    form.set("Number of Sub-Load Case :", "many");
    add(form, "A");
    EXPECT_EQ(stored("A").subLoadCaseCount, 0);
}

// Modify

TEST_F(StaticLoadCases, ModifyKeepsNumberAndKeyWhenTheNameChanges)
{
    const Form form = open();
    add(form, "DL");
    add(form, "LL", live);
    const zel::Key key = CDataStld().GetKeyByName("DL");
    click(form, 0);
    enter(form, "DEAD", dead, "-1");
    form.press("Modify");
    EXPECT_THAT(storedNames(), ElementsAre("DEAD", "LL"));
    EXPECT_EQ(CDataStld().GetKeyByName("DEAD"), key);
    EXPECT_EQ(stored("DEAD").no, 1);
    EXPECT_THAT(names(form), ElementsAre("DEAD", "LL"));
    EXPECT_EQ(gridOf(form).GetCurrentRow(), 1);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(StaticLoadCases, ModifyWithoutACurrentRowSaysThatNoneIsSelected)
{
    addCase("DL", "D");
    const Form form = open();
    enter(form, "X", dead, "1");
    form.press("Modify");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_static_load_case_"));
    click(form, CTBGrid::append);
    form.press("Modify");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_static_load_case_"));
    EXPECT_THAT(storedNames(), ElementsAre("DL"));
}

TEST_F(StaticLoadCases, ModifyWithoutATypeIsSilent)
{
    const zel::Key key = addCase("DL", "D");
    const Form form = open();
    changeCase("DL", [](T_STLD_D& record) { record.type = "OLD"; });
    click(form, 0);
    EXPECT_EQ(form.chosen("Type"), -1);
    form.set("Name", "X");
    form.press("Modify");
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(CDataStld().GetNameByKey(key), "DL");
}

TEST_F(StaticLoadCases, ModifyToANameInUseIsRefusedByTheTable)
{
    const Form form = open();
    add(form, "DL");
    add(form, "LL");
    form.set("Name", "DL");
    form.press("Modify");
    EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_DUPLICATE_NAME"));
    EXPECT_THAT(names(form), ElementsAre("DL", "LL"));
    EXPECT_EQ(form.text("Name"), "DL");
}

// Delete

TEST_F(StaticLoadCases, DeleteWithoutASelectionTakesTheCurrentRow)
{
    const Form form = open();
    add(form, "DL");
    add(form, "LL");
    click(form, 0);
    form.press("Delete");
    EXPECT_THAT(storedNames(), ElementsAre("LL"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(StaticLoadCases, DeleteTakesTheSelectedRowsInOneChange)
{
    for (const char* name : {"A", "B", "C", "D"})
        addCase(name, "D");
    const Form form = open();
    select(form, {1, 3});
    form.press("Delete");
    EXPECT_THAT(names(form), ElementsAre("A", "C"));
    EXPECT_THAT(column(form, 1), ElementsAre("1", "2"));
    ASSERT_NE(model->Undo(), 0);
    EXPECT_THAT(names(form), ElementsAre("A", "B", "C", "D"));
}

TEST_F(StaticLoadCases, DeletingTheLastRowLeavesTheOneBeforeCurrentAndShowsIt)
{
    const Form form = open();
    add(form, "DL", dead, "-1");
    add(form, "LL", live, "0");
    click(form, 1);
    form.press("Delete");
    EXPECT_EQ(gridOf(form).GetCurrentRow(), 1);
    EXPECT_EQ(form.text("Name"), "DL");
    EXPECT_EQ(form.text("Self Weight Factor :"), "-1");
}

TEST_F(StaticLoadCases, DeleteWithoutARowSaysThatNoneIsSelected)
{
    addCase("DL", "D");
    const Form form = open();
    form.press("Delete");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_static_load_case_"));
    click(form, CTBGrid::append);
    form.press("Delete");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_static_load_case_"));
    EXPECT_THAT(storedNames(), ElementsAre("DL"));
}

// Following the list

TEST_F(StaticLoadCases, AClickIntoARowShowsItsLoadCase)
{
    const Form form = open();
    form.set("Number of Sub-Load Case :", "2");
    form.choose("Combination Type :", 3);
    form.choose("Major Case :", 1);
    form.set("Description :", "first");
    add(form, "EX", dead, "0.25");
    form.set("Number of Sub-Load Case :", "0");
    form.set("Description :", "second");
    add(form, "LL", live, "0");

    click(form, 0);
    EXPECT_EQ(form.text("Name"), "EX");
    EXPECT_EQ(form.text("Type"), "Dead Load (D)");
    EXPECT_EQ(form.text("Self Weight Factor :"), "0.25");
    EXPECT_EQ(form.text("Number of Sub-Load Case :"), "2");
    EXPECT_EQ(form.at<CComboBox>("Combination Type :").selectedData(), 3U);
    EXPECT_EQ(form.text("Major Case :"), "2");
    EXPECT_TRUE(form.enabled("Major Case :"));
    EXPECT_EQ(form.text("Description :"), "first");
    click(form, 1);
    EXPECT_EQ(form.text("Name"), "LL");
    EXPECT_FALSE(form.enabled("Combination Type :"));
    EXPECT_FALSE(form.enabled("Major Case :"));
}

TEST_F(StaticLoadCases, ARowIsShownWhenItBecomesCurrentAndNotAgain)
{
    addCase("DL", "D");
    addCase("LL", "L");
    const Form form = open();
    click(form, 0);
    form.set("Name", "typed");
    click(form, 0);
    EXPECT_EQ(form.text("Name"), "typed");
    ASSERT_TRUE(gridOf(form).doubleClickCell(1, 2).ok());
    EXPECT_EQ(form.text("Name"), "LL");
    ASSERT_TRUE(gridOf(form).rightDoubleClickCell(0, 2).ok());
    EXPECT_EQ(form.text("Name"), "DL");
}

TEST_F(StaticLoadCases, ATypeThatTheCatalogueNoLongerHasLeavesTheFormAsItWas)
{
    addCase("DL", "D");
    addCase("OLD", "GONE");
    const Form form = open();
    click(form, 0);
    click(form, 1);
    EXPECT_EQ(form.text("Name"), "DL");
    EXPECT_EQ(form.text("Type"), "Dead Load (D)");
}

TEST_F(StaticLoadCases, AClickIntoTheNumberSelectsTheWholeRow)
{
    addCase("DL", "D");
    addCase("LL", "L");
    const Form form = open();
    ASSERT_TRUE(gridOf(form).clickCell(1, 1).ok());
    EXPECT_THAT(gridOf(form).GetSelectedRows(), ElementsAre(zel::Row{2}));
    EXPECT_EQ(form.text("Name"), "LL");
}

// Reordering

class StaticLoadCaseOrder : public StaticLoadCases {
protected:
    StaticLoadCaseOrder()
    {
        for (const char* name : {"A", "B", "C", "D"})
            addCase(name, "D");
    }
};

TEST_F(StaticLoadCaseOrder, ADropMovesTheRowsBehindTheOneAbove)
{
    const Form form = open();
    drag(form, {0}, 3);
    EXPECT_THAT(names(form), ElementsAre("B", "C", "A", "D"));
    EXPECT_THAT(column(form, 1), ElementsAre("1", "2", "3", "4"));
    EXPECT_THAT(storedNames(), ElementsAre("B", "C", "A", "D"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(StaticLoadCaseOrder, ADropOnTheFirstPlaceMovesToTheFront)
{
    const Form form = open();
    drag(form, {3}, 0);
    EXPECT_THAT(names(form), ElementsAre("D", "A", "B", "C"));
}

TEST_F(StaticLoadCaseOrder, ADropBehindTheLastRowMovesToTheEndOnEitherSideOfTheAppendRow)
{
    const Form form = open();
    drag(form, {0, 1}, 4);
    EXPECT_THAT(names(form), ElementsAre("C", "D", "A", "B"));
    select(form, {0});
    CTBBrowserWndEx& grid = gridOf(form);
    const zel::Row behindAppendRow = zel::Row::of(grid.GetRowCount() + 1);
    EXPECT_FALSE(grid.OnSelDragRowsDrop(1, 1, behindAppendRow));
    EXPECT_THAT(names(form), ElementsAre("D", "A", "B", "C"));
}

TEST_F(StaticLoadCaseOrder, RowsMoveInTheOrderOfTheirSelection)
{
    const Form form = open();
    drag(form, {2, 1}, 0);
    EXPECT_THAT(names(form), ElementsAre("C", "B", "A", "D"));
}

TEST_F(StaticLoadCaseOrder, ADropBehindASelectedRowIsRefused)
{
    const Form form = open();
    drag(form, {1}, 2);
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Select_target_load_case_which_"));
    EXPECT_THAT(names(form), ElementsAre("A", "B", "C", "D"));
}

TEST_F(StaticLoadCaseOrder, ADropWithoutASelectionIsRefused)
{
    const Form form = open();
    drag(form, {}, 0);
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_static_load_case_"));
    EXPECT_THAT(storedNames(), ElementsAre("A", "B", "C", "D"));
}

TEST_F(StaticLoadCaseOrder, ADropWhileARowIsUnderEditIsRefused)
{
    const Form form = open();
    CTBBrowserWndEx& grid = gridOf(form);
    grid.SetModeDisplayOnly(0);  // the list takes no input by itself
    ASSERT_TRUE(grid.openCell(0, 2).ok());
    drag(form, {0}, 3);
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Can_t_move_row_while_editing_"));
    EXPECT_THAT(storedNames(), ElementsAre("A", "B", "C", "D"));
}

TEST_F(StaticLoadCaseOrder, TheFormFollowsTheRecordThatTheCurrentRowHoldsAfterADrop)
{
    const Form form = open();
    drag(form, {0}, 4);
    EXPECT_EQ(gridOf(form).GetCurrentRow(), 1);
    EXPECT_EQ(form.text("Name"), "B");
    EXPECT_THAT(gridOf(form).GetSelectedRows(), IsEmpty());
}

TEST_F(StaticLoadCaseOrder, KeyAndNumberStayInFrontWhenColumnsAreDragged)
{
    const Form form = open();
    CTBBrowserWndEx& grid = gridOf(form);
    EXPECT_FALSE(grid.dragColumns(1, 1, 4).ok());
    EXPECT_FALSE(grid.dragColumns(4, 4, 1).ok());
    EXPECT_TRUE(grid.dragColumns(4, 4, 2).ok());
    EXPECT_FALSE(grid.resizeColumn(0, 50).ok());
    EXPECT_TRUE(grid.resizeColumn(2, 50).ok());
}

// Notices

TEST_F(StaticLoadCaseOrder, ChangesByAnotherWindowReachTheListInOneRowForEachCase)
{
    const Form form = open();
    addCase("E", "E");
    EXPECT_THAT(names(form), ElementsAre("A", "B", "C", "D", "E"));
    renameCase("B", "B2");
    EXPECT_THAT(names(form), ElementsAre("A", "B2", "C", "D", "E"));
    deleteCase("A");
    EXPECT_THAT(names(form), ElementsAre("B2", "C", "D", "E"));
    EXPECT_THAT(column(form, 1), ElementsAre("1", "2", "3", "4"));
}

TEST_F(StaticLoadCaseOrder, UndoAndRedoReachTheList)
{
    const Form form = open();
    drag(form, {3}, 0);
    ASSERT_NE(model->Undo(), 0);
    EXPECT_THAT(names(form), ElementsAre("A", "B", "C", "D"));
    ASSERT_NE(model->Redo(), 0);
    EXPECT_THAT(names(form), ElementsAre("D", "A", "B", "C"));
}

TEST_F(StaticLoadCaseOrder, TheFormFollowsWhenTheCurrentCaseIsDeletedByAnotherWindow)
{
    const Form form = open();
    click(form, 1);
    EXPECT_EQ(form.text("Name"), "B");
    deleteCase("B");
    EXPECT_EQ(gridOf(form).GetCurrentRow(), 2);
    EXPECT_EQ(form.text("Name"), "C");
}

TEST_F(StaticLoadCaseOrder, AChangeElsewhereLeavesWhatIsBeingTyped)
{
    const Form form = open();
    click(form, 0);
    form.set("Name", "typed");
    addCase("E", "E");
    renameCase("C", "C2");
    EXPECT_EQ(form.text("Name"), "typed");
    EXPECT_EQ(gridOf(form).GetCurrentRow(), 1);
}

TEST_F(StaticLoadCaseOrder, NoticesThatTellOfNoChangeLeaveTheDialogAsItIs)
{
    const Form form = open();
    click(form, 0);
    form.set("Name", "typed");
    tellOfNoChange();
    EXPECT_EQ(form.text("Name"), "typed");
    EXPECT_THAT(names(form), ElementsAre("A", "B", "C", "D"));
}

TEST_F(StaticLoadCaseOrder, AChangeOfUnitsLeavesCasesAndFormAsTheyAre)
{
    const Form form = open();
    click(form, 0);
    form.set("Self Weight Factor :", "1.5");
    ASSERT_NE(model->GetUnitCtrl()->SetUnitIndexCurrent({2, 2}, 1), 0);
    EXPECT_EQ(form.text("Self Weight Factor :"), "1.5");
    EXPECT_THAT(names(form), ElementsAre("A", "B", "C", "D"));
}

// Rows as records

class StaticLoadCaseRows : public StaticLoadCases {
protected:
    StaticLoadCaseRows() { addCase("DL", "D"); }

    static constexpr int columnCount = 6;
    static inline const CArray<zel::ColumnIndex> columns{0, 1, 2, 3, 4, 5};
};

TEST_F(StaticLoadCaseRows, AColumnThatIsNotThereFailsTheTestOfACell)
{
    const Form form = open();
    CTBBrowserWndEx& grid = gridOf(form);
    EXPECT_TRUE(grid.ValidateField("", columnCount - 1));
    EXPECT_FALSE(grid.ValidateField("", columnCount));
    EXPECT_EQ(grid.GetWarningText(), shown("IDS_ZEL_CMD___CCMLoadCaseGrid__ValidateField__Error"));
}

TEST_F(StaticLoadCaseRows, NameTypeAndFactorMustBeEnteredAndEachMissingOneHasItsLine)
{
    const Form form = open();
    CTBBrowserWndEx& grid = gridOf(form);
    EXPECT_TRUE(grid.ValidateRecord({"", "", "DL", "Dead Load (D)", "0", ""}, columns));
    EXPECT_FALSE(grid.ValidateRecord({"", "", "", "Dead Load (D)", "", ""}, columns));
    const CString missing = shown("IDS_ZEL_CMD___has_not_been_entered_");
    EXPECT_EQ(grid.GetWarningText(), shown("IDS_ZEL_CMD__Name") + missing + "\n" + shown("IDS_ZEL_CMD__Factor") + missing);
}

TEST_F(StaticLoadCaseRows, TextsBecomeAKeyAndARecord)
{
    const Form form = open();
    auto& grid = form.at<CTBRecordGrid<T_STLD_D>>("grid");
    CArray<zel::Key> keys;
    CArray<T_STLD_D> records;
    ASSERT_TRUE(grid.MakeKeyAndDataArray({"", "7", "LL", "Live Load (L)", "1.2*2", "floors"}, columns, keys, records));
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys[0], 0U);
    const T_STLD_D& record = records[0];
    EXPECT_EQ(record.no, 7);
    EXPECT_EQ(record.name, "LL");
    EXPECT_EQ(record.type, "L");
    EXPECT_EQ(record.selfWeightFactor, 2.4);
    EXPECT_EQ(record.description, "floors");

    EXPECT_FALSE(grid.MakeKeyAndDataArray({"", "", "", "", "", ""}, columns, keys, records));
    EXPECT_EQ(keys.size(), 1U);
}

TEST_F(StaticLoadCaseRows, RowsAreWrittenAsAWhole)
{
    const Form form = open();
    auto& grid = form.at<CTBRecordGrid<T_STLD_D>>("grid");
    CArray<zel::Key> keys;
    CArray<T_STLD_D> records;
    for (const char* name : {"LL", "SL"})
        ASSERT_TRUE(grid.MakeKeyAndDataArray({"", "", name, "Live Load (L)", "0", ""}, columns, keys, records));
    EXPECT_TRUE(grid.AddToDB(keys, records));
    EXPECT_THAT(names(form), ElementsAre("DL", "LL", "SL"));
    EXPECT_FALSE(grid.AddToDB(keys, records));  // the names are in use
    EXPECT_THAT(storedNames(), ElementsAre("DL", "LL", "SL"));
    grid.DeleteKeyAndDataArray(keys, records);
    EXPECT_TRUE(keys.empty() && records.empty());
    EXPECT_TRUE(grid.DeleteFromDB(CArray<zel::Row>{}));
    EXPECT_EQ(grid.GetNewKey(), "4");
    EXPECT_EQ(grid.GetCountData(), 3);
    EXPECT_THAT(grid.GetDefValueArray(), ElementsAre("", "", "", "", "", ""));
}

TEST_F(StaticLoadCaseRows, ACellThatIsChangedModifiesItsCaseAndKeepsWhatHasNoColumn)
{
    changeCase("DL", [](T_STLD_D& record) { record.subLoadCaseCount = 4; });
    const Form form = open();
    CTBBrowserWndEx& grid = gridOf(form);
    grid.SetModeDisplayOnly(0);
    ASSERT_TRUE(grid.typeCell(0, 2, "DEAD").ok());
    ASSERT_TRUE(grid.typeCell(0, 4, "1+0.5").ok());
    ASSERT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(stored("DEAD").selfWeightFactor, 1.5);
    EXPECT_EQ(stored("DEAD").subLoadCaseCount, 4);
    EXPECT_THAT(names(form), ElementsAre("DEAD"));
}

TEST_F(StaticLoadCaseRows, ARowUnderEditIsKeptThroughAChangeOfUnits)
{
    const Form form = open();
    CTBBrowserWndEx& grid = gridOf(form);
    grid.SetModeDisplayOnly(0);
    ASSERT_TRUE(grid.typeCell(0, 4, "1.5").ok());
    ASSERT_NE(model->GetUnitCtrl()->SetUnitIndexCurrent({2, 2}, 1), 0);
    EXPECT_EQ(grid.TextAt(1, 4), "1.5");
    EXPECT_TRUE(grid.IsEdit());
}

// The dialog

TEST_F(StaticLoadCases, CloseDestroysTheWindowAndLeavesTheTable)
{
    const Form form = open();
    add(form, "DL");
    form.press("Close");
    EXPECT_THAT(zel::openDialogs(), IsEmpty());
    EXPECT_THAT(storedNames(), ElementsAre("DL"));
    EXPECT_EQ(model->GetDlgCtrl()->GetDlg(D_CMD_MODEL_LOAD_LOADCASE), nullptr);
}

TEST_F(StaticLoadCases, AModelThatGoesClosesTheDialog)
{
    open();
    model.reset();
    EXPECT_THAT(zel::openDialogs(), IsEmpty());
}

}  // namespace
