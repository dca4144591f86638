#include "loadcomb/editor_fixture.h"

namespace zel::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// The list of the combinations and the items of one of them.
class LoadCombinationForm : public EditorTest {
protected:
    LoadCombinationForm() { store("LCB1", {{1, 1, 1.2}, {1, 2, 1.6}}); }

    /// The editor with the first combination current.
    static Form openOnFirst()
    {
        const Form form = open();
        click(mainGrid(form), 0, mainName);
        return form;
    }
    static std::vector<T_LCOM_ITEM> items() { return stored("LCB1").items; }
    static CString missing(const char* what) { return shown(what) + shown("IDS_ZEL_CMD___has_not_been_entered_"); }
    Texts warningTexts()
    {
        Texts texts;
        texts.swap(user.warnings);
        return texts;
    }
};

// The list

TEST_F(LoadCombinationForm, ANewRowBearsTheFirstFreeNameAndIsActive)
{
    const Form form = openOnFirst();
    type(mainGrid(form), append, {{mainDescription, "second"}});
    type(mainGrid(form), append, {{mainName, "wind"}, {mainActive, "0"}});
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|LCB1|1|", "2|LCB2|1|second", "3|wind|0|"));
    EXPECT_EQ(stored("LCB2").active, 1);
    EXPECT_EQ(stored("wind").active, 0);
    EXPECT_THAT(stored("wind").items, IsEmpty());
}

TEST_F(LoadCombinationForm, AChangedRowKeepsItsItems)
{
    const Form form = openOnFirst();
    type(mainGrid(form), 0, {{mainName, "gravity"}, {mainActive, "0"}, {mainDescription, "D + L"}});
    const T_LCOM_D now = stored("gravity");
    EXPECT_THAT(now.items, ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}));
    EXPECT_EQ(now.active, 0);
    EXPECT_EQ(now.description, "D + L");
    EXPECT_THAT(storedNames(), ElementsAre("gravity"));
}

TEST_F(LoadCombinationForm, ABlankNameKeepsTheRowOpen)
{
    const Form form = openOnFirst();
    type(mainGrid(form), 0, {{mainName, "   "}});
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
    EXPECT_EQ(mainGrid(form).GetEditRow(), 1);
    EXPECT_THAT(storedNames(), ElementsAre("LCB1"));
}

TEST_F(LoadCombinationForm, ABlankThatBelongsToANameStays)
{
    store("gLCB2  ");
    const Form form = open();
    type(mainGrid(form), 1, {{mainDescription, "x"}});
    EXPECT_EQ(stored("gLCB2  ").name, "gLCB2  ");
}

TEST_F(LoadCombinationForm, ACellOutsideOfTheColumnsIsAnError)
{
    const Form form = open();
    EXPECT_TRUE(mainGrid(form).ValidateField("", mainDescription));
    EXPECT_FALSE(mainGrid(form).ValidateField("", mainDescription + 1));
    EXPECT_EQ(mainGrid(form).GetWarningText(), shown("IDS_ZEL_CMD___CCMLoadCombMainGrid__ValidateField__E"));
}

TEST_F(LoadCombinationForm, ABlockWithABlankNameIsUndoneAsAWhole)
{
    store("B");
    const Form form = open();
    done(mainGrid(form).paste(0, mainName, "X\t0\tfirst\n \t1\tsecond\n"));
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance"));
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|LCB1|1|", "2|B|1|"));
    done(mainGrid(form).paste(0, mainName, "X\t0\tfirst\nY\t1\tsecond\nZ\t1\t\n"));
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|X|0|first", "2|Y|1|second", "3|Z|1|"));
    EXPECT_THAT(stored("X").items, ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}));
}

TEST_F(LoadCombinationForm, DeletingTheCurrentRowShowsTheItemsOfTheNext)
{
    store("LCB2", {{1, 3, 1.0}});
    const Form form = openOnFirst();
    done(mainGrid(form).deleteRows({0}));
    EXPECT_THAT(rows(mainGrid(form)), ElementsAre("1|LCB2|1|"));
    EXPECT_EQ(mainGrid(form).GetCurrentRow(), 1);
    EXPECT_THAT(column(subGrid(form), loadCase), ElementsAre("WX(ST)"));
    done(mainGrid(form).deleteRows({0}));
    EXPECT_THAT(rows(subGrid(form)), IsEmpty());
    EXPECT_FALSE(form.enabled("subGrid"));
}

// The items

