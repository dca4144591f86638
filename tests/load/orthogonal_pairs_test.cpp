#include "load/dialog_test.h"

#include "contract/tables/load_set_tables.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DialogTest;
using zel::test::Form;
using zel::test::Texts;

class OrthogonalPairs : public DialogTest {
protected:
    int open(const std::function<void(const Form&)>& use) { return run<CCmdSetOrthoLCDlg>(use); }

    static void store(const std::vector<T_LCOE_BASE>& pairs) { ASSERT_NE(CDataLcoe().Add(T_LCOE_D{pairs}), 0); }

    static std::vector<T_LCOE_BASE> stored()
    {
        T_LCOE_D record;
        EXPECT_NE(CDataLcoe().Get(record), 0);
        return record.pairs;
    }

    static void choose(const Form& form, const char* case1, const char* case2)
    {
        form.set("Load Case 1 :", case1);
        form.set("Load Case 2 :", case2);
    }
    static void add(const Form& form, const char* case1, const char* case2)
    {
        choose(form, case1, case2);
        form.press("Add");
    }
};

TEST_F(OrthogonalPairs, OffersEarthquakeCasesInBothListsAndHidesAutoGrouping)
{
    addCase("DL", "D");
    addCase("EX", "E");
    addCase("EY", "E");
    open([](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Set Load Cases for Orthogonal Effect");
        EXPECT_EQ(form.dialog().templateId(), 14174U);
        EXPECT_THAT(form.items("Load Case 1 :"), ElementsAre("EX(ST)", "EY(ST)"));
        EXPECT_THAT(form.items("Load Case 2 :"), ElementsAre("EX(ST)", "EY(ST)"));
        EXPECT_EQ(form.chosen("Load Case 1 :"), -1);
        EXPECT_FALSE(form.visible("Auto Grouping"));
        EXPECT_FALSE(form.at("Auto Grouping").press().ok());
        const auto& columns = form.at<CListCtrl>("list").columns();
        ASSERT_EQ(columns.size(), 3U);
        EXPECT_EQ(columns[0].title, shown("IDS_ZEL_CMD_Orthgonal_Effect_Group_No"));
        EXPECT_EQ(columns[0].width, 70);
        EXPECT_EQ(columns[1].title, shown("IDS_ZEL_CMD_Orthgonal_Effect_Load_Case_1"));
        EXPECT_EQ(columns[1].width, 60);
        EXPECT_EQ(columns[2].title, shown("IDS_ZEL_CMD_Orthgonal_Effect_Load_Case_2"));
        EXPECT_EQ(columns[2].width, 60);
    });
}

