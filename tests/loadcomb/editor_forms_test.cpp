#include "loadcomb/editor_fixture.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace zel::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// Opening, the two forms, copying, and the ways out of the editor.
class LoadCombinationEditor : public EditorTest {};

TEST_F(LoadCombinationEditor, OpensOnceByItsId)
{
    const Form form = open();
    EXPECT_EQ(form.dialog().ClassName(), "CCMLoadCombDlg");
    EXPECT_EQ(form.dialog().GetWindowText(), "Load Combinations");
    EXPECT_EQ(form.dialog().templateId(), 14052U);
    EXPECT_EQ(&open().dialog(), &form.dialog());
    EXPECT_EQ(openDialogs().size(), 1U);
}

TEST_F(LoadCombinationEditor, OffersTheGeneralKindAlone)
{
    const Form form = open();
    const auto& tabs = form.at<CDlgTabCtrl>("tabs");
    ASSERT_EQ(tabs.GetPageCount(), 1);
    EXPECT_EQ(tabs.GetTitle(0), shown("IDS_ZEL_CMD__General"));
    EXPECT_EQ(tabs.GetCurSel(), 0);
}

TEST_F(LoadCombinationEditor, HasFiveButtons)
{
    const Form form = open();
    Texts captions;
    for (const Control* control : form.dialog().controls()) {
        if (control->kind() == Kind::button)
            captions.push_back(control->label());
    }
    EXPECT_THAT(captions, ElementsAre("Copy", "Import...", "&Auto Generation...", shown("IDS_ZEL_CMD__Spread_Sheet_Form"), "&Close"));
}

TEST_F(LoadCombinationEditor, ColumnsOfTheNormalForm)
{
    const Form form = open();
    EXPECT_THAT(titles(mainGrid(form)), ElementsAre(shown("IDS_ZEL_CMD__No"), shown("IDS_ZEL_CMD__Name"), shown("IDS_ZEL_CMD__Active"),
                                                    shown("IDS_ZEL_CMD__Description")));
    Texts items;
    for (const CString& title : titles(subGrid(form))) {
        if (!title.empty())
            items.push_back(title);
    }
    EXPECT_THAT(items, ElementsAre(shown("IDS_ZEL_CMD__LoadCase"), shown("IDS_ZEL_CMD__Factor")));
    EXPECT_TRUE(subGrid(form).GetColInfo(2).hidden);
    EXPECT_THAT(subGrid(form).GetColInfo(loadCase).choices, ElementsAre("DL(ST)", "LL(ST)", "WX(ST)", shown("IDS_ZEL_CMD__None")));
    std::vector<int> widths;
    for (const ColumnIndex index : mainGrid(form).GetAllColumns())
        widths.push_back(mainGrid(form).GetColInfo(index).width);
    EXPECT_THAT(widths, ElementsAre(50, 58, 55, 200));
    EXPECT_EQ(subGrid(form).GetColInfo(loadCase).width, 100);
}

TEST_F(LoadCombinationEditor, ColumnsOfTheSpreadsheetHaveEachLoadCaseInItsPlace)
{
    ASSERT_NE(CDataStld().ChangeSequence({3}, 0), 0);
    const Form form = openSpreadsheet();
    const CString mark = "[IDS_ZEL_CMD___s_ST_]";
    EXPECT_THAT(titles(sheet(form)), ElementsAre(shown("IDS_ZEL_CMD__No"), shown("IDS_ZEL_CMD__Active"), shown("IDS_ZEL_CMD__Name"), mark + "WX(ST)",
                                                 mark + "DL(ST)", mark + "LL(ST)", shown("IDS_ZEL_CMD__Description")));
    EXPECT_EQ(sheet(form).GetColInfo(sheetActive).kind, GridKind::check);
    EXPECT_EQ(sheet(form).GetColInfo(dl).number.places, 4);
    std::vector<int> widths;
    for (const ColumnIndex index : sheet(form).GetAllColumns())
        widths.push_back(sheet(form).GetColInfo(index).width);
    EXPECT_THAT(widths, ElementsAre(50, 55, 58, 70, 70, 70, 200));
}

TEST_F(LoadCombinationEditor, ShowsTheSameCombinationsInBothForms)
{
    store(combination("LCB1", {{1, 1, 1.2}, {1, 2, 1.6}}, "1.2D + 1.6L"));
    T_LCOM_D off = combination("LCB2", {{1, 3, -0.5}});
    off.active = 0;
    store(off);
    store(combination("STEEL"), 2);
    const Form form = open();
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|LCB1|1|1.2D + 1.6L", "2|LCB2|0|"));
    EXPECT_THAT(rows(sheet(form)), ElementsAre("1|1|LCB1|1.199999999999999956|1.600000000000000089||1.2D + 1.6L", "2|0|LCB2|||-0.500000000000000000|"));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB1|1.2000|1.6000||1.2D + 1.6L", "2|0|LCB2|||-0.5000|"));
    click(mainGrid(form), 0, mainName);
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("DL(ST)|1.2|1", "LL(ST)|1.6|2"));
}

