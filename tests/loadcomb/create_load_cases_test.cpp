#include "command/command.h"
#include "contract/records/all.h"
#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_type_tables.h"
#include "load/dialog_test.h"

namespace zel::test {

using testing::ElementsAre;
using testing::IsEmpty;

class CreateLoadCases : public DialogTest {
protected:
    CreateLoadCases()
    {
        addCase("DL", "D");
        addCase("T", "USER");
        changeCase("DL", [](T_STLD_D& record) { record.selfWeightFactor = -1.0; });
        addCombination(1, "C", 9.0);
        addCombination(3, "C", 2.0);
    }

    static void addCombination(int kind, const char* name, double factor)
    {
        T_LCOM_D record;
        record.name = name;
        record.items = {{1, 1, factor}};
        ASSERT_NE(CDataLcom().Add(kind, record), 0);
    }

    int open(const std::function<void(const Form&)>& use)
    {
        user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
        return CMD_DoModal(15, nullptr, 0);
    }

    static double selfWeight(const char* name)
    {
        CDataStld cases;
        EXPECT_NE(cases.Get(CString(name)), 0);
        return cases.currentRecord.selfWeightFactor;
    }
};

TEST_F(CreateLoadCases, OpensWithAllChecksOnAndNothingSelected)
{
    EXPECT_EQ(open([](const Form& form) {
                  EXPECT_EQ(form.dialog().GetWindowText(), "Create Load Cases Using Load Combinations");
                  EXPECT_EQ(form.dialog().templateId(), 9210U);
                  EXPECT_THAT(form.items("Load Combination"), ElementsAre("CB: C", "DC: C"));
                  EXPECT_THAT(form.items("Load Case"), ElementsAre("DL", "T"));
                  EXPECT_EQ(form.chosen("Load Combination"), -1);
                  EXPECT_EQ(form.chosen("Load Case"), -1);
                  for (const char* check : {"Self Weight", "Point Load", "Specified Displacement", "Line Load", "Area Load"})
                      EXPECT_TRUE(form.at<CCheckBox>(check).GetCheck()) << check;
                  EXPECT_FALSE(form.at<CCheckBox>("Delete Current Loads in the Selected Load Case").GetCheck());
                  form.press("Close");
              }),
              2);
}

TEST_F(CreateLoadCases, SaysSoWhenNoLoadCaseIsDefined)
{
    CDataLcom().Del(1, Key{1});
    CDataLcom().Del(3, Key{1});
    CDataStld().Del(Texts{"DL", "T"});
    open([&](const Form& form) { EXPECT_THAT(form.items("Load Case"), IsEmpty()); });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Load_Case_was_not_defined"));
}

TEST_F(CreateLoadCases, ApplyNeedsACombinationThenALoadCase)
{
    open([&](const Form& form) {
        form.press("Apply");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_specified_load_combination_"));
        form.set("Load Combination", "CB: C");
        form.press("Apply");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_specified_load_case_"));
    });
}

TEST_F(CreateLoadCases, ACombinationOfKind3IsFoundAmongKind3AndBothListsAreClearedAfterwards)
{
    open([&](const Form& form) {
        form.set("Load Combination", "DC: C");
        form.set("Load Case", "T");
        form.press("Apply");
        EXPECT_EQ(form.chosen("Load Combination"), -1);
        EXPECT_EQ(form.chosen("Load Case"), -1);
        EXPECT_FALSE(form.dialog().hasEnded());
    });
    EXPECT_DOUBLE_EQ(selfWeight("T"), -2.0);
}

TEST_F(CreateLoadCases, WithAllChecksOffNothingIsCopied)
{
    open([&](const Form& form) {
        form.press("Check None");
        form.set("Load Combination", "CB: C");
        form.set("Load Case", "T");
        form.press("Apply");
        EXPECT_EQ(form.chosen("Load Case"), -1) << "the model was asked and had nothing to copy";
    });
    EXPECT_EQ(selfWeight("T"), 0.0);
}

TEST_F(CreateLoadCases, CheckAllAndCheckNoneLeaveTheDeleteFlagAlone)
{
    open([&](const Form& form) {
        form.tick("Delete Current Loads in the Selected Load Case", true);
        form.press("Check None");
        EXPECT_FALSE(form.at<CCheckBox>("Area Load").GetCheck());
        EXPECT_TRUE(form.at<CCheckBox>("deleteCurrentLoads").GetCheck());
        form.press("Check All");
        EXPECT_TRUE(form.at<CCheckBox>("Area Load").GetCheck());
        EXPECT_TRUE(form.at<CCheckBox>("deleteCurrentLoads").GetCheck());
    });
}

TEST_F(CreateLoadCases, TheDeleteFlagRemovesTheTargetsOwnLoadsFirst)
{
    changeCase("T", [](T_STLD_D& record) { record.selfWeightFactor = 5.0; });
    open([&](const Form& form) {
        form.tick("deleteCurrentLoads", true);
        form.set("Load Combination", "DC: C");
        form.set("Load Case", "T");
        form.press("Apply");
    });
    EXPECT_DOUBLE_EQ(selfWeight("T"), -2.0);
}

TEST_F(CreateLoadCases, ARefusalLeavesTheSelections)
{
    // The names of the types to make grow beyond what the table takes.
    T_LNLD_D type;
    type.name = std::string(80, 'x');
    type.loadCase1 = 1;
    type.load1 = 1.0;
    CDataLnld().Add(type);
    model->table(Table::LNLA).add(0, {0}, {share(T_LNLA_D{1, 1})}, false);
    open([&](const Form& form) {
        form.set("Load Combination", "DC: C");
        form.set("Load Case", "T");
        form.press("Apply");
        EXPECT_EQ(form.chosen("Load Combination"), 1);
        EXPECT_EQ(form.chosen("Load Case"), 1);
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_NAME_TOO_LONG"));
    EXPECT_EQ(selfWeight("T"), 0.0) << "nothing of it was kept";
}

TEST_F(CreateLoadCases, TheListsFollowTheModelAndKeepTheirSelectionsByKey)
{
    open([&](const Form& form) {
        form.set("Load Combination", "DC: C");
        form.set("Load Case", "T");
        addCase("A", "L");
        CDataStld().ChangeSequence({3}, 0);
        addCombination(1, "B", 1.0);
        EXPECT_THAT(form.items("Load Case"), ElementsAre("A", "DL", "T"));
        EXPECT_EQ(form.chosen("Load Case"), 2);
        EXPECT_THAT(form.items("Load Combination"), ElementsAre("CB: C", "CB: B", "DC: C"));
        EXPECT_EQ(form.chosen("Load Combination"), 2);
        CDataLcom().Del(3, Key{1});
        EXPECT_EQ(form.chosen("Load Combination"), -1);
        form.press("Apply");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_specified_load_combination_"));
        tellOfNoChange();
        EXPECT_EQ(form.chosen("Load Case"), 2);
    });
}

TEST_F(CreateLoadCases, TheButtonsBesideTheListsSendTheHostsCommands)
{
    open([](const Form& form) {
        form.press("loadCombinationButton");
        form.press("loadCaseButton");
    });
    EXPECT_THAT(user.commands, ElementsAre(HeadlessUserInterface::Command{32894, false}, HeadlessUserInterface::Command{32869, false}));
}

}  // namespace zel::test