TEST_F(OrthogonalPairs, WithoutEarthquakeCasesAddSaysThatNoneIsSelected)
{
    addCase("DL", "D");
    open([](const Form& form) {
        EXPECT_THAT(form.items("Load Case 1 :"), IsEmpty());
        EXPECT_THAT(form.items("Load Case 2 :"), IsEmpty());
        form.press("Add");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__Loadcase_was_not_selected_"));
}

TEST_F(OrthogonalPairs, OneListWithoutASelectionGivesTheInvalidKeyMessage)
{
    addCase("EX", "E");
    open([](const Form& form) {
        form.set("Load Case 2 :", "EX(ST)");
        form.press("Add");
        EXPECT_THAT(form.rows(), IsEmpty());
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_"));
}

TEST_F(OrthogonalPairs, BothListsOnOneCaseAreRefused)
{
    addCase("EX", "E");
    open([](const Form& form) {
        add(form, "EX(ST)", "EX(ST)");
        EXPECT_THAT(form.rows(), IsEmpty());
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__Two_loadcases_are_identical_"));
}

TEST_F(OrthogonalPairs, AddTakesAPairOnceInWhicheverOrder)
{
    addCase("EX", "E");
    addCase("EY", "E");
    open([](const Form& form) {
        add(form, "EX(ST)", "EY(ST)");
        add(form, "EY(ST)", "EX(ST)");
        add(form, "EX(ST)", "EY(ST)");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "EX(ST)", "EY(ST)"}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
    });
    const CString assigned = "IDS_ZEL_CMD__ADDD__An_identical_load_case_is_already_assigned_";
    EXPECT_THAT(boxes(), ElementsAre(assigned, assigned));
}

TEST_F(OrthogonalPairs, ModifyTakesItsOwnPairTurnedRoundButNoOtherRows)
{
    addCase("EX", "E");
    addCase("EY", "E");
    addCase("EZ", "E");
    open([this](const Form& form) {
        add(form, "EX(ST)", "EY(ST)");
        add(form, "EX(ST)", "EZ(ST)");
        choose(form, "EZ(ST)", "EX(ST)");
        form.press("Modify");
        EXPECT_THAT(boxes(), IsEmpty());
        choose(form, "EY(ST)", "EX(ST)");
        form.press("Modify");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_"));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "EX(ST)", "EY(ST)"}, Texts{"2", "EZ(ST)", "EX(ST)"}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
    });
}

TEST_F(OrthogonalPairs, ModifyAndDeleteWithoutARowHaveMessagesOfTheirOwn)
{
    open([](const Form& form) {
        form.press("Modify");
        form.press("Delete");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__No_selected_item_in_the_list__nCh", "IDS_ZEL_CMD__ADDD__Error___Not_Selected_Data____"));
}

TEST_F(OrthogonalPairs, DeleteNumbersTheRowsAnewAndSelectsTheRowAtThatPlaceIfThereIsOne)
{
    const zel::Key ex = addCase("EX", "E");
    const zel::Key ey = addCase("EY", "E");
    const zel::Key ez = addCase("EZ", "E");
    store({{ex, ey}, {ex, ez}, {ey, ez}});
    open([](const Form& form) {
        form.select("list", {0});
        form.press("Delete");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "EX(ST)", "EZ(ST)"}, Texts{"2", "EY(ST)", "EZ(ST)"}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
        form.select("list", {1});
        form.press("Delete");
        EXPECT_THAT(form.selected(), IsEmpty());
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_LCOE_BASE{ex, ez}));
}

TEST_F(OrthogonalPairs, SelectingARowShowsItsCasesAndClearingTheSelectionShowsAnEmptyPair)
{
    const zel::Key ex = addCase("EX", "E");
    const zel::Key ey = addCase("EY", "E");
    store({{ey, ex}});
    open([](const Form& form) {
        EXPECT_THAT(form.selected(), ElementsAre(0));
        form.select("list", {0});
        EXPECT_EQ(form.text("Load Case 1 :"), "EY(ST)");
        EXPECT_EQ(form.text("Load Case 2 :"), "EX(ST)");
        form.select("list", {});
        EXPECT_EQ(form.chosen("Load Case 1 :"), -1);
        EXPECT_EQ(form.chosen("Load Case 2 :"), -1);
    });
}

TEST_F(OrthogonalPairs, ACaseWhoseNameEndsInALetterOfTheMarkKeepsIt)
{
    const zel::Key ext = addCase("EXT", "E");
    const zel::Key est = addCase("EST", "E");
    const int code = open([](const Form& form) {
        add(form, "EXT(ST)", "EST(ST)");
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    EXPECT_THAT(stored(), ElementsAre(T_LCOE_BASE{ext, est}));
}

TEST_F(OrthogonalPairs, CancelWritesNothing)
{
    addCase("EX", "E");
    addCase("EY", "E");
    EXPECT_EQ(open([](const Form& form) {
                  add(form, "EX(ST)", "EY(ST)");
                  form.press("Cancel");
              }),
              IDCANCEL);
    T_LCOE_D record;
    EXPECT_EQ(CDataLcoe().Get(record), 0);
}

TEST_F(OrthogonalPairs, OkShowsAllRowsWithoutACaseInOneMessageAndStays)
{
    const zel::Key ex = addCase("EX", "E");
    const std::vector<T_LCOE_BASE> before{{ex, 0}, {0, ex}};
    store(before);
    const int code = open([](const Form& form) {
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
    });
    EXPECT_EQ(code, IDCANCEL);
    ASSERT_EQ(user.boxes.size(), 1U);
    const CString line = shown("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_") + "\n";
    EXPECT_EQ("[" + user.boxes[0].key + "]" + user.boxes[0].text, line + line);
    EXPECT_EQ(stored(), before);
}

TEST_F(OrthogonalPairs, RowsAndOffersStayThroughChangesOfLoadCases)
{
    const zel::Key ex = addCase("EX", "E");
    const zel::Key ey = addCase("EY", "E");
    store({{ex, ey}});
    open([this](const Form& form) {
        renameCase("EX", "EX2");
        addCase("EZ", "E");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "EX(ST)", "EY(ST)"}));
        EXPECT_THAT(form.items("Load Case 1 :"), ElementsAre("EX(ST)", "EY(ST)"));
    });
}

/// The table answers no more for a name that is deleted, so the pair stays, by its keys.
TEST_F(OrthogonalPairs, ADeletedCaseThatTheTableNoLongerKnowsByNameLeavesItsRow)
{
    const zel::Key ex = addCase("EX", "E");
    const zel::Key ey = addCase("EY", "E");
    store({{ex, ey}});
    open([this](const Form& form) {
        deleteCase("EX");
        EXPECT_EQ(form.rows().size(), 1U);
    });
}

TEST_F(OrthogonalPairs, AutoGroupingMakesAllPairsThatAreNotThereYet)
{
    const zel::Key ex = addCase("EX", "E");
    const zel::Key ey = addCase("EY", "E");
    const zel::Key ez = addCase("EZ", "E");
    store({{ez, ex}});
    open([](const Form& form) {
        dynamic_cast<CCmdSetOrthoLCDlg&>(form.dialog()).OnCmdOLGAuto();
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "EZ(ST)", "EX(ST)"}, Texts{"2", "EX(ST)", "EY(ST)"}, Texts{"3", "EY(ST)", "EZ(ST)"}));
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_LCOE_BASE{ez, ex}, T_LCOE_BASE{ex, ey}, T_LCOE_BASE{ey, ez}));
}

TEST_F(OrthogonalPairs, TheListTellsWhetherItHoldsANameInEitherColumn)
{
    const zel::Key ex = addCase("EX", "E");
    const zel::Key ey = addCase("EY", "E");
    store({{ex, ey}});
    open([](const Form& form) {
        auto& dialog = dynamic_cast<CCmdSetOrthoLCDlg&>(form.dialog());
        int row = -1;
        EXPECT_EQ(dialog.CheckLoadCaseName("EY(ST)", row), 0);
        EXPECT_EQ(row, 0);
        EXPECT_NE(dialog.CheckLoadCaseName("1", row), 0);
    });
}

TEST_F(OrthogonalPairs, TheButtonBesideTheLoadCasesPostsTheHostsCommand)
{
    open([](const Form& form) { form.press("..."); });
    EXPECT_THAT(user.commands, ElementsAre(zel::HeadlessUserInterface::Command{32869, true}));
}

}  // namespace
