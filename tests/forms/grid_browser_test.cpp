#include "forms/grid_fixture.h"

#include <chrono>

using namespace zel::test;

namespace {

/// Lengths that are shown ten times as great after a change of units.
class UnitGrid : public MemberGrid {
public:
    using MemberGrid::MemberGrid;

    void UnitChanged() override
    {
        for (Member& member : data)
            member.length *= 10.0;
        RebuildRows();
    }
    void MakeItemEditingRecord(Row row, const CArray<CString>& texts) override { SetTextAt(row, length, RealText(RealOf(texts[length]) * 10.0)); }
};

class GridUnits : public GridTestOf<UnitGrid> {};

/// A hundred thousand rows of sixty columns that are made when they are read.
class LongGrid : public CTBCommon {
public:
    static constexpr int rowCount = 100'000;
    static constexpr int columnCount = 60;

    explicit LongGrid(const zel::Place& place) : CTBCommon(place, "long")
    {
        AddColInfo("Key", 1, 0);
        for (int column = 1; column < columnCount; ++column)
            AddColInfo("C" + std::to_string(column), 2, 0);
        SetSortColumns({0});
    }

    std::vector<int> asked;  ///< rows that MakeItemFiltered was asked for
    bool writesAll = false;

    int GetCountData() override { return rowCount; }
    void MakeItemNormal(int count, const CArray<ColumnIndex>& /*columns*/) override
    {
        for (Row row = 1; row <= count; ++row) {
            SetRowKey(row, static_cast<std::uint32_t>(2 * row.number()));  // even keys, so that there are places between
            if (writesAll)
                write(row);
        }
    }
    void MakeItemFiltered(int count, const CArray<Row>& rows, const CArray<ColumnIndex>& /*columns*/) override
    {
        EXPECT_EQ(static_cast<std::size_t>(count), rows.size());
        for (const Row row : rows) {
            asked.push_back(row.number());
            write(row);
        }
    }
    bool DeleteFromDB(const CArray<Row>& /*rows*/) override { return true; }

private:
    void write(Row row)
    {
        SetTextAt(row, 0, std::to_string(GetRowKey(row)));
        for (ColumnIndex column = 1; column < columnCount; column = column + 10)
            SetTextAt(row, column, "1.25");
    }
};

class GridLong : public testing::Test {
protected:
    GridLong() { dialog.open(); }
    ~GridLong() override { dialog.DestroyWindow(); }

    zel::HeadlessUserInterface host;
    GridDialog<LongGrid> dialog;
    LongGrid& grid = dialog.grid;
};

/// A form of cells: titles, values and units, with a button, and no records.
class CellForm : public CTBCommon {
public:
    explicit CellForm(const zel::Place& place) : CTBCommon(place, "cells")
    {
        AddColInfo("", 3, 0);
        AddColInfo("", 2, 0);
        SetColReadOnly(0);
        SetColHeaderShown(false);
        SetRowHeader(false, 0);
        SetAppendRow(false);
        SetColDrag(false);
        SetWriteEachCell(true);
        SetRowCount(4);
        SetRowTexts(1, {"Size", ""});
        SetCellStyle(1, 0, {.kind = zel::GridKind::heading, .disabled = true, .span = 2});
        SetCellStyle(1, 1, {.disabled = true});
        SetRowTexts(2, {"H", "400"});
        SetCellStyle(2, 1, {.number = zel::GridNumberStyle{zel::GridNumberStyle::Form::scientific, 1}});
        SetRowTexts(3, {"B", "200"});
        SetRowTexts(4, {"Calculate", ""});
        SetCellStyle(4, 0, {.kind = zel::GridKind::button, .span = 2});
    }

    std::vector<CString> calls;

    bool ValidateField(const CString& text, ColumnIndex column) override { return column == 0 || ValidateNumber(text, {"formula", "character", "big"}); }
    void OnEndEditing(Row row, ColumnIndex index) override { calls.push_back("edited " + std::to_string(row.number()) + " " + TextAt(row, index)); }
    void OnButtonCell(Row row, ColumnIndex /*index*/) override { calls.push_back("pressed " + std::to_string(row.number())); }
    void OnPasted() override { calls.push_back("pasted"); }
    bool ModifyToDB(Row row) override
    {
        calls.push_back("written " + std::to_string(row.number()));
        return true;
    }
};

class GridCells : public testing::Test {
protected:
    GridCells() { dialog.open(); }
    ~GridCells() override { dialog.DestroyWindow(); }

    zel::HeadlessUserInterface host;
    GridDialog<CellForm> dialog;
    CellForm& grid = dialog.grid;
};

}  // namespace

TEST_F(GridUnits, AChangeRewritesTheRowsAndTheRowUnderEdit)
{
    ASSERT_TRUE(grid.typeCell(1, 2, "6").ok());
    ASSERT_TRUE(grid.openCell(1, 2).ok());
    ASSERT_TRUE(grid.typeText("7").ok());
    dialog.count.changes = 0;
    grid.ChangeUnits();
    EXPECT_EQ(dialog.count.changes, 1);
    EXPECT_EQ(grid.line(1), "1|B1|25|beam|1");
    EXPECT_EQ(grid.line(2), "2|B2|70|beam|0");
    EXPECT_EQ(grid.TextBeforeEdit(2, MemberGrid::length), "30");
    ASSERT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.data[1].length, 70.0);
}

