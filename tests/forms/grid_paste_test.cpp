#include "forms/grid_fixture.h"

using namespace zel::test;

namespace {

class GridPaste : public GridTestOf<> {};

using Block = zel::GridBlock;

}  // namespace

TEST_F(GridPaste, WritesOverRowsAndAppendsTheRest)
{
    EXPECT_TRUE(grid.paste(1, 1, "B2\t7\nC2\t2*4\nC5\t9\n").ok());
    EXPECT_EQ(grid.take(), (Calls{"record B2",  "field 0 2",  "field 1 B2",   "field 2 3",      "field 3 beam",     "field 4 0",  // as it was
                                  "record B2",  "field 0 2",  "field 1 B2",   "field 2 7",      "field 3 beam",     "field 4 0",  // as it will be
                                  "record C1",  "field 0 3",  "field 1 C1",   "field 2 4",      "field 3 column",   "field 4 1",  "record C2",
                                  "field 0 3",  "field 1 C2", "field 2 2*4",  "field 3 column", "field 4 1",        "record C5",  "field 0 4",
                                  "field 1 C5", "field 2 9",  "field 3 beam", "field 4 1",      "modify block 2 2", "add block 1"}));
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1", "2|B2|7|beam|0", "3|C2|8|column|1", "4|C5|9|beam|1"}));
    EXPECT_EQ(grid.data.size(), 4U);
}

TEST_F(GridPaste, BadDataInAnyRowUndoesTheWhole)
{
    const std::vector<Member> before = grid.data;
    EXPECT_TRUE(grid.paste(0, 1, "B1\t7\nB2\t8\nC1\t-9\nD1\t1\n").ok());
    EXPECT_EQ(host.warnings, (Calls{"length must be positive"}));
    EXPECT_EQ(grid.data, before);
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1", "2|B2|3|beam|0", "3|C1|4|column|1"}));

    EXPECT_TRUE(grid.paste(append, 1, "D1\t1\n\t2\n").ok());
    EXPECT_EQ(host.warnings.back(), "Name is missing");
    EXPECT_EQ(grid.data, before);
}

TEST_F(GridPaste, ChangedRowsGoBackWhenTheNewOnesAreRefused)
{
    const std::vector<Member> before = grid.data;
    grid.refusesAdds = true;
    EXPECT_TRUE(grid.paste(2, 1, "C9\t7\nD1\t1\n").ok());
    EXPECT_EQ(grid.data, before);
    EXPECT_EQ(grid.lines(), (Calls{"1|B1|2.5|beam|1", "2|B2|3|beam|0", "3|C1|4|column|1"}));
    EXPECT_TRUE(host.warnings.empty());
}

TEST_F(GridPaste, ABlockThatNamesARecordTwiceIsRefusedByTheData)
{
    EXPECT_TRUE(grid.paste(append, 1, "B1\t7\n").ok());
    EXPECT_EQ(grid.data.size(), 3U);
    EXPECT_EQ(grid.lines().size(), 3U);
}

TEST_F(GridPaste, RowsThatStayTheSameAreNotWritten)
{
    EXPECT_TRUE(grid.paste(0, 1, "B1\nB2\nC1").ok());
    EXPECT_TRUE(grid.take().empty());
}

TEST_F(GridPaste, LeavesCellsOutThatTakeNoText)
{
    grid.SetColReadOnly(MemberGrid::length);
    EXPECT_TRUE(grid.paste(0, 1, "A1\t99\tcolumn\t0").ok());
    EXPECT_EQ(grid.line(1), "1|A1|2.5|column|0");
    EXPECT_EQ(grid.paste(0, 2, "99").refusal, "\"members\" takes no text in the cells of the block");
}

TEST_F(GridPaste, RefusesABlockThatDoesNotFit)
{
    EXPECT_EQ(grid.paste(0, 3, "beam\t1\tmore").refusal, "\"members\" has no room for the 3 columns of the block");
    EXPECT_TRUE(grid.paste(0, 3, "column\t1\t").ok());
    grid.SetAppendRow(false);
    EXPECT_EQ(grid.paste(2, 1, "X\nY").refusal, "\"members\" has no room for the 2 rows of the block");
    EXPECT_EQ(grid.paste(0, 3, "wall").refusal, "\"members\" does not offer \"wall\" in column \"Kind\" of row 0");
    EXPECT_EQ(grid.paste(0, 1, "").refusal, "\"members\" was given nothing to paste");
    EXPECT_EQ(grid.line(1), "1|B1|2.5|column|1");
}