TEST_F(LoadCombinationEditor, TheFirstColumnCanNotBeEdited)
{
    store("LCB1");
    const Form form = open();
    EXPECT_FALSE(mainGrid(form).typeCell(0, no, "7").ok());
    EXPECT_FALSE(mainGrid(form).typeCell(append, no, "7").ok());
    form.press("toggle");
    EXPECT_FALSE(sheet(form).typeCell(0, no, "7").ok());
    EXPECT_EQ(stored("LCB1").number, 1);
}

// Toggling

TEST_F(LoadCombinationEditor, TogglesBetweenTheFormsAndNamesTheOtherOne)
{
    const Form form = open();
    EXPECT_TRUE(form.visible("mainGrid"));
    EXPECT_TRUE(form.visible("subGrid"));
    EXPECT_FALSE(form.visible("grid"));
    form.press("toggle");
    EXPECT_FALSE(form.visible("mainGrid"));
    EXPECT_FALSE(form.visible("subGrid"));
    EXPECT_TRUE(form.visible("grid"));
    EXPECT_EQ(form.text("toggle"), shown("IDS_ZEL_CMD__Normal_Form"));
    form.press("toggle");
    EXPECT_TRUE(form.visible("mainGrid"));
    EXPECT_EQ(form.text("toggle"), shown("IDS_ZEL_CMD__Spread_Sheet_Form"));
}

TEST_F(LoadCombinationEditor, TogglingWritesTheRowUnderEdit)
{
    store("LCB1");
    const Form form = open();
    typeOpen(mainGrid(form), 0, {{mainDescription, "gravity"}});
    EXPECT_EQ(stored("LCB1").description, "");
    form.press("toggle");
    EXPECT_EQ(stored("LCB1").description, "gravity");
    EXPECT_THAT(rows(sheet(form)), ElementsAre("1|1|LCB1||||gravity"));
    typeOpen(sheet(form), 0, {{dl, "1.4"}});
    form.press("toggle");
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.4}));
    click(mainGrid(form), 0, mainName);
    typeOpen(subGrid(form), 0, {{factor, "1.5"}});
    form.press("toggle");
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.5}));
}

TEST_F(LoadCombinationEditor, ARefusedRowKeepsItsFormOpen)
{
    store("LCB1");
    const Form form = open();
    typeOpen(mainGrid(form), 0, {{mainName, "  "}});
    form.press("toggle");
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
    EXPECT_TRUE(form.visible("mainGrid"));
    EXPECT_TRUE(mainGrid(form).IsEdit());
    EXPECT_THAT(storedNames(), ElementsAre("LCB1"));
    done(mainGrid(form).escape());
    form.press("toggle");
    EXPECT_TRUE(form.visible("grid"));
}

TEST_F(LoadCombinationEditor, TogglingStaysAtTheCurrentCombination)
{
    for (const char* name : {"A", "B", "C"})
        store(name);
    const Form form = open();
    form.press("toggle");
    EXPECT_EQ(sheet(form).GetCurrentRow(), 0);
    click(sheet(form), 1, ll);
    form.press("toggle");
    EXPECT_EQ(mainGrid(form).GetCurrentRow(), 2);
    click(mainGrid(form), 2, mainDescription);
    form.press("toggle");
    EXPECT_EQ(sheet(form).GetCurrentRow(), 3);
}

// Copying

TEST_F(LoadCombinationEditor, CopyTakesTheFirstFreeNumberBehindTheCount)
{
    const std::vector<T_LCOM_ITEM> items{{1, 2, 1.6}, {1, 1, 1.2}};
    store("LCB1");
    T_LCOM_D second = combination("LCB2", items, "both");
    second.active = 0;
    store(second);
    store("LCB3");
    const Form form = open();
    click(mainGrid(form), 1, mainName);
    form.press("Copy");
    EXPECT_THAT(storedNames(), ElementsAre("LCB1", "LCB2", "LCB3", "LCB4"));
    EXPECT_EQ(stored("LCB4").items, items);
    EXPECT_EQ(stored("LCB4").description, "both");
    EXPECT_EQ(stored("LCB4").active, 0);
    EXPECT_EQ(stored("LCB4").number, 4);
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 4);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(LoadCombinationEditor, CopyPassesOverNamesThatAreBorneInAnyCase)
{
    for (const char* name : {"LCB1", "lcb4", "LCB3"})
        store(name);
    store(combination("LCB5"), 2);
    const Form form = openSpreadsheet();
    click(sheet(form), 0, sheetName);
    form.press("Copy");
    EXPECT_THAT(storedNames(), ElementsAre("LCB1", "lcb4", "LCB3", "LCB5"));
}

TEST_F(LoadCombinationEditor, CopyNeedsACombination)
{
    store("LCB1");
    const Form form = open();
    form.press("Copy");
    click(mainGrid(form), append, mainName);
    form.press("Copy");
    typeOpen(mainGrid(form), append, {{mainName, "new"}});
    form.press("Copy");
    done(mainGrid(form).escape());
    form.press("toggle");
    form.press("Copy");
    click(sheet(form), append, sheetName);
    form.press("Copy");
    EXPECT_EQ(boxes(), Texts(5, "IDS_ZEL_CMD__Error___No_specified_load_combination_"));
    EXPECT_THAT(storedNames(), ElementsAre("LCB1"));
}

