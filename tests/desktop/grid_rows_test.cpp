#include "desktop/grid_members.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>

namespace desktop_test {

class GridRows : public MembersOnScreenOf<> {
protected:
    GridRows() { open(); }
    [[nodiscard]] std::vector<CString> names() const
    {
        std::vector<CString> all;
        for (Row row = 1; row <= grid.GetDataRowCount(); ++row)
            all.push_back(grid.TextAt(row, 1));
        return all;
    }
};

TEST_F(GridRows, AreSelectedByTheirHeadersWithControlAndShift)
{
    screen->clickRow(1);
    EXPECT_EQ(grid.GetSelectedRows(), CArray<Row>({2}));
    EXPECT_EQ(screen->selected(), std::vector<int>({1}));
    screen->clickRow(0, Qt::ControlModifier);
    EXPECT_EQ(grid.GetSelectedRows(), CArray<Row>({2, 1}));
    screen->clickRow(2, Qt::ShiftModifier);
    EXPECT_EQ(grid.GetSelectedRows(), CArray<Row>({1, 2, 3}));
    screen->clickRow(1);
    EXPECT_EQ(grid.GetSelectedRows(), CArray<Row>({2}));
    screen->click(0, 1);
    EXPECT_TRUE(screen->selected().empty());
}

TEST_F(GridRows, SelectionAndCurrentCellFollowTheControllerWithoutAnEcho)
{
    (void)grid.take();
    grid.SelectRows({1, 3});
    grid.SetCurrentCell(3, 3);
    settle();
    EXPECT_EQ(screen->selected(), std::vector<int>({0, 2}));
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(2, 2));
    EXPECT_TRUE(grid.take().empty());
}

TEST_F(GridRows, WhatAnAssistiveToolSelectsReachesTheController)
{
    screen->table().selectionModel()->setCurrentIndex(screen->cell(1, 2), QItemSelectionModel::NoUpdate);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    screen->table().selectionModel()->select(screen->cell(2, 1), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    EXPECT_EQ(grid.GetSelectedRows(), CArray<Row>({3}));
}

TEST_F(GridRows, ShiftWithArrowsExtendsTheSelection)
{
    screen->click(0, 1);
    screen->key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(screen->selected(), std::vector<int>({0}));
    screen->key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(screen->selected(), std::vector<int>({0, 1}));
    screen->key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(screen->selected(), std::vector<int>({0}));
}

TEST_F(GridRows, TheDeleteKeyDeletesThoseThatAreSelected)
{
    screen->clickRow(0);
    screen->clickRow(1, Qt::ShiftModifier);
    screen->key(Qt::Key_Delete);
    EXPECT_EQ(names(), std::vector<CString>({"C1"}));
    EXPECT_EQ(screen->view.model().rowCount(), 2);
}

TEST_F(GridRows, AreDraggedByTheirHeaders)
{
    grid.SetRowDrag(true);
    screen->clickRow(0);
    screen->drag(*screen->table().verticalHeader()->viewport(), screen->rowHeader(0), screen->rowHeader(2) + QPoint(0, 8));
    EXPECT_EQ(names(), std::vector<CString>({"B2", "C1", "B1"}));
    EXPECT_EQ(screen->table().marks().rowGap, -1);
}

TEST_F(GridRows, ThatKeepTheirOrderAreNotDragged)
{
    screen->clickRow(0);
    screen->drag(*screen->table().verticalHeader()->viewport(), screen->rowHeader(0), screen->rowHeader(2) + QPoint(0, 8));
    EXPECT_EQ(names(), std::vector<CString>({"B1", "B2", "C1"}));
}

TEST_F(GridRows, ASweepOverTheHeadersSelectsAllThatItPasses)
{
    screen->drag(*screen->table().verticalHeader()->viewport(), screen->rowHeader(0), screen->rowHeader(2));
    EXPECT_EQ(screen->selected(), std::vector<int>({0, 1, 2}));
}

TEST_F(GridRows, MoveUpAndDownByTheKeys)
{
    grid.SetRowDrag(true);
    screen->click(2, 1);
    screen->key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(names(), std::vector<CString>({"B1", "C1", "B2"}));
    screen->key(Qt::Key_Up, Qt::AltModifier);
    screen->key(Qt::Key_Up, Qt::ControlModifier);  // is at the top already
    EXPECT_EQ(names(), std::vector<CString>({"C1", "B1", "B2"}));
    screen->key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(names(), std::vector<CString>({"B1", "C1", "B2"}));
}

TEST_F(GridRows, AreCopiedAsTabSeparatedLinesAndPastedAsNewOnes)
{
    grid.SetColHidden(4);
    screen->clickRow(1);
    screen->clickRow(2, Qt::ShiftModifier);
    screen->key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "B2\t3\tbeam\r\nC1\t4\tcolumn\r\n");

    QApplication::clipboard()->setText(QStringLiteral("D1\t5\tcolumn\r\nD2\t6\tbeam\r\n"));
    screen->click(3, 1);
    screen->key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(names(), std::vector<CString>({"B1", "B2", "C1", "D1", "D2"}));
    EXPECT_EQ(grid.data[4].length, 6.0);
}

