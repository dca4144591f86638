#include "desktop/grid_members.h"

#include <QScrollBar>

namespace desktop_test {

namespace {

constexpr int rowCount = 100'000;
constexpr int columnCount = 60;

/// A hundred thousand rows that are filled as they are read.
class LongGrid final : public zel::test::MemberGrid {
public:
    explicit LongGrid(const zel::Place& place) : MemberGrid(place)
    {
        RemoveColumns();
        for (int index = 0; index < columnCount; ++index)
            AddColInfo("C" + std::to_string(index), 3, 0);
        SetColFrozen(0);
        ShowRowsOnDemand(true);
    }

    CArray<Row> filled;  ///< rows, in the order in which they were asked for
    int fills = 0;

    void Initialize() override { CTBCommon::Initialize(); }
    int GetCountData() override { return rowCount; }
    void MakeItemNormal(int /*count*/, const CArray<ColumnIndex>& /*columns*/) override {}
    void MakeItemFiltered(int /*count*/, const CArray<Row>& rows, const CArray<ColumnIndex>& /*columns*/) override
    {
        ++fills;
        filled.insert(filled.end(), rows.begin(), rows.end());
        for (const Row row : rows)
            SetRowTexts(row, CArray<CString>(columnCount, std::to_string(row.number())));
    }
};

}  // namespace

class LongGrids : public MembersOnScreenOf<LongGrid> {
protected:
    LongGrids() { open(); }
};

TEST_F(LongGrids, HaveAllTheirRowsButFillOnlyThoseThatAreSeen)
{
    EXPECT_EQ(screen->view.model().rowCount(), rowCount + 1);
    EXPECT_EQ(screen->view.model().columnCount(), columnCount);
    (void)screen->table().grab();
    EXPECT_FALSE(grid.filled.empty());
    EXPECT_LT(grid.filled.size(), 100U);

    grid.filled.clear();
    grid.fills = 0;
    screen->table().verticalScrollBar()->setValue(screen->table().verticalScrollBar()->maximum() / 2);
    (void)screen->table().grab();
    EXPECT_LT(grid.filled.size(), 100U);
    EXPECT_GT(grid.filled.front(), rowCount / 3);
    EXPECT_EQ(grid.fills, 1);  // a screenful at once
    const int row = screen->table().rowAt(40);
    EXPECT_EQ(screen->shown(row, 5), QString::number(row + 1));
}

TEST_F(LongGrids, AChangedCellFillsAndScrollsNothingElse)
{
    (void)screen->table().grab();
    grid.filled.clear();
    grid.SetTextAt(3, 2, "changed");
    settle();
    (void)screen->table().grab();
    EXPECT_EQ(screen->shown(2, 2), "changed");
    EXPECT_TRUE(grid.filled.empty());
}

TEST_F(LongGrids, AreGoneThroughByPagesToTheEnd)
{
    screen->click(0, 1);
    screen->key(Qt::Key_PageDown);
    EXPECT_GT(grid.GetCurrentRow(), 4);
    screen->key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.GetCurrentRow(), rowCount + 1);
    EXPECT_TRUE(screen->pane(columnCount - 1).rect().contains(screen->centre(rowCount, columnCount - 1)));
    screen->key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(grid.GetSelectedRows().size(), static_cast<std::size_t>(rowCount));
}

}  // namespace desktop_test
