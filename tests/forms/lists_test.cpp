#include "forms/sample_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using forms_test::OpenForm;
using Texts = std::vector<CString>;
using Rows = std::vector<int>;

TEST(ComboBox, StartsEmptyAndOffersItsItemsInOrder)
{
    OpenForm open;
    CComboBox& type = open.form->type;
    EXPECT_EQ(type.GetCurSel(), -1);
    EXPECT_EQ(type.AddString("Dead Load (D)", 7), 0);
    EXPECT_EQ(type.AddString("Live Load (L)", 8), 1);
    EXPECT_EQ(type.items(), (Texts{"Dead Load (D)", "Live Load (L)"}));
    EXPECT_EQ(type.GetWindowText(), "");
    EXPECT_EQ(type.selectedData(), 0U);
    EXPECT_EQ(type.FindData(8), 1);
}

TEST(ComboBox, TakesAnEntryByTextOrPlace)
{
    OpenForm open;
    CComboBox& type = open.form->type;
    type.AddString("&Dead  Load :", 7);
    type.AddString("Live Load", 8);
    EXPECT_TRUE(type.set(CString("Live Load")));
    EXPECT_EQ(type.selectedData(), 8U);
    EXPECT_TRUE(type.set(0.0));
    EXPECT_EQ(type.GetWindowText(), "&Dead  Load :");
    type.SetCurSel(1);
    EXPECT_TRUE(type.set(CString("Dead Load"))) << "entries may be named as controls are";
    EXPECT_EQ(type.GetCurSel(), 0);
    EXPECT_EQ(open.form->ran, (Texts{"type", "type", "type"}));
}

TEST(ComboBox, RefusesWhatItDoesNotOfferAndKeepsItsChoice)
{
    OpenForm open;
    CComboBox& type = open.form->type;
    type.AddString("Dead Load");
    type.SetCurSel(0);
    EXPECT_EQ(type.set(CString("Dead Laod")).refusal, "\"Type\" has no entry \"Dead Laod\"; did you mean \"Dead Load\"?");
    EXPECT_FALSE(type.set(1.0));
    EXPECT_FALSE(type.set(0.5));
    EXPECT_FALSE(type.set(true));
    EXPECT_EQ(type.GetCurSel(), 0);
    EXPECT_TRUE(open.form->ran.empty());
}

TEST(ComboBox, KeepsASelectedPlaceThatItHasNoEntryFor)
{
    OpenForm open;
    CComboBox& type = open.form->type;
    for (const char* text : {"1", "2", "3"})
        type.AddString(text);
    type.SetCurSel(2);
    type.ResetContent();
    type.AddString("1");
    type.AddString("2");
    type.SetCurSel(2);
    EXPECT_EQ(type.GetCurSel(), 2);
    EXPECT_EQ(type.GetWindowText(), "");
    EXPECT_EQ(type.selectedData(), 0U);
}

TEST(ComboBox, TheSelectionFollowsItsEntryWhenOthersComeAndGo)
{
    OpenForm open;
    CComboBox& type = open.form->type;
    type.AddString("b");
    type.AddString("d");
    type.SetCurSel(1);
    type.InsertString(0, "a");
    EXPECT_EQ(type.GetWindowText(), "d");
    type.DeleteString(0);
    EXPECT_EQ(type.GetWindowText(), "d");
    type.DeleteString(1);
    EXPECT_EQ(type.GetCurSel(), -1);
    EXPECT_EQ(type.DeleteString(5), 0);
}

TEST(ComboBox, AnEditableOneTakesAnyText)
{
    OpenForm open;
    CComboBox& type = open.form->type;
    int edits = 0;
    type.onEdit([&edits] { ++edits; });
    type.setEditable();
    type.AddString("C24");
    EXPECT_TRUE(type.set(CString("C30")));
    EXPECT_EQ(type.GetWindowText(), "C30");
    EXPECT_EQ(type.GetCurSel(), -1);
    EXPECT_EQ(edits, 1);
    EXPECT_TRUE(type.set(CString("C24")));
    EXPECT_EQ(type.GetCurSel(), 0);
    EXPECT_EQ(open.form->ran, Texts{"type"});
}

