#include "desktop/grid_members.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>

namespace desktop_test {

class GridColumns : public MembersOnScreenOf<> {
protected:
    GridColumns() { open(); }
    [[nodiscard]] QHeaderView& header() const { return *screen->table().horizontalHeader(); }
    [[nodiscard]] QPoint middleOf(int column) const { return {header().sectionViewportPosition(column) + header().sectionSize(column) / 2, 8}; }
};

TEST_F(GridColumns, AreMovedByTheirHeadersInTheControllersOrder)
{
    screen->drag(*header().viewport(), middleOf(3), middleOf(1) - QPoint(10, 0));
    EXPECT_EQ(grid.GetColIndex(2), 3);  // the kinds, before the names
    EXPECT_EQ(grid.GetColIndex(3), 1);
    EXPECT_EQ(screen->shown(2, 1), "column");
    for (int section = 0; section < header().count(); ++section)
        EXPECT_EQ(header().visualIndex(section), section);
    EXPECT_EQ(screen->table().columnWidth(2), 80);  // the width goes with the column
}

TEST_F(GridColumns, StayWhereTheyAreWhenTheGridKeepsThem)
{
    grid.SetColDrag(false);
    screen->drag(*header().viewport(), middleOf(3), middleOf(1) - QPoint(10, 0));
    EXPECT_EQ(grid.GetColIndex(2), 1);
}

TEST_F(GridColumns, AreAsWideAsTheirHeadersUntilTheUserMakesThemNarrower)
{
    grid.SetColWidth(2, 10);
    settle();
    EXPECT_GE(screen->table().columnWidth(2), header().fontMetrics().horizontalAdvance(QStringLiteral("Length")));
    const QPoint edge(header().sectionViewportPosition(2) + header().sectionSize(2) - 1, 8);
    screen->drag(*header().viewport(), edge, edge - QPoint(header().sectionSize(2) - 25, 0));
    EXPECT_EQ(grid.GetColInfo(2).width, screen->table().columnWidth(2));
    EXPECT_LT(screen->table().columnWidth(2), 40);
    grid.SetColResizable(1, false);
    grid.UpdateHeaders();
    settle();
    EXPECT_EQ(header().sectionResizeMode(1), QHeaderView::Fixed);
}

TEST_F(GridColumns, ThatAreFrozenStayInSightRowForRow)
{
    grid.SetColFrozen(1);
    for (int i = 0; i < 40; ++i)
        grid.data.push_back({100 + i, "D" + std::to_string(1000 + i), 1.0, "beam", 1});
    grid.SetColWidth(2, 400);
    grid.SetColWidth(3, 400);
    grid.Initialize();
    settle();
    zel::desktop::GridTable& table = screen->table();
    table.horizontalScrollBar()->setValue(table.horizontalScrollBar()->maximum());
    table.verticalScrollBar()->setValue(137);
    EXPECT_LT(table.columnViewportPosition(1), 0);
    EXPECT_EQ(&table.paneOf(1), &table.frozenPane());
    EXPECT_EQ(table.cellRect(screen->cell(9, 1)).left(), 0);
    EXPECT_EQ(table.cellRect(screen->cell(9, 1)).top(), table.cellRect(screen->cell(9, 4)).top());
    const QPoint frozen = screen->pane(1).mapTo(form, QPoint());
    const QPoint free = screen->pane(4).mapTo(form, QPoint());
    EXPECT_EQ(frozen.y(), free.y());
    EXPECT_EQ(frozen.x(), free.x());

    screen->click(9, 1);
    EXPECT_EQ(grid.GetSelectedRows(), CArray<Row>({10}));
    // A cell that the frozen column would cover is scrolled out from under it.
    screen->click(9, 4);
    screen->key(Qt::Key_Left);
    screen->key(Qt::Key_Left);
    EXPECT_GE(table.cellRect(screen->cell(9, 2)).left(), table.frozenPane().width());
}

TEST_F(GridColumns, NumbersStandAtTheRightTextsAtTheLeft)
{
    EXPECT_EQ(screen->cell(0, 2).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(screen->cell(0, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_TRUE(screen->table().isColumnHidden(0));
}

/// A form of cells: a heading, a button over two columns, colours, and a cell that takes texts dropped on it.
class CellForm final : public zel::test::MemberGrid {
public:
    explicit CellForm(const zel::Place& place) : MemberGrid(place) {}

    std::vector<CString> pressed;
    CString dropped;

    void Initialize() override
    {
        SetAppendRow(false);
        SetWriteEachCell(true);
        SetRowCount(3);
        SetTextAt(1, 1, "Soil");
        SetTextAt(2, 1, "Compute");
        SetCellStyle(1, 1, {.kind = zel::GridKind::heading, .span = 3});
        SetCellStyle(2, 1, {.kind = zel::GridKind::button, .span = 2});
        SetCellStyle(3, 1, {.background = zel::Colour{255, 255, 200}});
        SetCellStyle(3, 2, {.foreground = zel::Colour{255, 0, 0}});
    }
    void OnButtonCell(Row row, ColumnIndex index) override { pressed.push_back(std::to_string(row.number()) + " " + std::to_string(index.number())); }
    bool OnDropText(Row row, ColumnPlace column, const CString& text) override
    {
        dropped = std::to_string(row.number()) + " " + std::to_string(column.number()) + " " + text;
        return true;
    }
};

class GridForms : public MembersOnScreenOf<CellForm> {
protected:
    GridForms() { open(); }
};

TEST_F(GridForms, CellsSpanColumnsAndBearColours)
{
    EXPECT_EQ(screen->table().columnSpan(0, 1), 3);
    EXPECT_EQ(screen->cell(2, 1).data(Qt::BackgroundRole).value<QBrush>().color(), QColor(255, 255, 200));
    EXPECT_EQ(screen->cell(2, 1).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::black));
    EXPECT_EQ(screen->cell(2, 2).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(255, 0, 0));
    EXPECT_EQ(screen->cell(0, 1).flags() & Qt::ItemIsEditable, 0);
}

TEST_F(GridForms, AButtonIsPressedWhenTheMouseIsLetGoOnIt)
{
    QTest::mousePress(&screen->pane(1), Qt::LeftButton, {}, screen->centre(1, 1));
    EXPECT_TRUE(grid.pressed.empty());
    EXPECT_TRUE(screen->view.isPressed(screen->cell(1, 1)));
    QTest::mouseRelease(&screen->pane(1), Qt::LeftButton, {}, screen->centre(1, 1));
    EXPECT_EQ(grid.pressed, std::vector<CString>({"2 1"}));
}

TEST_F(GridForms, ATextThatIsDroppedGoesToTheCellUnderTheMouse)
{
    QMimeData data;
    data.setData(QStringLiteral("application/x-zel-load-cases"), "1\t\tDL(ST)\t1.2");
    const QPoint at = screen->centre(2, 2);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&screen->pane(2), &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(screen->table().marks().dropCell, screen->cell(2, 2));
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&screen->pane(2), &drop);
    EXPECT_EQ(grid.dropped, "3 3 1\t\tDL(ST)\t1.2");
    EXPECT_FALSE(screen->table().marks().dropCell.isValid());
}

}  // namespace desktop_test
