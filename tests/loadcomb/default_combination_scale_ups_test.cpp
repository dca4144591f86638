#include "loadcomb/default_combination_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DefaultCombinationTest;
using zel::test::Form;
using zel::test::Texts;

constexpr const char* sameCase = "IDS_ZEL_CMD__Error_SAME_LC_SELECTED";
constexpr const char* checkFactor = "IDS_ZEL_CMD__Warning___Check_Scale_Up_Factor_____n_";
constexpr const char* noCase = "IDS_ZEL_CMD__Error___Not_Selected_Earthquake_Load_C";
constexpr const char* inPair = "IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____";
constexpr const char* overwrite = "IDS_ZEL_CMD__Existed_Earthquake_Load_Case_____nModi";
constexpr const char* noRow = "IDS_ZEL_CMD__Error___Not_Selected_Data____";
constexpr const char* checkCase = "IDS_ZEL_CMD__Error___Check_Load_Case____";

/// The list of scale-ups in the default load combination dialog.
class DefaultCombinationScaleUps : public DefaultCombinationTest {};

TEST_F(DefaultCombinationScaleUps, AddAppendsARowAndSelectsIt)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "1.25");
        addPair(form, "EY", "2", "EZ");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.250", "EX", none}, Texts{"     2.000", "EY", "EZ"}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
    });
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(DefaultCombinationScaleUps, AFactorFromOneToTenGivesNoWarningAndAnotherWarnsAndCountsAllTheSame)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "1.0");
        add(form, "EY", "10.0");
        EXPECT_THAT(boxes(), IsEmpty());
        add(form, "EZ", "0.99");
        EXPECT_THAT(boxes(), ElementsAre(checkFactor));
        form.press("del");
        add(form, "EZ", "10.01");
        EXPECT_THAT(boxes(), ElementsAre(checkFactor));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.000", "EX", none}, Texts{"    10.000", "EY", none}, Texts{"    10.010", "EZ", none}));
        form.set(factor, "0.99");
        form.press("modify");
        EXPECT_THAT(boxes(), ElementsAre(checkFactor));
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ex, 1.0, 0}, T_SURS_SF{ey, 10.0, 0}, T_SURS_SF{ez, 0.99, 0}));
}

TEST_F(DefaultCombinationScaleUps, AFactorThatIsNoNumberWarnsAndIsNotTaken)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        for (const char* text : {"", "two"}) {
            form.set(factor, text);
            form.press("add");
            form.press("modify");
        }
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", none}));
    });
    EXPECT_THAT(boxes(), ElementsAre(checkFactor, checkFactor, checkFactor, checkFactor));
}

TEST_F(DefaultCombinationScaleUps, WithEccentricityTheTwoCasesMustDifferAndWithoutItTheyNeedNot)
{
    addCases();
    open([this](const Form& form) {
        form.tick(eccentricity, true);
        add(form, "EX", "0.5");
        EXPECT_THAT(boxes(), ElementsAre(sameCase)) << "before the factor is looked at";
        EXPECT_THAT(form.rows(), IsEmpty());
        form.tick(eccentricity, false);
        add(form, "EX", "2");
        EXPECT_THAT(boxes(), IsEmpty());
        form.tick(eccentricity, true);
        form.press("modify");
        EXPECT_THAT(boxes(), ElementsAre(sameCase));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", none}));
    });
}

TEST_F(DefaultCombinationScaleUps, AddWithoutAResponseCaseWarnsOfTheFactorFirst)
{
    addCase("DL", "D");
    open([this](const Form& form) {
        form.press("add");
        EXPECT_THAT(boxes(), ElementsAre(noCase));
        form.tick(eccentricity, true);
        form.set(factor, "11");
        form.press("add");
        EXPECT_THAT(boxes(), ElementsAre(checkFactor, noCase));
        EXPECT_THAT(form.rows(), IsEmpty());
    });
}