TEST(ListBox, OfMultipleSelectionTakesSeveralRowsAndNone)
{
    OpenForm open;
    CListBox& list = open.form->list;
    for (const char* text : {"a", "b", "c"})
        list.AddString(text);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_TRUE(list.select({2, 0}));
    EXPECT_EQ(list.GetSelItems(), (Rows{0, 2}));
    EXPECT_EQ(list.select({3}).refusal, "\"list\" has no row 3: it has 3 rows, counted from 0");
    EXPECT_EQ(list.GetSelItems(), (Rows{0, 2}));
    EXPECT_TRUE(list.select({}));
    EXPECT_TRUE(list.GetSelItems().empty());
    EXPECT_EQ(open.form->ran, (Texts{"list", "list"})) << "clearing the selection runs the handler too";
}

TEST(ListBox, OfSingleSelectionTakesOneRow)
{
    OpenForm open;
    CListBox list{*open.form, "single", "Codes"};
    list.AddString("KBC");
    list.AddString("KDS");
    EXPECT_FALSE(list.select({0, 1}));
    EXPECT_TRUE(list.set(CString("KDS")));
    EXPECT_EQ(list.GetCurSel(), 1);
    list.SetSel(0);
    EXPECT_EQ(list.GetSelItems(), Rows{0});
    list.DeleteString(0);
    EXPECT_EQ(list.GetCurSel(), -1);
}

TEST(ListBox, ThatWasEmptiedHasNothingSelectedWhenItIsFilledAgain)
{
    OpenForm open;
    CListBox& list = open.form->list;
    for (const char* text : {"a", "b", "c"})
        list.AddString(text);
    EXPECT_TRUE(list.select({1, 2}));
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_THAT(list.GetSelItems(), testing::IsEmpty());
    for (const char* text : {"d", "e", "f"})
        list.AddString(text);
    EXPECT_THAT(list.GetSelItems(), testing::IsEmpty());
    list.SetSel(2);
    EXPECT_EQ(list.GetSelItems(), Rows{2});
}

TEST(CheckList, TicksLinesApartFromSelectingThem)
{
    OpenForm open;
    CCheckListBox& checks = open.form->checks;
    checks.AddString("Self Weight");
    checks.AddString("Line Load");
    EXPECT_TRUE(checks.tick(1, true));
    EXPECT_TRUE(checks.tick(1, true));
    EXPECT_EQ(checks.checkedItems(), Rows{1});
    EXPECT_EQ(open.form->ran, Texts{"checks"});
    EXPECT_FALSE(checks.tick(2, true));
    checks.InsertString(0, "Point Load");
    EXPECT_EQ(checks.checkedItems(), Rows{2});
    EXPECT_TRUE(checks.GetSelItems().empty());
    checks.ResetContent();
    EXPECT_TRUE(checks.checkedItems().empty());
}

TEST(ReportList, SelectsWholeRowsAndRunsTheHandlerForTheUserAlone)
{
    OpenForm open;
    CListCtrl& report = open.form->report;
    report.InsertItem(0, "DL", 3);
    report.SetItemText(0, 1, "1.2");
    report.InsertItem(9, "LL", 4);
    EXPECT_EQ(report.GetItemCount(), 2);
    EXPECT_EQ(report.GetItemText(1, 0), "LL");
    EXPECT_EQ(report.GetItemText(1, 1), "");
    EXPECT_EQ(report.FindData(4), 1);

    report.SelectOnly(0);
    EXPECT_TRUE(open.form->ran.empty());
    EXPECT_EQ(report.GetFirstSelected(), 0);
    EXPECT_EQ(report.GetFocusedItem(), 0);
    EXPECT_TRUE(report.select({1}));
    EXPECT_FALSE(report.select({0, 1}));
    EXPECT_FALSE(report.select({2}));
    EXPECT_EQ(report.GetSelectedItems(), Rows{1});
    EXPECT_TRUE(report.select({}));
    EXPECT_EQ(report.GetFirstSelected(), -1);
    EXPECT_EQ(open.form->ran, (Texts{"report", "report"}));
}

