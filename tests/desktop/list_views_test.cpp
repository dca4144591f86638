#include "desktop/desktop_fixture.h"

#include "contract/forms/db_dlg_base.h"
#include "contract/forms/list_ctrl.h"
#include "contract/forms/lists.h"

#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QTableView>

namespace desktop_test {

namespace {

class ListsDialog final : public CDlgMove {
public:
    ListsDialog() : CDlgMove(1, "Lists") {}

    CListCtrl report{*this, "report", {{"Load Case", 85}, {"Factor", 60, CListCtrl::Align::right}}, [this] { ++selects; }, CListCtrl::Selection::multiple};
    CListBox list{*this, "list", "List", [this] { ++selects; }};
    CCheckListBox checks{*this, "checks", "Checks", [this] { ++ticks; }};
    int selects = 0;
    int ticks = 0;
    int doubleClicks = 0;

    void open()
    {
        report.onDoubleClick([this] { ++doubleClicks; });
        openModeless();
        SetActiveWindow();
    }
    void fill(int rows)
    {
        report.DeleteAllItems();
        for (int row = 0; row < rows; ++row)
            report.SetItemTexts(report.InsertItem(row), {"LC" + std::to_string(row), "1.0"});
    }
};

}  // namespace

class Lists : public DesktopTest {
protected:
    Lists()
    {
        dialog.fill(100);
        for (const char* item : {"alpha", "beta", "gamma"}) {
            dialog.list.AddString(item);
            dialog.checks.AddString(item);
        }
        dialog.open();
        settle();
        form = window.services().windowOf(dialog);
        (void)QTest::qWaitForWindowExposed(form);
        form->activateWindow();
        (void)QTest::qWaitForWindowActive(form);
    }
    ~Lists() override { dialog.DestroyWindow(); }

    template <class Widget> Widget& of(const zel::Control& each) { return dynamic_cast<Widget&>(form->viewOf(each)->widget()); }
    QTableView& report() { return of<QTableView>(dialog.report); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(report().viewport(), Qt::LeftButton, modifiers, report().visualRect(report().model()->index(row, 0)).center());
        settle();
    }

    ListsDialog dialog;
    zel::desktop::FormWindow* form = nullptr;
};

TEST_F(Lists, TheRowWithTheKeyboardIsTheControllersFocusedOneWhileTheSelectionGrows)
{
    clickRow(4);
    EXPECT_EQ(dialog.report.GetFocusedItem(), 4);
    QTest::keyClick(&report(), Qt::Key_Up, Qt::ShiftModifier);
    settle();
    QTest::keyClick(&report(), Qt::Key_Up, Qt::ShiftModifier);
    settle();
    EXPECT_EQ(dialog.report.GetSelectedItems(), std::vector<int>({2, 3, 4}));
    EXPECT_EQ(dialog.report.GetFocusedItem(), 2);
    EXPECT_EQ(report().currentIndex().row(), 2);
    EXPECT_EQ(dialog.selects, 3);
}

TEST_F(Lists, ARefreshLeavesTheRowsWhereTheyWereScrolledTo)
{
    dialog.report.SelectOnly(3);
    settle();
    report().verticalScrollBar()->setValue(60);
    dialog.report.SetItemText(5, 1, "2.0");
    settle();
    EXPECT_EQ(report().verticalScrollBar()->value(), 60);
    EXPECT_EQ(report().currentIndex().row(), 3);
    dialog.report.EnsureVisible(90);
    settle();
    EXPECT_TRUE(report().viewport()->rect().intersects(report().visualRect(report().model()->index(90, 0))));
}

TEST_F(Lists, RowsThatAreFilledAnewKeepTheKeyboardsRow)
{
    clickRow(4);
    dialog.fill(90);
    settle();
    EXPECT_EQ(report().currentIndex().row(), 4);
    EXPECT_EQ(dialog.report.GetSelectedItems(), std::vector<int>());
    EXPECT_FALSE(report().selectionModel()->hasSelection());
}

TEST_F(Lists, WhatTheProgramSelectsIsShownWithoutAnEcho)
{
    dialog.report.SelectItem(1);
    dialog.report.SelectItem(5);
    dialog.list.SetCurSel(2);
    settle();
    EXPECT_EQ(report().selectionModel()->selectedRows().size(), 2);
    EXPECT_EQ(of<QListView>(dialog.list).currentIndex().row(), 2);
    EXPECT_EQ(dialog.selects, 0);
}

TEST_F(Lists, ADoubleClickIsOne)
{
    const QPoint at = report().visualRect(report().model()->index(2, 0)).center();
    QTest::mouseClick(report().viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(report().viewport(), Qt::LeftButton, {}, at);
    settle();
    EXPECT_EQ(dialog.doubleClicks, 1);
    EXPECT_EQ(dialog.report.GetSelectedItems(), std::vector<int>({2}));
}

TEST_F(Lists, TypingAheadSelectsTheItemThatBeginsSo)
{
    auto& list = of<QListView>(dialog.list);
    list.setFocus();
    QTest::keyClicks(&list, "ga");
    settle();
    EXPECT_EQ(dialog.list.GetCurSel(), 2);
}

TEST_F(Lists, TheSpaceBarTicks)
{
    auto& checks = of<QListView>(dialog.checks);
    checks.setFocus();
    QTest::keyClick(&checks, Qt::Key_Down);
    QTest::keyClick(&checks, Qt::Key_Space);
    settle();
    const int row = checks.currentIndex().row();
    EXPECT_EQ(dialog.checks.checkedItems(), std::vector<int>({row}));
    QTest::keyClick(&checks, Qt::Key_Space);
    EXPECT_TRUE(dialog.checks.checkedItems().empty());
    EXPECT_EQ(dialog.ticks, 2);
}

TEST_F(Lists, ColumnsStandAndAreHeadedAsTheControllerAlignsThem)
{
    EXPECT_EQ(report().model()->index(0, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_GE(report().columnWidth(0), 85);
    dialog.report.ShowColumn(1, false);
    settle();
    EXPECT_TRUE(report().isColumnHidden(1));
    dialog.report.SetColumnTitle(0, "A much longer title of the column");
    settle();
    EXPECT_GE(report().columnWidth(0), report().horizontalHeader()->fontMetrics().horizontalAdvance(QStringLiteral("A much longer title of the column")));
}

TEST_F(Lists, AHundredThousandRowsAreThereAtOnce)
{
    dialog.fill(100'000);
    settle();
    EXPECT_EQ(report().model()->rowCount(), 100'000);
    dialog.report.EnsureVisible(99'999);
    settle();
    EXPECT_TRUE(report().viewport()->rect().intersects(report().visualRect(report().model()->index(99'999, 0))));
}

}  // namespace desktop_test
