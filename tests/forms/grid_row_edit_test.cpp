#include "contract/forms/grid_row_edit.h"

#include <gtest/gtest.h>

using zel::Row;
using zel::RowEdit;

namespace {

const CArray<CString> stored{"DL", "1.2"};
constexpr zel::ColumnIndex name = 0;
constexpr zel::ColumnIndex factor = 1;

RowEdit editOf(Row row)
{
    RowEdit edit;
    edit.begin(row, stored);
    return edit;
}

RowEdit typedInto(Row row)
{
    RowEdit edit = editOf(row);
    edit.openCell(name);
    edit.type("LL");
    edit.keepCell();
    edit.settle(true);
    return edit;
}

}  // namespace

TEST(RowUnderEdit, BeginsUntouchedWithItsTexts)
{
    EXPECT_TRUE(RowEdit().isNone());
    EXPECT_FALSE(RowEdit().isEditing());
    const RowEdit edit = editOf(3);
    EXPECT_TRUE(edit.isEditing());
    EXPECT_FALSE(edit.isTyped());
    EXPECT_FALSE(edit.isAdded());
    EXPECT_EQ(edit.dataRow(), 3);
    EXPECT_EQ(edit.texts(), stored);
    EXPECT_EQ(edit.openCell(), -1);
}

TEST(RowUnderEdit, AnOpenCellShowsWhatIsTypedBesideTheTextsOfTheRow)
{
    RowEdit edit = editOf(3);
    edit.openCell(name);
    EXPECT_TRUE(edit.isOpen(name));
    EXPECT_FALSE(edit.isOpen(factor));
    EXPECT_FALSE(edit.isCellTyped());
    EXPECT_EQ(edit.text(name), "DL");
    edit.type("LL");
    EXPECT_TRUE(edit.isCellTyped());
    EXPECT_EQ(edit.text(name), "LL");
    EXPECT_EQ(edit.text(factor), "1.2");
    EXPECT_EQ(edit.texts(), stored);
    edit.keepCell();
    EXPECT_FALSE(edit.hasOpenCell());
    EXPECT_EQ(edit.texts(), (CArray<CString>{"LL", "1.2"}));
}

TEST(RowUnderEdit, EndsWhereNothingDiffersAndStaysWhereSomethingDoes)
{
    RowEdit edit = editOf(3);
    edit.openCell(factor);
    edit.keepCell();
    edit.settle(false);
    EXPECT_TRUE(edit.isNone());
    EXPECT_TRUE(typedInto(3).isTyped());
}

TEST(RowUnderEdit, ADroppedCellLeavesWhatWasTypedIntoOthers)
{
    RowEdit edit = typedInto(3);
    edit.openCell(factor);
    edit.type("9");
    edit.dropCell();
    EXPECT_TRUE(edit.isTyped());
    EXPECT_EQ(edit.texts(), (CArray<CString>{"LL", "1.2"}));

    RowEdit untouched = editOf(3);
    untouched.openCell(factor);
    untouched.type("9");
    untouched.dropCell();
    EXPECT_TRUE(untouched.isNone());
    EXPECT_EQ(untouched.dataRow(), 0);
}

TEST(RowUnderEdit, ACellThatIsOpenedAgainIsNotTypedIntoYet)
{
    RowEdit edit = typedInto(3);
    edit.openCell(factor);
    EXPECT_FALSE(edit.isCellTyped());
    EXPECT_EQ(edit.text(factor), "1.2");
}

TEST(RowUnderEdit, ARefusedWriteKeepsTheRowUnlessItHasGone)
{
    RowEdit edit = typedInto(3);
    edit.beginWriting();
    EXPECT_TRUE(edit.isWriting());
    EXPECT_FALSE(edit.isEditing());
    edit.refuseWriting();
    EXPECT_TRUE(edit.isTyped());

    edit.beginWriting();
    edit.rowDeleted(3);
    EXPECT_TRUE(edit.isWriting()) << "what was typed is still being written";
    EXPECT_EQ(edit.dataRow(), 0);
    edit.refuseWriting();
    EXPECT_TRUE(edit.isNone());

    RowEdit added;
    added.beginNew(stored);
    EXPECT_TRUE(added.isAdded());
    added.settle(true);
    added.beginWriting();
    added.refuseWriting();
    EXPECT_TRUE(added.isAdded());
    added.end();
    EXPECT_FALSE(added.isAdded());
}

TEST(RowUnderEdit, ConvertedTextsReachTheOpenCell)
{
    RowEdit edit = editOf(3);
    edit.openCell(factor);
    edit.type("2");
    edit.replaceText(factor, "2000");
    edit.replaceText(name, "LL");
    EXPECT_EQ(edit.text(factor), "2000");
    EXPECT_EQ(edit.texts(), (CArray<CString>{"LL", "2000"}));
    EXPECT_TRUE(edit.isCellTyped());
}

TEST(RowUnderEdit, FollowsItsRow)
{
    RowEdit edit = editOf(3);
    edit.rowInserted(4);
    EXPECT_EQ(edit.dataRow(), 3);
    edit.rowInserted(3);
    EXPECT_EQ(edit.dataRow(), 4);
    edit.rowDeleted(5);
    EXPECT_EQ(edit.dataRow(), 4);
    edit.rowDeleted(1);
    EXPECT_EQ(edit.dataRow(), 3);
    edit.rowsMoved({2, 3, 1});
    EXPECT_EQ(edit.dataRow(), 1);
    edit.rowDeleted(1);
    EXPECT_TRUE(edit.isNone());
}

TEST(RowUnderEdit, StaysWhereRowsAreMadeAnewUpToItAndGoesWithTheOthers)
{
    RowEdit edit = editOf(3);
    edit.rowsReset(3);
    EXPECT_EQ(edit.dataRow(), 3);
    edit.rowsReset(2);
    EXPECT_TRUE(edit.isNone());

    RowEdit written = typedInto(3);
    written.beginWriting();
    written.rowsReset(5);
    EXPECT_TRUE(written.isWriting());
    EXPECT_EQ(written.dataRow(), 0);

    RowEdit added;
    added.beginNew(stored);
    added.rowInserted(1);
    added.rowDeleted(1);
    added.rowsReset(0);
    EXPECT_TRUE(added.isAdded());
    EXPECT_EQ(added.dataRow(), 0);
}
