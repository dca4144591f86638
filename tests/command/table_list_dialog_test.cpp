#include "command/table_list_dialog.h"
#include "contract/tables/displacement_table.h"
#include "contract/tables/dynamic_tables.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A list of one table, with key and name.
template <class Handle> class NameList final : public CTableListDialog<CDlgMove, Handle> {
    using List_ = CTableListDialog<CDlgMove, Handle>;

public:
    NameList() : List_(1, "Names") {}

    CExtListCtrl list{*this, "list"};
    int timesChanged = 0;
    using List_::GetSelectedKey;

    [[nodiscard]] std::vector<CString> rows() const
    {
        std::vector<CString> texts;
        for (int row = 0; row < list.GetItemCount(); ++row)
            texts.push_back(list.GetItemText(row, 0) + " " + list.GetItemText(row, 1));
        return texts;
    }

private:
    CExtListCtrl& List() override { return list; }
    void SetHeaderTitle() override
    {
        list.AddColInfo("Key", 40);
        list.AddColInfo("Name", 80);
    }
    CString DataToStr(int column, zel::Key key, const typename List_::Record& record) const override
    {
        if (column == 0)
            return std::to_string(key);
        if constexpr (requires { record.name; })
            return record.name;
        else
            return std::to_string(record.loadCaseKey);
    }
    void OnRowsChanged() override { ++timesChanged; }
};

class TableLists : public testing::Test {
protected:
    template <class Dialog> void run(const std::function<void(Dialog&)>& use)
    {
        user.inModal([&use](CDialog& dialog) { use(dynamic_cast<Dialog&>(dialog)); });
        Dialog dialog;
        dialog.DoModal();
    }

    static void add(const char* name)
    {
        T_THLD_D record;
        record.name = name;
        ASSERT_NE(CDataThld().Add(record), 0);
    }

    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
    zel::HeadlessUserInterface user;
};

using Cases = NameList<CDataThld>;

TEST_F(TableLists, OpenOnTheRecordsInTheirSequenceWithNothingSelected)
{
    add("one");
    add("two");
    run<Cases>([](Cases& dialog) {
        EXPECT_THAT(dialog.rows(), ElementsAre("1 one", "2 two"));
        EXPECT_EQ(dialog.GetSelectedKey(), 0U);
        EXPECT_EQ(dialog.list.columns().size(), 2U);
    });
}

TEST_F(TableLists, FollowTheTableRowByRow)
{
    add("one");
    run<Cases>([](Cases& dialog) {
        add("two");
        EXPECT_THAT(dialog.rows(), ElementsAre("1 one", "2 two"));
        CDataThld cases;
        ASSERT_NE(cases.Get(1), 0);
        cases.currentRecord.name = "first";
        ASSERT_NE(cases.Modify(CString("one")), 0);
        EXPECT_THAT(dialog.rows(), ElementsAre("1 first", "2 two"));
        ASSERT_NE(cases.Del(CString("first")), 0);
        EXPECT_THAT(dialog.rows(), ElementsAre("2 two"));
        EXPECT_EQ(dialog.timesChanged, 4);
    });
}

TEST_F(TableLists, KeepTheSelectionWhenTheRecordIsChanged)
{
    add("one");
    add("two");
    run<Cases>([](Cases& dialog) {
        ASSERT_TRUE(dialog.list.select({1}).ok());
        CDataThld cases;
        ASSERT_NE(cases.Get(2), 0);
        cases.currentRecord.name = "second";
        ASSERT_NE(cases.Modify(CString("two")), 0);
        EXPECT_EQ(dialog.GetSelectedKey(), 2U);
    });
}

TEST_F(TableLists, SelectTheRowThatTakesTheDeletedOnesPlaceOrTheNewLastOne)
{
    for (const char* name : {"one", "two", "three"})
        add(name);
    run<Cases>([](Cases& dialog) {
        ASSERT_TRUE(dialog.list.select({1}).ok());
        CDataThld cases;
        cases.Del(CString("two"));
        EXPECT_EQ(dialog.GetSelectedKey(), 3U);
        cases.Del(CString("three"));
        EXPECT_EQ(dialog.GetSelectedKey(), 1U);
        cases.Del(CString("one"));
        EXPECT_EQ(dialog.GetSelectedKey(), 0U);
        EXPECT_THAT(dialog.rows(), IsEmpty());
    });
}

TEST_F(TableLists, DeletingAnotherRowLeavesTheSelection)
{
    for (const char* name : {"one", "two", "three"})
        add(name);
    run<Cases>([](Cases& dialog) {
        ASSERT_TRUE(dialog.list.select({2}).ok());
        CDataThld().Del(CString("one"));
        EXPECT_EQ(dialog.GetSelectedKey(), 3U);
    });
}

TEST_F(TableLists, ATableThatIsOnlyWalkedIsListedToo)
{
    for (int i = 0; i < 2; ++i)
        ASSERT_NE(CDataSpdi().Add(T_SPDI_D()), 0);
    using Interpolations = NameList<CDataSpdi>;
    run<Interpolations>([](Interpolations& dialog) { EXPECT_THAT(dialog.rows(), ElementsAre("1 0", "2 0")); });
}

}  // namespace