TEST_F(DefaultCombinationScaleUps, WithEccentricityACaseStandsInOneRowOnly)
{
    addCases();
    addCase("EW", "E");
    open([this](const Form& form) {
        addPair(form, "EX", "2", "EY");
        EXPECT_THAT(boxes(), IsEmpty());
        addPair(form, "EX", "3", "EZ");
        addPair(form, "EY", "3", "EZ");
        addPair(form, "EZ", "3", "EX");
        addPair(form, "EZ", "3", "EY");
        EXPECT_THAT(boxes(), ElementsAre(inPair, inPair, inPair, inPair));
        addPair(form, "EZ", "3", "EW");
        EXPECT_THAT(boxes(), IsEmpty());
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", "EY"}, Texts{"     3.000", "EZ", "EW"}));
        form.press("OK");
    });
    EXPECT_EQ(stored().at(0), (T_SURS_SF{ex, 2.0, ey})) << "a refused entry changes nothing";
}

TEST_F(DefaultCombinationScaleUps, WithEccentricityACaseWithoutAPartnerCountsAsARowToo)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        addPair(form, "EY", "3", "EX");
        EXPECT_THAT(boxes(), ElementsAre(inPair));
    });
}

TEST_F(DefaultCombinationScaleUps, WithoutEccentricityAPartnerOfAnotherRowIsTaken)
{
    addCases();
    open([this](const Form& form) {
        addPair(form, "EX", "2", "EY");
        form.tick(eccentricity, false);
        add(form, "EY", "3");
        EXPECT_THAT(boxes(), IsEmpty());
        EXPECT_EQ(form.rows().size(), 2U);
    });
}

TEST_F(DefaultCombinationScaleUps, AddOfAListedCaseOverwritesItsRowOnYes)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        add(form, "EY", "3");
        user.answer(IDYES);
        add(form, "EX", "4");
        EXPECT_THAT(boxes(), ElementsAre(overwrite));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     4.000", "EX", none}, Texts{"     3.000", "EY", none}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
    });
}

TEST_F(DefaultCombinationScaleUps, AddOfAListedCaseLeavesItsRowOnNoThoughTheFactorCounts)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        add(form, "EY", "3");
        user.answer(IDNO);
        add(form, "EX", "4");
        ASSERT_EQ(user.boxes.size(), 1U);
        EXPECT_EQ(user.boxes[0].type, MB_YESNO);
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", none}, Texts{"     3.000", "EY", none}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
        form.select("list", {0});
        EXPECT_EQ(form.text(factor), "2") << "a row's own values are copied";
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ex, 4.0, 0}, T_SURS_SF{ey, 3.0, 0}));
}

TEST_F(DefaultCombinationScaleUps, ModifyReplacesTheSelectedRow)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        add(form, "EY", "3");
        form.select("list", {0});
        enter(form, "EZ", "4");
        form.press("modify");
        EXPECT_THAT(boxes(), IsEmpty());
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     4.000", "EZ", none}, Texts{"     3.000", "EY", none}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ey, 3.0, 0}, T_SURS_SF{ez, 4.0, 0}));
}

TEST_F(DefaultCombinationScaleUps, ModifyKeepsItsOwnPairButTakesNoCaseOfAnotherRow)
{
    addCases();
    addCase("EW", "E");
    open([this](const Form& form) {
        addPair(form, "EX", "2", "EY");
        addPair(form, "EZ", "3", "EW");
        form.select("list", {0});
        form.set(factor, "5");
        form.press("modify");
        EXPECT_THAT(boxes(), IsEmpty());
        form.set(eccentric, "EW");
        form.press("modify");
        EXPECT_THAT(boxes(), ElementsAre(inPair));
        form.tick(eccentricity, false);
        form.set(response, "EZ");
        form.press("modify");
        EXPECT_THAT(boxes(), ElementsAre(inPair));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     5.000", "EX", "EY"}, Texts{"     3.000", "EZ", "EW"}));
    });
}

TEST_F(DefaultCombinationScaleUps, ModifyAndDeleteWithoutARowSayThatNoDataIsSelected)
{
    addCases();
    open([](const Form& form) {
        add(form, "EX", "2");
        form.select("list", {});
        form.press("modify");
        form.press("del");
        EXPECT_EQ(form.rows().size(), 1U);
    });
    EXPECT_THAT(boxes(), ElementsAre(noRow, noRow));
}