TEST_F(GridRows, HaveAMenuOfWhatCanBeDoneWithThem)
{
    const auto menuAt = [&](int row) {
        const QPoint at = screen->centre(row, 1);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, screen->pane(1).mapToGlobal(at));
        QApplication::sendEvent(&screen->pane(1), &event);
        return dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    };
    const auto texts = [](const QMenu& menu) {
        QStringList all;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator())
                all += action->text();
        }
        return all;
    };
    QMenu* menu = menuAt(1);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    EXPECT_EQ(texts(*menu), QStringList({"Copy", "Paste", "Delete Rows"}));
    menu->actions().last()->trigger();
    menu->close();
    settle();
    EXPECT_EQ(names(), std::vector<CString>({"B1", "C1"}));

    grid.SetRowDrag(true);
    grid.SetModeDisplayOnly(1);
    menu = menuAt(0);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(texts(*menu), QStringList({"Copy", "Move Up", "Move Down"}));
    menu->actions().last()->trigger();
    menu->close();
    EXPECT_EQ(names(), std::vector<CString>({"C1", "B1"}));
}

TEST_F(GridRows, APasteThatIsRefusedSaysWhy)
{
    QApplication::clipboard()->setText(QStringLiteral("D1\t-5\tcolumn\r\n"));
    screen->click(3, 1);
    screen->key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(screen->warning(), "length must be positive");
    EXPECT_EQ(grid.GetDataRowCount(), 3);
    screen->click(0, 1);
    EXPECT_EQ(screen->warning(), "");
}

TEST_F(GridRows, TheOneUnderEditBearsAMarkInItsHeader)
{
    screen->click(0, 2);
    const auto header = [&] { return screen->table().verticalHeader()->grab(QRect(0, 0, 14, screen->table().rowHeight(0))).toImage(); };
    const QImage before = header();
    screen->type("7");
    EXPECT_NE(header(), before);
    screen->key(Qt::Key_Escape);
    EXPECT_EQ(header(), before);
}

TEST_F(GridRows, HeadersAreWideEnoughForTheRowOfNewEntriesAndGoWhenTheGridHidesThem)
{
    const QHeaderView& header = *screen->table().verticalHeader();
    EXPECT_GE(header.width(), header.fontMetrics().horizontalAdvance(QStringLiteral("Append Row")) + 12);
    EXPECT_LE(header.width(), header.fontMetrics().horizontalAdvance(QStringLiteral("Append Row")) + 30);
    grid.SetRowHeader(false, 0);
    settle();
    EXPECT_FALSE(header.isVisible());
    grid.SetColHeaderShown(false);
    settle();
    EXPECT_FALSE(screen->table().horizontalHeader()->isVisible());
}

TEST_F(GridRows, ThatAreHiddenTakeNoPlace)
{
    grid.SetRowHidden(2);
    settle();
    EXPECT_EQ(screen->table().cellRect(screen->cell(2, 1)).top(), screen->table().rowHeight(0));
    screen->click(0, 1);
    screen->key(Qt::Key_Down);
    EXPECT_EQ(grid.GetCurrentRow(), 3);
    grid.SetRowHidden(2, false);
    settle();
    EXPECT_FALSE(screen->table().isRowHidden(1));
}

TEST_F(GridRows, ARefreshKeepsWhatWasScrolledTo)
{
    for (int i = 0; i < 200; ++i)
        grid.data.push_back({100 + i, "D" + std::to_string(1000 + i), 1.0, "beam", 1});
    grid.Initialize();
    settle();
    screen->click(0, 1);
    screen->table().verticalScrollBar()->setValue(1500);
    grid.SetTextAt(100, 3, "column");
    settle();
    EXPECT_EQ(screen->table().verticalScrollBar()->value(), 1500);
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(0, 1));
    screen->key(Qt::Key_Down);
    EXPECT_LT(screen->table().verticalScrollBar()->value(), 60);
}

}  // namespace desktop_test