TEST_F(LoadCombinationForm, ItemsNeedACurrentCombination)
{
    const Form form = open();
    EXPECT_FALSE(form.enabled("subGrid"));
    EXPECT_THAT(rows(subGrid(form)), IsEmpty());
    EXPECT_EQ(subGrid(form).GetAppendRow(), 0);
    click(mainGrid(form), 0, mainName);
    EXPECT_TRUE(form.enabled("subGrid"));
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("DL(ST)|1.2|1", "LL(ST)|1.6|2"));
    click(mainGrid(form), append, mainName);
    EXPECT_FALSE(form.enabled("subGrid"));
    EXPECT_THAT(rows(subGrid(form)), IsEmpty());
}

TEST_F(LoadCombinationForm, ARowThatIsLeftWritesTheCombination)
{
    const Form form = openOnFirst();
    type(subGrid(form), append, {{loadCase, "WX(ST)"}, {factor, "0.65*2"}});
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}, T_LCOM_ITEM{1, 3, 1.3}));
    type(subGrid(form), 0, {{factor, "1.4"}});
    type(subGrid(form), 1, {{loadCase, "DL(ST)"}});
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.4}, T_LCOM_ITEM{1, 1, 1.6}, T_LCOM_ITEM{1, 3, 1.3}));
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("DL(ST)|1.4|1", "DL(ST)|1.6|2", "WX(ST)|1.3|3"));
    EXPECT_EQ(mainGrid(form).GetCurrentRow(), 1);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(LoadCombinationForm, AnItemIsTypedStepByStep)
{
    const Form form = openOnFirst();
    done(subGrid(form).openCell(append, loadCase));
    done(subGrid(form).typeText("WX(ST)"));
    EXPECT_EQ(subGrid(form).GetValueRowCol(3, 1), "WX(ST)");
    done(subGrid(form).openCell(append, factor));
    done(subGrid(form).typeText("0.5"));
    done(subGrid(form).leaveRow());
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}, T_LCOM_ITEM{1, 3, 0.5}));
}

TEST_F(LoadCombinationForm, ACaseNeedsAFactorAndAFactorACase)
{
    const Form form = openOnFirst();
    type(subGrid(form), append, {{loadCase, "WX(ST)"}});
    EXPECT_THAT(warningTexts(), ElementsAre(missing("IDS_ZEL_CMD__Factor")));
    EXPECT_TRUE(subGrid(form).IsAppend());
    done(subGrid(form).escape());
    type(subGrid(form), append, {{factor, "2"}});
    EXPECT_THAT(warningTexts(), ElementsAre(missing("IDS_ZEL_CMD__Load_Case")));
    done(subGrid(form).escape());
    type(subGrid(form), 0, {{loadCase, shown("IDS_ZEL_CMD__None").c_str()}});
    EXPECT_THAT(warningTexts(), ElementsAre(missing("IDS_ZEL_CMD__Load_Case")));
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}));
}

TEST_F(LoadCombinationForm, NoCaseAndNoFactorIsNoItem)
{
    const Form form = openOnFirst();
    type(subGrid(form), 0, {{loadCase, shown("IDS_ZEL_CMD__None").c_str()}, {factor, ""}});
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 2, 1.6}));
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("LL(ST)|1.6|1"));
    type(subGrid(form), append, {{loadCase, shown("IDS_ZEL_CMD__None").c_str()}});
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("LL(ST)|1.6|1"));
    type(subGrid(form), append, {{loadCase, "DL(ST)"}, {factor, "0"}});
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("LL(ST)|1.6|1"));
    type(subGrid(form), 0, {{factor, "0"}});
    EXPECT_THAT(items(), IsEmpty());
    EXPECT_THAT(user.warnings, IsEmpty());
}

TEST_F(LoadCombinationForm, OnlyCasesOfTheListAreTaken)
{
    const Form form = openOnFirst();
    EXPECT_FALSE(subGrid(form).typeCell(append, loadCase, "DL").ok());
    EXPECT_FALSE(subGrid(form).typeCell(append, loadCase, "EX(ST)").ok());
    EXPECT_TRUE(subGrid(form).typeCell(append, loadCase, "DL(ST)").ok());
}

TEST_F(LoadCombinationForm, FactorsAreJudgedWhenTheCellIsLeft)
{
    const Form form = openOnFirst();
    struct Bad {
        const char* text;
        const char* key;
    };
    for (const Bad& bad : {Bad{"(1", "IDS_ZEL_CMD__Invalid_Formula_"}, Bad{"one", "IDS_ZEL_CMD__Input_Number_"}, Bad{"-2e30", "IDS_ZEL_CMD__Out_of_range_"}}) {
        done(subGrid(form).typeCell(0, factor, bad.text));
        EXPECT_THAT(warnings(), ElementsAre(bad.key));
        EXPECT_EQ(subGrid(form).GetOpenCell(), factor);
    }
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}));
}

