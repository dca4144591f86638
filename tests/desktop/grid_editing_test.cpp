#include "desktop/grid_members.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QPointer>

namespace desktop_test {

class GridCells : public MembersOnScreenOf<> {
protected:
    GridCells() { open(); }
};

TEST_F(GridCells, TypingOpensTheCellAndEnterLeavesTheRowWhichIsWritten)
{
    screen->click(0, 2);
    screen->type("7.5");
    EXPECT_EQ(grid.GetOpenCell(), 2);
    EXPECT_EQ(screen->fieldText(), "7.5");
    EXPECT_EQ(grid.data[0].length, 2.5);
    screen->key(Qt::Key_Return);
    EXPECT_EQ(screen->field(), nullptr);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    EXPECT_EQ(grid.data[0].length, 7.5);
    EXPECT_EQ(screen->shown(0, 2), "7.50");
}

TEST_F(GridCells, AFormulaStaysAsTypedUntilItsRowIsWritten)
{
    screen->click(0, 2);
    screen->type("1.2*2");
    screen->key(Qt::Key_Tab);
    EXPECT_EQ(screen->shown(0, 2), "1.2*2");
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    screen->key(Qt::Key_Return);
    EXPECT_DOUBLE_EQ(grid.data[0].length, 2.4);
    EXPECT_EQ(screen->shown(0, 2), "2.40");
}

TEST_F(GridCells, F2AndADoubleClickOpenTheTextWithAllItsDigits)
{
    grid.SetTextAt(2, 2, "3.123456");
    settle();
    EXPECT_EQ(screen->shown(1, 2), "3.12");
    screen->click(1, 2);
    screen->key(Qt::Key_F2);
    EXPECT_EQ(screen->fieldText(), "3.123456");
    screen->key(Qt::Key_Escape);
    EXPECT_EQ(screen->field(), nullptr);
    screen->doubleClick(1, 2);
    EXPECT_EQ(screen->fieldText(), "3.123456");
    EXPECT_TRUE(screen->field()->hasFocus());
}

TEST_F(GridCells, ARefusedCellStaysOpenWithTheWarningBesideIt)
{
    screen->click(1, 2);
    screen->type("-1");
    screen->key(Qt::Key_Return);
    ASSERT_NE(screen->field(), nullptr);
    EXPECT_EQ(screen->fieldText(), "-1");
    EXPECT_EQ(screen->warning(), "length must be positive");
    const auto* bubble = form->findChild<QWidget*>(QStringLiteral("gridWarning"));
    const QRect cell(screen->pane(2).mapTo(form, screen->table().cellRect(screen->cell(1, 2)).topLeft()), screen->table().cellRect(screen->cell(1, 2)).size());
    EXPECT_FALSE(bubble->geometry().intersects(cell));
    EXPECT_LT(std::abs(bubble->geometry().top() - cell.bottom()), 10);
    EXPECT_TRUE(form->rect().contains(bubble->geometry()));

    screen->key(Qt::Key_Home);
    screen->key(Qt::Key_Delete);  // the sign
    screen->key(Qt::Key_Return);
    EXPECT_EQ(screen->warning(), "");
    EXPECT_EQ(grid.data[1].length, 1.0);
}

TEST_F(GridCells, ARefusedRowStaysUnderEditWithTheWarning)
{
    screen->click(3, 2);  // the row for a new entry, without a name
    screen->type("5");
    screen->key(Qt::Key_Up);
    EXPECT_EQ(screen->warning(), "Name is missing");
    EXPECT_EQ(grid.GetEditRow(), 4);
    screen->key(Qt::Key_Escape);
    EXPECT_EQ(grid.GetEditRow(), 0);
    EXPECT_EQ(screen->warning(), "");
}

TEST_F(GridCells, EscapeGivesUpTheCellAndThenTheRow)
{
    screen->click(0, 1);
    screen->type("X");
    screen->key(Qt::Key_Tab);
    screen->type("9");
    screen->key(Qt::Key_Escape);
    EXPECT_EQ(screen->field(), nullptr);
    EXPECT_EQ(screen->shown(0, 1), "X");
    screen->key(Qt::Key_Escape);
    EXPECT_EQ(screen->shown(0, 1), "B1");
    EXPECT_TRUE(dialog.IsWindow());
}

TEST_F(GridCells, TabGoesOnAndShiftTabBackPastTheEndOfARow)
{
    screen->click(0, 4);
    screen->key(Qt::Key_Tab);
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(1, 1));
    screen->key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(0, 4));
    screen->key(Qt::Key_Left);
    screen->key(Qt::Key_Down);
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(1, 3));
    screen->key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(3, 4));
    screen->key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(screen->table().currentIndex(), screen->cell(0, 1));
}