TEST_F(GridUnits, AChangeConvertsTheRowForANewEntry)
{
    ASSERT_TRUE(grid.typeCell(append, 1, "D1").ok());
    grid.ChangeUnits();
    EXPECT_EQ(grid.line(4), "4|D1|15|beam|1");
    ASSERT_TRUE(grid.leaveRow().ok());
    EXPECT_EQ(grid.line(4), "4|D1|15|beam|1");
    EXPECT_EQ(grid.GetDataRowCount(), 4);
}

TEST_F(GridLong, RowsOnDemandAreReadOnceAndOnlyWhenTheyAreLookedAt)
{
    grid.ShowRowsOnDemand(true);
    grid.Initialize();
    EXPECT_TRUE(grid.asked.empty());
    dialog.count.changes = 0;
    EXPECT_EQ(grid.shownText(70'000, 0), "140002");
    EXPECT_EQ(grid.shownText(70'000, 1), "1.25");
    EXPECT_EQ(grid.asked, (std::vector<int>{70'001}));
    grid.fillRows(10, 13);
    EXPECT_EQ(grid.asked, (std::vector<int>{70'001, 10, 11, 12, 13}));
    EXPECT_EQ(dialog.count.changes, 0);  // reading is no change

    Row row;
    grid.asked.clear();
    EXPECT_NE(grid.FindRecordByKey({"150000"}, row), 0);
    EXPECT_EQ(row, 75'000);
    EXPECT_LE(grid.asked.size(), 18U);  // a search by halves

    grid.DeleteRecord(1);
    grid.asked.clear();
    EXPECT_EQ(grid.shownText(0, 0), "4");  // a row keeps its key when rows before it go
}

TEST_F(GridLong, StaysQuickWithAHundredThousandRows)
{
    const auto started = std::chrono::steady_clock::now();
    grid.writesAll = true;
    grid.Initialize();
    ASSERT_EQ(grid.GetDataRowCount(), LongGrid::rowCount);

    dialog.count.changes = 0;
    {
        const zel::GridUpdate update{grid};
        for (int i = 0; i < 2'000; ++i) {
            Row row;
            const CString key = std::to_string(2 * ((i * 7919) % LongGrid::rowCount) + 1);  // an odd key, somewhere
            ASSERT_EQ(grid.FindRecordByKey({key}, row), 0);
            grid.InsertRecord(row);
            grid.SetTextAt(row, 0, key);
        }
    }
    EXPECT_EQ(dialog.count.changes, 1);
    EXPECT_EQ(grid.GetDataRowCount(), LongGrid::rowCount + 2'000);
    for (Row row = 2; row <= grid.GetDataRowCount(); ++row)
        ASSERT_LT(std::stoi(grid.TextAt(row - 1, 0)), std::stoi(grid.TextAt(row, 0))) << row.number();

    std::vector<int> all(static_cast<std::size_t>(grid.GetDataRowCount()));
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<int>(i);
    ASSERT_TRUE(grid.select(all).ok());
    dialog.count.changes = 0;
    ASSERT_TRUE(grid.deleteRows(all).ok());
    EXPECT_EQ(grid.GetDataRowCount(), 0);
    EXPECT_EQ(dialog.count.changes, 1);

    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - started;
    EXPECT_LT(taken.count(), 60.0);  // a second or two; anything quadratic takes many minutes
}

TEST_F(GridCells, EachCellIsWrittenWhenItIsLeft)
{
    EXPECT_TRUE(grid.typeCell(1, 1, "2*300").ok());
    EXPECT_EQ(grid.calls, (Calls{"edited 2 2*300", "written 2"}));
    EXPECT_FALSE(grid.IsEdit());
    EXPECT_EQ(grid.TextAt(2, 1), "600");
    EXPECT_EQ(grid.shownText(1, 1), "6.0e+02");
    EXPECT_TRUE(grid.typeCell(2, 1, "x").ok());
    EXPECT_EQ(host.warnings, (Calls{"character"}));
}

TEST_F(GridCells, CellsHaveStylesOfTheirOwn)
{
    EXPECT_EQ(grid.typeCell(0, 0, "x").refusal, "\"cells\" has column 0 of row 0 disabled");
    EXPECT_EQ(grid.typeCell(1, 0, "x").refusal, "\"cells\" has column 0 of row 1 for reading only");
    EXPECT_TRUE(grid.pressCell(3, 0).ok());
    EXPECT_EQ(grid.calls, (Calls{"pressed 4"}));
    EXPECT_EQ(grid.pressCell(2, 1).refusal, "\"cells\" has no button in column 1 of row 2");
    grid.SetRowHidden(3);
    EXPECT_EQ(grid.typeCell(2, 1, "5").refusal, "\"cells\" does not show its row 2");
    grid.InsertRecord(1);
    EXPECT_EQ(grid.GetCellKind(2, 0), zel::GridKind::heading);
    EXPECT_EQ(grid.GetCellStyle(5, 0).span, 2);
    EXPECT_EQ(grid.GetCellKind(1, 0), zel::GridKind::text);
}

TEST_F(GridCells, TabSkipsWhatIsDisabledAndAPasteIsTold)
{
    ASSERT_TRUE(grid.clickCell(1, 1).ok());
    EXPECT_TRUE(grid.key(zel::UserKey::tab).ok());
    EXPECT_EQ(fieldOf(grid, "current"), "2,0");
    EXPECT_TRUE(grid.paste(1, 1, "5\n6\n").ok());
    EXPECT_EQ(grid.calls, (Calls{"pasted"}));
    EXPECT_EQ(grid.TextAt(2, 1), "5");
    EXPECT_EQ(grid.TextAt(3, 1), "6");
    EXPECT_EQ(fieldOf(grid, "appendRow"), "false");
}