TEST(ReportList, ADoubleClickSelectsFirst)
{
    OpenForm open;
    CListCtrl& report = open.form->report;
    report.onDoubleClick([form = open.form] { form->ran.push_back("double"); });
    report.InsertItem(0, "DL");
    EXPECT_TRUE(report.doubleClick(0));
    EXPECT_EQ(open.form->ran, (Texts{"report", "double"}));
    EXPECT_FALSE(report.doubleClick(1));
}

TEST(ReportList, TheFocusFollowsItsRow)
{
    OpenForm open;
    CListCtrl& report = open.form->report;
    report.InsertItem(0, "b");
    report.SelectOnly(0);
    report.InsertItem(0, "a");
    EXPECT_EQ(report.GetFocusedItem(), 1);
    EXPECT_EQ(report.GetFirstSelected(), 1);
    EXPECT_EQ(report.DeleteItem(1), 1);
    EXPECT_EQ(report.GetFocusedItem(), -1);
    EXPECT_EQ(report.GetFirstSelected(), -1);
    EXPECT_EQ(report.DeleteItem(1), 0);
}

Texts firstColumn(const CListCtrl& list)
{
    Texts texts;
    for (int row = 0; row < list.GetItemCount(); ++row)
        texts.push_back(list.GetItemText(row, 0));
    return texts;
}

TEST(KeyedList, KeepsItsRowsInTheOrderOfTheCompareFunction)
{
    OpenForm open;
    CExtListCtrl list{*open.form, "keyed"};
    list.Initialize([](unsigned a, unsigned b) { return a < b ? -1 : static_cast<int>(a > b); });
    list.AddColInfo("No");
    EXPECT_EQ(list.InsertData(5, {"5"}), 1);
    EXPECT_EQ(list.InsertData(2, {"2"}), 1);
    EXPECT_EQ(list.InsertData(9, {"9"}), 1);
    EXPECT_EQ(list.InsertData(5, {"again"}), 0);
    EXPECT_EQ(firstColumn(list), (Texts{"2", "5", "9"}));

    list.SelectOnly(0);
    EXPECT_EQ(list.ModifyData(2, 7, {"7"}), 1);
    EXPECT_EQ(firstColumn(list), (Texts{"5", "7", "9"}));
    EXPECT_EQ(list.GetSelectedKeys(), std::vector<unsigned>{7}) << "the selection goes with the row";
    EXPECT_EQ(list.ModifyData(7, 9, {"9"}), 0) << "another row has that key";
    EXPECT_EQ(list.ModifyData(1, 3, {"3"}), 0);
    EXPECT_EQ(list.DeleteData(5), 1);
    EXPECT_EQ(list.DeleteData(5), 0);
    EXPECT_EQ(firstColumn(list), (Texts{"7", "9"}));
}

TEST(KeyedList, APositionFunctionDecidesBeforeTheOrder)
{
    OpenForm open;
    CExtListCtrl list{*open.form, "keyed"};
    list.AddColInfo("No");
    list.SetItemPosFunc([](unsigned key) { return key == 100 ? 0 : 50; });
    list.InsertData(1, {"1"});
    list.InsertData(2, {"2"});
    list.InsertData(100, {"100"});
    EXPECT_EQ(firstColumn(list), (Texts{"100", "1", "2"}));
}

TEST(KeyedList, WithoutAnOrderAModifiedRowStaysInPlace)
{
    OpenForm open;
    CExtListCtrl list{*open.form, "keyed"};
    list.AddColInfo("Name");
    list.InsertData(3, {"c"});
    list.InsertData(1, {"a"});
    EXPECT_EQ(list.ModifyData(3, 3, {"C"}), 1);
    EXPECT_EQ(firstColumn(list), (Texts{"C", "a"}));
}

}  // namespace