TEST_F(LoadCombinationForm, FactorsThatAreNotTouchedKeepTheirLastDigit)
{
    const double third = 1.0 / 3.0;
    change("LCB1", [third](T_LCOM_D& record) { record.items = {{1, 1, third}, {1, 2, third}}; });
    const Form form = openOnFirst();
    type(subGrid(form), 0, {{loadCase, "WX(ST)"}});
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 3, third}, T_LCOM_ITEM{1, 2, third}));
}

TEST_F(LoadCombinationForm, ItemsAreDeletedInOneStep)
{
    const Form form = openOnFirst();
    type(subGrid(form), append, {{loadCase, "WX(ST)"}, {factor, "1"}});
    done(subGrid(form).deleteRows({2, 0}));
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 2, 1.6}));
    ASSERT_NE(model->Undo(), 0);
    EXPECT_EQ(items().size(), 3U);
    EXPECT_EQ(subGrid(form).GetDataRowCount(), 3);
}

TEST_F(LoadCombinationForm, FiftyItemsAreAllThatARowTakes)
{
    change("LCB1", [](T_LCOM_D& record) { record.items.assign(50, {1, 1, 0.5}); });
    const Form form = openOnFirst();
    type(subGrid(form), append, {{loadCase, "WX(ST)"}, {factor, "1"}});
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li_MSG1"));
    EXPECT_EQ(items().size(), 50U);
    EXPECT_TRUE(subGrid(form).IsAppend());
}

TEST_F(LoadCombinationForm, ABlockOfItemsIsPastedOrUndoneAsAWhole)
{
    const Form form = openOnFirst();
    done(subGrid(form).paste(0, loadCase, "WX(ST)\t2\nDL(ST)\t3\nLL(ST)\t1+1\n"));
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 3, 2.0}, T_LCOM_ITEM{1, 1, 3.0}, T_LCOM_ITEM{1, 2, 2.0}));
    for (const char* block : {"DL(ST)\t1\nWX(ST)\tx\n", "DL(ST)\t1\nWX(ST)\t\n"}) {
        done(subGrid(form).paste(1, loadCase, block));
        EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance"));
        EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 3, 2.0}, T_LCOM_ITEM{1, 1, 3.0}, T_LCOM_ITEM{1, 2, 2.0}));
    }
}

TEST_F(LoadCombinationForm, ABlockOfTooManyItemsIsUndoneAsAWhole)
{
    const std::vector<T_LCOM_ITEM> before = items();
    const Form form = openOnFirst();
    CString block = "DL(ST)\t0\n";    // the first item goes, the second changes, and too many come
    for (int count = 0; count < 52; ++count)
        block += "WX(ST)\t1\n";
    done(subGrid(form).paste(0, loadCase, block));
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li_MSG1"));
    EXPECT_EQ(items(), before);
    EXPECT_THAT(rows(subGrid(form)), ElementsAre("DL(ST)|1.2|1", "LL(ST)|1.6|2"));
}

// Leaving an item

TEST_F(LoadCombinationForm, GoingToAnotherCombinationWritesTheItem)
{
    store("LCB2");
    const Form form = openOnFirst();
    typeOpen(subGrid(form), 0, {{factor, "1.5"}});
    click(mainGrid(form), 1, mainName);
    EXPECT_EQ(items()[0].factor, 1.5);
    EXPECT_THAT(stored("LCB2").items, IsEmpty());
    EXPECT_THAT(rows(subGrid(form)), IsEmpty());
}

TEST_F(LoadCombinationForm, ARefusedItemHoldsTheUserUntilItIsCorrected)
{
    store("LCB2");
    const Form form = openOnFirst();
    typeOpen(subGrid(form), append, {{loadCase, "WX(ST)"}});
    EXPECT_FALSE(mainGrid(form).clickCell(1, mainName).ok());
    EXPECT_THAT(warningTexts(), ElementsAre(missing("IDS_ZEL_CMD__Factor")));
    EXPECT_FALSE(form.enabled("mainGrid"));
    EXPECT_EQ(mainGrid(form).GetCurrentRow(), 1);
    EXPECT_TRUE(subGrid(form).IsAppend());
    form.press("toggle");
    EXPECT_TRUE(form.visible("subGrid"));
    type(subGrid(form), append, {{factor, "1"}});
    EXPECT_TRUE(form.enabled("mainGrid"));
    click(mainGrid(form), 1, mainName);
    EXPECT_EQ(items().size(), 3U);
}