TEST_F(DefaultCombinationScaleUps, ModifyWithoutAResponseCaseAsksToCheckIt)
{
    const zel::Key dead = addCase("DL", "D");
    store({{dead, 2.0, 0}});
    open([](const Form& form) {
        form.select("list", {0});
        EXPECT_EQ(form.chosen(response), -1);
        form.press("modify");
        EXPECT_EQ(form.rows().size(), 1U);
    });
    EXPECT_THAT(boxes(), ElementsAre(checkCase));
}

TEST_F(DefaultCombinationScaleUps, DeleteTakesTheRowAndSelectsTheOneAtItsPlaceOrTheLast)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        add(form, "EY", "3");
        add(form, "EZ", "4");
        form.select("list", {0});
        form.press("del");
        EXPECT_THAT(form.selected(), ElementsAre(0));
        EXPECT_EQ(form.text(response), "EY") << "the fields follow the selection";
        form.select("list", {1});
        form.press("del");
        EXPECT_THAT(form.selected(), ElementsAre(0));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     3.000", "EY", none}));
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ey, 3.0, 0}));
}

TEST_F(DefaultCombinationScaleUps, DeleteOfTheOnlyRowLeavesTheFieldsAsTheyAre)
{
    addCases();
    open([](const Form& form) {
        add(form, "EY", "3");
        form.press("del");
        EXPECT_THAT(form.rows(), IsEmpty());
        EXPECT_EQ(form.text(response), "EY");
        EXPECT_EQ(form.text(factor), "3");
    });
}

TEST_F(DefaultCombinationScaleUps, SelectingARowCopiesItsValuesWithAllTheirDigits)
{
    addCases();
    store({{ex, 1.23456789, ez}, {ey, 3.0, 0}});
    open([](const Form& form) {
        form.select("list", {0});
        EXPECT_EQ(form.text(factor), "1.23457");
        EXPECT_EQ(form.text(response), "EX");
        EXPECT_EQ(form.text(eccentric), "EZ");
        EXPECT_TRUE(form.at<CCheckBox>(eccentricity).GetCheck()) << "or Modify would lose the partner";
        form.press("modify");
        form.press("OK");
    });
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ex, 1.23456789, ez}, T_SURS_SF{ey, 3.0, 0}));
}

TEST_F(DefaultCombinationScaleUps, SelectingARowWithoutPartnerShowsNone)
{
    addCases();
    store({{ex, 2.0, ez}, {ey, 3.0, 0}});
    open([](const Form& form) {
        form.select("list", {0});
        form.select("list", {1});
        EXPECT_EQ(form.text(response), "EY");
        EXPECT_EQ(form.chosen(eccentric), -1);
        form.select("list", {});
        EXPECT_EQ(form.text(response), "EY") << "no row copies nothing";
    });
}

TEST_F(DefaultCombinationScaleUps, WhatIsRememberedIsListedAtOpeningWithoutTheTestOfPairs)
{
    addCases();
    store({{ey, 1.5, ez}, {ex, 0.5, ez}});
    open([](const Form& form) {
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.500", "EY", "EZ"}, Texts{"     0.500", "EX", "EZ"}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
        EXPECT_EQ(form.text(factor), "1") << "the fields open on their defaults";
        EXPECT_EQ(form.text(response), "EX");
    });
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(DefaultCombinationScaleUps, ACaseRememberedTwiceIsAskedForAtOpening)
{
    addCases();
    store({{ex, 1.5, 0}, {ex, 2.5, ez}});
    user.answer(IDNO);
    open([this](const Form& form) { EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.500", "EX", none})); });
    EXPECT_THAT(boxes(), ElementsAre(overwrite));
}

TEST_F(DefaultCombinationScaleUps, ACaseThatHasGoneIsForgotten)
{
    addCases();
    store({{ex, 1.5, ez}, {ey, 2.5, 0}});
    deleteCase("EY");
    deleteCase("EZ");
    open([this](const Form& form) { EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.500", "EX", none})); });
}

}  // namespace