TEST_F(GridCells, ACellThatOffersAListTakesTheEntryThatBeginsWithTheKey)
{
    screen->click(0, 3);
    screen->type("c");
    EXPECT_EQ(screen->fieldText(), "column");
    screen->key(Qt::Key_Return);
    EXPECT_EQ(grid.data[0].kind, "column");
}

TEST_F(GridCells, AnEntryTakenFromTheListLeavesTheCell)
{
    screen->click(0, 3);
    screen->key(Qt::Key_Down, Qt::AltModifier);
    auto* list = dynamic_cast<QComboBox*>(screen->field());
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(list->view()->isVisible());
    QTest::keyClick(list->view(), Qt::Key_Down);
    QTest::keyClick(list->view(), Qt::Key_Return);
    settle();
    EXPECT_EQ(screen->field(), nullptr);
    EXPECT_EQ(screen->shown(0, 3), "column");
    EXPECT_EQ(grid.GetEditRow(), 1);
}

TEST_F(GridCells, AClickIntoTheBoxAndTheSpaceBarTickACheck)
{
    EXPECT_EQ(screen->cell(1, 4).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    screen->click(1, 4);
    EXPECT_EQ(screen->cell(1, 4).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    screen->key(Qt::Key_Space);
    EXPECT_EQ(screen->cell(1, 4).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    screen->key(Qt::Key_Space);
    screen->key(Qt::Key_Down);
    EXPECT_EQ(grid.data[1].active, 1);
}

TEST_F(GridCells, TheDeleteKeyClearsACell)
{
    screen->click(0, 1);
    screen->key(Qt::Key_Delete);
    EXPECT_EQ(screen->shown(0, 1), "");
    screen->key(Qt::Key_Down);
    EXPECT_EQ(screen->warning(), "Name is missing");
}

TEST_F(GridCells, ABlockPastedIntoAnOpenCellGoesOverTheCells)
{
    screen->click(0, 1);
    screen->key(Qt::Key_F2);
    QApplication::clipboard()->setText(QStringLiteral("A1\t8\r\nA2\t9\r\n"));
    screen->key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(grid.data[0].name, "A1");
    EXPECT_EQ(grid.data[1].length, 9.0);

    screen->click(0, 1);
    screen->key(Qt::Key_F2);
    QApplication::clipboard()->setText(QStringLiteral("x"));
    screen->key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(screen->fieldText(), "A1x");
}

TEST_F(GridCells, AnEditorThatIsOpenWhenTheDialogClosesGoesWithIt)
{
    screen->click(0, 2);
    screen->type("7");
    const QPointer<QWidget> field = screen->field();
    ASSERT_NE(field, nullptr);
    dialog.DestroyWindow();
    EXPECT_FALSE(field->isVisible());
    QTest::keyClick(field, '1');  // one that was on its way
    settle();
    EXPECT_EQ(grid.data[0].length, 2.5);
}

/// Closes its dialog when a row is written.
class ClosingGrid final : public zel::test::MemberGrid {
public:
    using MemberGrid::MemberGrid;
    using MemberGrid::ModifyToDB;

    bool ModifyToDB(Row row) override
    {
        const bool written = MemberGrid::ModifyToDB(row);
        dialog().DestroyWindow();
        return written;
    }
};

using GridThatCloses = MembersOnScreenOf<ClosingGrid>;

TEST_F(GridThatCloses, AWriteMayCloseTheDialogWhileTheKeyIsHandled)
{
    open();
    screen->click(0, 2);
    screen->type("7");
    const QPointer<zel::desktop::FormWindow> former = form;
    QTest::keyClick(screen->field(), Qt::Key_Return);
    EXPECT_FALSE(dialog.IsWindow());
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(former == nullptr || !former->isVisible());
    EXPECT_EQ(grid.data[0].length, 7.0);
}

}  // namespace desktop_test