TEST_F(LoadCombinationEditor, CopyWaitsForTheRowUnderEdit)
{
    store("LCB1");
    const Form form = open();
    typeOpen(mainGrid(form), 0, {{mainDescription, "half"}});
    form.press("Copy");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Can_t_copy_while_editing_"));
    done(mainGrid(form).leaveRow());
    form.press("toggle");
    done(sheet(form).openCell(0, dl));
    form.press("Copy");
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Can_t_copy_while_editing_"));
    EXPECT_THAT(storedNames(), ElementsAre("LCB1"));
}

// Other kinds

TEST_F(LoadCombinationEditor, AnotherTabShowsAnotherKind)
{
    store("LCB1");
    for (const int kind : {2, 3, 4, 5})
        store(combination("K" + std::to_string(kind)), kind);
    const Form form = open();
    auto& tabs = form.at<CDlgTabCtrl>("tabs");
    for (const char* title : {"steel", "concrete", "SRC", "footing"})
        tabs.AddTab(title);
    click(mainGrid(form), 0, mainName);
    const int kinds[] = {1, 2, 3, 5, 4};
    for (int tab = 1; tab < 5; ++tab) {
        ASSERT_TRUE(tabs.choose(static_cast<double>(tab)).ok());
        EXPECT_THAT(column(mainGrid(form), mainName), ElementsAre("K" + std::to_string(kinds[tab])));
        EXPECT_THAT(column(sheet(form), sheetName), ElementsAre("K" + std::to_string(kinds[tab])));
    }
    type(mainGrid(form), append, {{mainDescription, "new"}});
    EXPECT_THAT(storedNames(4), ElementsAre("K4", "LCB2"));
    store("LCB2");
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 2);
}

TEST_F(LoadCombinationEditor, ARefusedRowKeepsItsTab)
{
    store("LCB1");
    const Form form = open();
    auto& tabs = form.at<CDlgTabCtrl>("tabs");
    tabs.AddTab("steel");
    typeOpen(mainGrid(form), 0, {{mainName, ""}});
    ASSERT_TRUE(tabs.choose(1.0).ok());
    EXPECT_EQ(tabs.GetCurSel(), 0);
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
    EXPECT_EQ(mainGrid(form).GetDataRowCount(), 1);
}

// Generating, importing, closing

TEST_F(LoadCombinationEditor, AutoGenerationFillsBothFormsByNotices)
{
    const Form form = open();
    user.inModal([](CDialog& dialog) {
        EXPECT_EQ(dialog.ClassName(), "CCMAutoLoadCombDlg");
        Form(dialog).press("OK");
    });
    form.press("Auto Generation...");
    ASSERT_GT(CDataLcom().GetCount(1), 0);
    EXPECT_EQ(column(mainGrid(form), mainName), storedNames());
    EXPECT_EQ(column(sheet(form), sheetName), storedNames());
}

TEST_F(LoadCombinationEditor, ImportAsksForAFileAndShowsWhatItHolds)
{
    const CString path = (std::filesystem::temp_directory_path() / "editor_import.lcb").string();
    std::ofstream(path) << "12, any, 1, 1.2, 2, 1.6, ** dead and live\n";
    const Form form = open();
    form.press("Import...");
    EXPECT_THAT(rows(mainGrid(form)), IsEmpty());
    user.file(path);
    form.press("Import...");
    std::remove(path.c_str());
    EXPECT_THAT(user.fileFilters, testing::Each("Load Combination File(*.lcb)|*.lcb|All File(*.*)|*.*||"));
    EXPECT_THAT(shownRows(sheet(form)), ElementsAre("1|1|LCB12|1.2000|1.6000||"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(LoadCombinationEditor, ClosingWritesTheRowUnderEdit)
{
    store("LCB1");
    const Form form = open();
    typeOpen(mainGrid(form), 0, {{mainDescription, "kept"}});
    form.press("Close");
    EXPECT_EQ(stored("LCB1").description, "kept");
    EXPECT_TRUE(openDialogs().empty());
}

TEST_F(LoadCombinationEditor, ClosingGivesARefusedRowUp)
{
    store("LCB1");
    const Form form = openSpreadsheet();
    typeOpen(sheet(form), 0, {{sheetName, ""}, {dl, "1"}});
    ASSERT_TRUE(form.dialog().userClose().ok());
    EXPECT_TRUE(openDialogs().empty());
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
    EXPECT_THAT(stored("LCB1").items, IsEmpty());
}

TEST_F(LoadCombinationEditor, ClosingWritesAnItemUnderEdit)
{
    store("LCB1", {{1, 1, 1.2}});
    const Form form = open();
    click(mainGrid(form), 0, mainName);
    typeOpen(subGrid(form), 0, {{factor, "1.3"}});
    form.press("Close");
    EXPECT_THAT(stored("LCB1").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.3}));
}

}  // namespace zel::test