TEST_F(LoadCombinationForm, ARefusedItemCanBeGivenUp)
{
    const Form form = openOnFirst();
    typeOpen(subGrid(form), append, {{factor, "1"}});
    EXPECT_FALSE(mainGrid(form).clickCell(0, mainName).ok());
    done(subGrid(form).escape());
    EXPECT_TRUE(form.enabled("mainGrid"));
    click(mainGrid(form), 0, mainName);
    EXPECT_EQ(items().size(), 2U);
}

TEST_F(LoadCombinationForm, ARowOfTheListStaysUnderEditWhileItemsAreWritten)
{
    const Form form = openOnFirst();
    typeOpen(mainGrid(form), 0, {{mainDescription, "typed"}});
    type(subGrid(form), 0, {{factor, "9"}});
    EXPECT_EQ(mainGrid(form).GetEditRow(), 1);
    EXPECT_EQ(mainGrid(form).TextAt(1, mainDescription), "typed");
    done(mainGrid(form).leaveRow());
    EXPECT_EQ(stored("LCB1").description, "typed");
    EXPECT_EQ(items()[0].factor, 9.0);
}

// Dropping

TEST_F(LoadCombinationForm, ALoadCaseIsDroppedFromTheTree)
{
    const Form form = openOnFirst();
    done(subGrid(form).dropText(0, loadCase, "1\t3\tWX(ST)\t1.5\n"));
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}, T_LCOM_ITEM{1, 3, 1.5}));
    done(subGrid(form).dropText(append, loadCase, "1\t99\tdl(ST)\t2*2\n1\t2\tLL(ST)\t0.5\n"));
    EXPECT_EQ(subGrid(form).GetDataRowCount(), 5);
    EXPECT_EQ(items()[3], (T_LCOM_ITEM{1, 1, 4.0}));
    EXPECT_EQ(items()[4], (T_LCOM_ITEM{1, 2, 0.5}));
}

TEST_F(LoadCombinationForm, NamesThatEndInTheMarkAreFoundWhole)
{
    addCase("ST", "L");
    addCase("A(", "L");
    addCase("W(ST)", "W");
    const Form form = openOnFirst();
    done(subGrid(form).dropText(append, loadCase, "1\t4\tST(ST)\t1\n1\t5\tA((ST)\t2\n1\t6\tW(ST)(ST)\t3\n"));
    EXPECT_THAT(column(subGrid(form), loadCase), ElementsAre("DL(ST)", "LL(ST)", "ST(ST)", "A((ST)", "W(ST)(ST)"));
}

TEST_F(LoadCombinationForm, WhatIsNoLoadCaseIsNotTaken)
{
    const Form form = openOnFirst();
    for (const char* text : {"1\t9\tEX(ST)\t1\n", "2\t1\tDL(ST)\t1\n", "DL(ST)", "1\t1\n", "hello\n", ""})
        EXPECT_FALSE(subGrid(form).dropText(append, loadCase, text).ok()) << text;
    EXPECT_EQ(items().size(), 2U);
    EXPECT_THAT(user.warnings, IsEmpty());
}

TEST_F(LoadCombinationForm, ADroppedCaseNeedsAFactor)
{
    const Form form = openOnFirst();
    done(subGrid(form).dropText(append, loadCase, "1\t1\tDL(ST)\t1\n1\t3\tWX(ST)\t\n"));
    EXPECT_THAT(warningTexts(), ElementsAre(missing("IDS_ZEL_CMD__Factor")));
    done(subGrid(form).dropText(append, loadCase, "1\t3\tWX(ST)\tmuch\n"));
    EXPECT_THAT(warnings(), ElementsAre("IDS_ZEL_CMD__Input_Number_"));
    EXPECT_EQ(items().size(), 2U);
}

TEST_F(LoadCombinationForm, ACaseThatIsDroppedWithAFactorOfZeroIsNoItem)
{
    const Form form = openOnFirst();
    done(subGrid(form).dropText(append, loadCase, "1\t3\tWX(ST)\t0\n1\t1\tDL(ST)\t2\n"));
    EXPECT_THAT(items(), ElementsAre(T_LCOM_ITEM{1, 1, 1.2}, T_LCOM_ITEM{1, 2, 1.6}, T_LCOM_ITEM{1, 1, 2.0}));
}

TEST_F(LoadCombinationForm, NothingIsDroppedWithoutACombination)
{
    const Form form = open();
    EXPECT_FALSE(subGrid(form).dropText(append, loadCase, "1\t1\tDL(ST)\t1\n").ok());
}

}  // namespace zel::test