TEST_F(GridPaste, GoesIntoColumnsAsTheyStandOnScreen)
{
    ASSERT_TRUE(grid.dragColumns(2, 2, 1).ok());  // length, name
    grid.SetColHidden(MemberGrid::name);
    EXPECT_TRUE(grid.paste(0, 1, "5\tcolumn").ok());
    EXPECT_EQ(grid.line(1), "1|B1|5|column|1");
}

TEST_F(GridPaste, FirstWritesTheRowUnderEdit)
{
    ASSERT_TRUE(grid.typeCell(0, 1, "Z1").ok());
    EXPECT_TRUE(grid.paste(1, 2, "6").ok());  // onto B2, which then stands first
    EXPECT_EQ(grid.lines(), (Calls{"2|B2|6|beam|0", "3|C1|4|column|1", "1|Z1|2.5|beam|1"}));

    ASSERT_TRUE(grid.typeCell(0, 2, "-1").ok());
    EXPECT_TRUE(grid.paste(1, 2, "7").ok());  // the open cell does not let go
    EXPECT_EQ(grid.TextAt(2, MemberGrid::length), "4");
}

TEST_F(GridPaste, WithoutMirroringOfTheGridTheBrowserPutsRowsInTheirPlace)
{
    grid.mirrors = false;
    EXPECT_TRUE(grid.paste(0, 1, "Z1\t1+1\nA2\t5\n").ok());
    EXPECT_EQ(grid.lines(), (Calls{"2|A2|5|beam|0", "3|C1|4|column|1", "1|Z1|2|beam|1"}));
    EXPECT_TRUE(grid.paste(append, 1, "B1\nB0\n").ok());
    EXPECT_EQ(grid.lines(), (Calls{"2|A2|5|beam|0", "4|B0|1.5|beam|1", "4|B1|1.5|beam|1", "3|C1|4|column|1", "1|Z1|2|beam|1"}));
}

TEST_F(GridPaste, CopyGivesWhatPasteTakes)
{
    ASSERT_TRUE(grid.select({2, 0}).ok());
    EXPECT_EQ(grid.copyText(), "B1\t2.5\tbeam\t1\r\nC1\t4\tcolumn\t1\r\n");
    ASSERT_TRUE(grid.clickCell(1, 2).ok());
    grid.SetTextAt(2, MemberGrid::length, "2.123456789012345");
    EXPECT_EQ(grid.copyText(), "2.123456789012345\r\n");

    ASSERT_TRUE(grid.typeCell(0, 1, "two\tparts \"quoted\"\nand lines").ok());
    ASSERT_TRUE(grid.leaveRow().ok());
    ASSERT_TRUE(grid.select({2}).ok());
    const CString copied = grid.copyText();
    EXPECT_EQ(copied, "\"two\tparts \"\"quoted\"\"\nand lines\"\t2.5\tbeam\t1\r\n");
    EXPECT_EQ(zel::readGridBlock(copied), (Block{{"two\tparts \"quoted\"\nand lines", "2.5", "beam", "1"}}));
}

TEST(GridBlock, ReadsLinesAndQuotedCells)
{
    EXPECT_EQ(zel::readGridBlock(""), Block{});
    EXPECT_EQ(zel::readGridBlock("a"), (Block{{"a"}}));
    EXPECT_EQ(zel::readGridBlock("a\tb\r\nc\t\n"), (Block{{"a", "b"}, {"c", ""}}));
    EXPECT_EQ(zel::readGridBlock("a\rb"), (Block{{"a"}, {"b"}}));
    EXPECT_EQ(zel::readGridBlock("\n\nx"), (Block{{""}, {""}, {"x"}}));
    EXPECT_EQ(zel::readGridBlock("\"a\"\"b\"\tc\"d"), (Block{{"a\"b", "c\"d"}}));
    EXPECT_EQ(zel::readGridBlock("\"open\tend"), (Block{{"open\tend"}}));
    EXPECT_EQ(zel::readGridBlock("a\t"), (Block{{"a", ""}}));
}

TEST(GridBlock, WritesWhatItReads)
{
    const Block block{{"a", "", "\"q\""}, {"tab\there", "line\nbreak", "cr\rhere"}};
    EXPECT_EQ(zel::readGridBlock(zel::writeGridBlock(block)), block);
}
