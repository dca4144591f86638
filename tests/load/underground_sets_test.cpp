#include "load/dialog_test.h"

#include "contract/forms/grid_browser_ex.h"
#include "contract/tables/load_set_tables.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::Key;
using zel::test::DialogTest;
using zel::test::Form;
using zel::test::Texts;

constexpr int plus = 0;
constexpr int minus = 1;

class UndergroundSets : public DialogTest {
protected:
    UndergroundSets() : none(shown("IDS_ZEL_CMD__NONE")), plusText(shown("IDS_ZEL_CMD_PLUS")), minusText(shown("IDS_ZEL_CMD_MINUS")) {}

    int open(const std::function<void(const Form&)>& use) { return run<CLoadCaseUndergroundDlg>(use); }

    static void store(const T_LCUG_D& record) { ASSERT_NE(CDataLcug().Add(record), 0); }
    static T_LCUG_D stored()
    {
        T_LCUG_D record;
        EXPECT_NE(CDataLcug().Get(record), 0);
        return record;
    }

    static CTBBrowserWndEx& gridOf(const Form& form) { return form.at<CTBBrowserWndEx>("grid"); }
    static std::vector<Texts> gridRows(const Form& form)
    {
        const CTBGrid& grid = gridOf(form);
        std::vector<Texts> rows;
        for (zel::Row row = 1; row <= grid.GetDataRowCount(); ++row)
            rows.push_back(grid.GetRowTexts(row));
        return rows;
    }
    static void click(const Form& form, zel::UserRow row) { ASSERT_TRUE(gridOf(form).clickCell(row, 1).ok()); }
    static void type(const Form& form, zel::UserRow row, zel::UserColumn column, const CString& text)
    {
        const zel::Taken taken = gridOf(form).typeCell(row, column, text);
        ASSERT_TRUE(taken.ok()) << taken.refusal;
    }
    static void leaveRow(const Form& form) { ASSERT_TRUE(gridOf(form).leaveRow().ok()); }
    static void tickLine(const Form& form, const char* list, int line, bool on = true) { ASSERT_TRUE(form.at(list).tick(line, on).ok()); }
    static std::vector<int> ticked(const Form& form, const char* list) { return form.at<CCheckListBox>(list).checkedItems(); }

    static void add(const Form& form, const char* loadCase, const char* factor)
    {
        form.set("Scale Up Factor :", factor);
        form.set("Load Case :", loadCase);
        form.press("Add");
    }

    /// Three earthquake cases, one of a soil and one of each earth pressure.
    void addCases()
    {
        ex = addCase("EX", "E");
        addCase("DL", "D");
        ey = addCase("EY", "E");
        ez = addCase("EZ", "E");
        soil1 = addCase("S1", "EEP");
        soil2 = addCase("S2", "EEP");
        rest = addCase("H1", "EH");
    }

    CString none, plusText, minusText;
    Key ex = 0, ey = 0, ez = 0, soil1 = 0, soil2 = 0, rest = 0;
};

// Opening

TEST_F(UndergroundSets, WithoutEarthquakeCasesTheUpperFormIsDisabledAndNoRowsAreProposed)
{
    addCase("DL", "D");
    open([](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Set Load Cases for Underground Load");
        EXPECT_EQ(form.dialog().templateId(), 14111U);
        for (const char* field : {"Scale Up Factor :", "Load Case :", "Consider Accidental Eccentricity", "ES Load Case :"})
            EXPECT_FALSE(form.enabled(field)) << field;
        EXPECT_THAT(gridRows(form), IsEmpty());
        form.press("Add");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Not_Selected_Earthquake_Load_C"));
}

TEST_F(UndergroundSets, TheUpperListsOfferEveryCaseWhoseTypeBeginsWithE)
{
    addCases();
    addCase("P1", "EP");
    addCase("V1", "EV");
    open([](const Form& form) {
        EXPECT_THAT(form.items("Load Case :"), ElementsAre("EX", "EY", "EZ", "S1", "S2", "H1", "P1", "V1"));
        EXPECT_EQ(form.items("ES Load Case :"), form.items("Load Case :"));
        EXPECT_TRUE(form.enabled("Load Case :"));
        EXPECT_FALSE(form.enabled("ES Load Case :"));
        EXPECT_EQ(form.text("Scale Up Factor :"), "1");
        EXPECT_THAT(form.items("Earth Pressure Load Case/Seismic"), ElementsAre("S1", "S2"));
        EXPECT_THAT(form.items("Earth Pressure Load Case/Static"), ElementsAre("H1"));
        const auto& columns = form.at<CListCtrl>("list").columns();
        ASSERT_EQ(columns.size(), 3U);
        EXPECT_EQ(columns[0].title, shown("IDS_ZEL_CMD__Factor"));
        EXPECT_EQ(columns[0].width, 65);
        EXPECT_EQ(columns[1].title, shown("IDS_ZEL_CMD__Load_Case"));
        EXPECT_EQ(columns[1].width, 95);
        EXPECT_EQ(columns[2].title, shown("IDS_ZEL_CMD_ES_Load_Name"));
        EXPECT_EQ(columns[2].width, 95);
        const CTBGrid& grid = gridOf(form);
        EXPECT_EQ(grid.GetColTitle(0), shown("IDS_ZEL_CMD__No"));
        EXPECT_EQ(grid.GetColTitle(1), shown("IDS_ZEL_CMD__Load_Case"));
        EXPECT_EQ(grid.GetColTitle(2), shown("IDS_ZEL_TB__Direction"));
    });
}

TEST_F(UndergroundSets, ACaseThatIsNoEarthquakeButSeismicByItsTypeEnablesTheUpperFormWithoutProposedRows)
{
    addCase("S1", "EEP");
    open([](const Form& form) {
        EXPECT_TRUE(form.enabled("Load Case :"));
        EXPECT_THAT(gridRows(form), IsEmpty());
    });
}

TEST_F(UndergroundSets, OneEarthquakeCaseIsProposedInBothDirections)
{
    addCase("EX", "E");
    open([this](const Form& form) { EXPECT_THAT(gridRows(form), ElementsAre(Texts{"1", "EX", plusText}, Texts{"2", "EX", minusText})); });
}

TEST_F(UndergroundSets, OfThreeEarthquakeCasesTheFirstTwoAreProposed)
{
    addCases();
    open([this](const Form& form) {
        EXPECT_THAT(gridRows(form),
                    ElementsAre(Texts{"1", "EX", plusText}, Texts{"2", "EX", minusText}, Texts{"3", "EY", plusText}, Texts{"4", "EY", minusText}));
    });
}

TEST_F(UndergroundSets, AStoredRecordIsShownInsteadOfAProposal)
{
    addCases();
    store({{{1.5, ey, 0}, {2.0, ex, ez}}, {{ez, minus, {soil2}, {rest}}}});
    open([this](const Form& form) {
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.500", "EY", none}, Texts{"     2.000", "EX", "EZ"}));
        EXPECT_THAT(gridRows(form), ElementsAre(Texts{"1", "EZ", minusText}));
        EXPECT_EQ(gridOf(form).GetCurrentRow(), 1);
        EXPECT_THAT(ticked(form, "seismicList"), ElementsAre(1));
        EXPECT_THAT(ticked(form, "staticList"), ElementsAre(0));
    });
    EXPECT_THAT(boxes(), IsEmpty());
}

// Scale-up

TEST_F(UndergroundSets, AFactorFromOneToTenPassesAndOthersWarn)
{
    addCases();
    open([this](const Form& form) {
        for (const char* factor : {"0.99", "10.01", "abc", ""}) {
            add(form, "EX", factor);
            EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Warning___Check_Scale_Up_Factor_____n_")) << factor;
        }
        EXPECT_THAT(form.rows(), IsEmpty());
        add(form, "EX", "1.0");
        add(form, "EY", "10.0");
        EXPECT_THAT(boxes(), IsEmpty());
        form.set("Scale Up Factor :", "10.01");
        form.press("Modify");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Warning___Check_Scale_Up_Factor_____n_"));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     1.000", "EX", none}, Texts{"    10.000", "EY", none}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
    });
}

TEST_F(UndergroundSets, WithEccentricityTheTwoCasesMustDifferAndWithoutItTheyNeedNot)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        EXPECT_EQ(form.text("ES Load Case :"), "EX");
        EXPECT_THAT(boxes(), IsEmpty());
        form.tick("Consider Accidental Eccentricity", true);
        EXPECT_TRUE(form.enabled("ES Load Case :"));
        form.press("Add");
        form.press("Modify");
        const CString same = "IDS_ZEL_CMD__Error_SAME_LC_SELECTED";
        EXPECT_THAT(boxes(), ElementsAre(same, same));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", none}));
        form.tick("Consider Accidental Eccentricity", false);
        EXPECT_FALSE(form.enabled("ES Load Case :"));
    });
}

TEST_F(UndergroundSets, AddOfAListedCaseAsksAndNoKeepsTheRowThoughTheFactorIsHeld)
{
    addCases();
    const int code = open([this](const Form& form) {
        add(form, "EX", "2");
        user.answer(IDNO);
        add(form, "EX", "3");
        ASSERT_EQ(user.boxes.size(), 1U);
        EXPECT_EQ(user.boxes[0].type, MB_YESNO);
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Existed_Earthquake_Load_Case_____nModi"));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", none}));
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{3.0, ex, 0}));
}

TEST_F(UndergroundSets, AddOfAListedCaseOverwritesItsRowOnYes)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        add(form, "EY", "2");
        user.answer(IDYES);
        add(form, "EX", "3");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     3.000", "EX", none}, Texts{"     2.000", "EY", none}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
    });
}

TEST_F(UndergroundSets, ACaseStandsInOneEccentricPairOnlyButItsFactorIsHeld)
{
    addCases();
    open([this](const Form& form) {
        form.tick("Consider Accidental Eccentricity", true);
        form.set("ES Load Case :", "EZ");
        add(form, "EX", "2");
        EXPECT_THAT(boxes(), IsEmpty());
        add(form, "EY", "3");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____"));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     2.000", "EX", "EZ"}));
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{2.0, ex, ez}, T_LCUG_SF{3.0, ey, 0}));
}

TEST_F(UndergroundSets, ModifyReplacesTheSelectedRow)
{
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        add(form, "EY", "3");
        form.select("list", {0});
        form.set("Load Case :", "EZ");
        form.set("Scale Up Factor :", "4");
        form.press("Modify");
        EXPECT_THAT(boxes(), IsEmpty());
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     4.000", "EZ", none}, Texts{"     3.000", "EY", none}));
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{3.0, ey, 0}, T_LCUG_SF{4.0, ez, 0}));
}

TEST_F(UndergroundSets, ModifyMayKeepItsOwnPairButTakesNoCaseOfAnother)
{
    addCases();
    store({{{2.0, ex, soil1}, {3.0, ey, soil2}}, {}});
    open([this](const Form& form) {
        form.tick("Consider Accidental Eccentricity", true);
        form.select("list", {0});
        form.set("Scale Up Factor :", "5");
        form.press("Modify");
        EXPECT_THAT(boxes(), IsEmpty());
        form.set("ES Load Case :", "S2");
        form.press("Modify");
        form.set("ES Load Case :", "S1");
        form.set("Load Case :", "EY");
        form.press("Modify");
        const CString exists = "IDS_ZEL_CMD__ADDD__Error___Exist_Eccentric_Data____";
        EXPECT_THAT(boxes(), ElementsAre(exists, exists));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"     5.000", "EX", "S1"}, Texts{"     3.000", "EY", "S2"}));
    });
}

TEST_F(UndergroundSets, ModifyAndDeleteWithoutARowSayThatNoDataIsSelected)
{
    addCases();
    open([](const Form& form) {
        form.press("Modify");
        form.press("Delete");
    });
    const CString nothing = "IDS_ZEL_CMD__Error___Not_Selected_Data____";
    EXPECT_THAT(boxes(), ElementsAre(nothing, nothing));
}

TEST_F(UndergroundSets, ModifyWithoutALoadCaseToChooseAsksToCheckIt)
{
    const Key dl = addCase("DL", "D");
    store({{{2.0, dl, 0}}, {}});
    open([](const Form& form) {
        EXPECT_THAT(form.items("Load Case :"), IsEmpty());
        form.select("list", {0});
        form.press("Modify");
        EXPECT_EQ(form.rows().size(), 1U);
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Check_Load_Case____"));
}

TEST_F(UndergroundSets, DeleteTakesTheRowAndSelectsTheOneAtItsPlaceOrTheLast)
{
    addCases();
    store({{{2.0, ex, 0}, {3.0, ey, 0}, {4.0, ez, 0}}, {}});
    open([](const Form& form) {
        form.select("list", {0});
        form.press("Delete");
        EXPECT_THAT(form.selected(), ElementsAre(0));
        form.select("list", {1});
        form.press("Delete");
        EXPECT_THAT(form.selected(), ElementsAre(0));
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{3.0, ey, 0}));
}

TEST_F(UndergroundSets, SelectingARowShowsItWithAllDigitsOfItsFactor)
{
    addCases();
    store({{{1.23456789, ex, ez}, {3.0, ey, 0}}, {}});
    open([](const Form& form) {
        form.select("list", {0});
        EXPECT_EQ(form.text("Scale Up Factor :"), "1.23457");
        EXPECT_EQ(form.text("Load Case :"), "EX");
        EXPECT_EQ(form.text("ES Load Case :"), "EZ");
        form.tick("Consider Accidental Eccentricity", true);
        form.press("Modify");
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{1.23456789, ex, ez}, T_LCUG_SF{3.0, ey, 0}));
}

TEST_F(UndergroundSets, ASelectedRowLeavesTheBoxOfEccentricityAndADeletionLeavesTheFields)
{
    addCases();
    store({{{2.0, ex, ez}, {3.0, ey, 0}}, {}});
    open([](const Form& form) {
        form.select("list", {0});
        EXPECT_FALSE(form.at<CCheckBox>("Consider Accidental Eccentricity").GetCheck());
        form.press("Delete");
        EXPECT_THAT(form.selected(), ElementsAre(0));
        EXPECT_EQ(form.text("Scale Up Factor :"), "2");
        EXPECT_EQ(form.text("Load Case :"), "EX");
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{3.0, ey, 0}));
}

TEST_F(UndergroundSets, TheStoredOrderAndThatOfTheRowsAfterReopeningIsThatOfTheLoadCases)
{
    addCases();
    open([](const Form& form) {
        add(form, "EZ", "4");
        add(form, "EX", "2");
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{2.0, ex, 0}, T_LCUG_SF{4.0, ez, 0}));
    open([](const Form& form) {
        EXPECT_EQ(form.row(0)[1], "EX");
        EXPECT_EQ(form.row(1)[1], "EZ");
    });
}

// Load groups

TEST_F(UndergroundSets, TicksBelongToTheCurrentRowAndAreWrittenAtOnce)
{
    addCases();
    store({{}, {{ex, plus, {}, {}}, {ex, minus, {soil1}, {}}}});
    open([](const Form& form) {
        tickLine(form, "seismicList", 1);
        tickLine(form, "staticList", 0);
        click(form, 1);
        EXPECT_THAT(ticked(form, "seismicList"), ElementsAre(0));
        EXPECT_THAT(ticked(form, "staticList"), IsEmpty());
        tickLine(form, "seismicList", 0, false);
        click(form, 0);
        EXPECT_THAT(ticked(form, "seismicList"), ElementsAre(1));
        EXPECT_THAT(ticked(form, "staticList"), ElementsAre(0));
        form.press("OK");
    });
    EXPECT_THAT(stored().groups, ElementsAre(T_LCUG_SEIS{ex, plus, {soil2}, {rest}}, T_LCUG_SEIS{ex, minus, {}, {}}));
}

TEST_F(UndergroundSets, TheAppendRowShowsNoTicksAndKeepsNone)
{
    addCases();
    store({{}, {{ex, plus, {soil1}, {rest}}}});
    open([](const Form& form) {
        click(form, CTBGrid::append);
        EXPECT_THAT(ticked(form, "seismicList"), IsEmpty());
        EXPECT_THAT(ticked(form, "staticList"), IsEmpty());
        tickLine(form, "seismicList", 1);
        click(form, 0);
        EXPECT_THAT(ticked(form, "seismicList"), ElementsAre(0));
        form.press("OK");
    });
    EXPECT_THAT(stored().groups, ElementsAre(T_LCUG_SEIS{ex, plus, {soil1}, {rest}}));
}

TEST_F(UndergroundSets, ARowIsAddedAtTheAppendRow)
{
    addCases();
    store({{}, {{ex, plus, {soil1}, {}}}});
    open([this](const Form& form) {
        type(form, CTBGrid::append, 1, "EZ");
        type(form, CTBGrid::append, 2, minusText);
        leaveRow(form);
        EXPECT_THAT(gridRows(form), ElementsAre(Texts{"1", "EX", plusText}, Texts{"2", "EZ", minusText}));
        click(form, 1);
        EXPECT_THAT(ticked(form, "seismicList"), IsEmpty());
        tickLine(form, "staticList", 0);
        form.press("OK");
    });
    EXPECT_THAT(stored().groups, ElementsAre(T_LCUG_SEIS{ex, plus, {soil1}, {}}, T_LCUG_SEIS{ez, minus, {}, {rest}}));
}

TEST_F(UndergroundSets, CellsOfferTheEarthquakeCasesAndTheTwoDirections)
{
    addCases();
    open([this](const Form& form) {
        EXPECT_THAT(gridOf(form).GetCellChoices(1, 1), ElementsAre("EX", "EY", "EZ"));
        EXPECT_THAT(gridOf(form).GetCellChoices(1, 2), ElementsAre(plusText, minusText));
        EXPECT_FALSE(gridOf(form).typeCell(0, 1, "S1").ok());
        EXPECT_FALSE(gridOf(form).typeCell(0, 0, "9").ok());
    });
}

TEST_F(UndergroundSets, ARowThatRepeatsACaseInItsDirectionIsRefusedAndNamesBoth)
{
    addCases();
    store({{}, {{ex, plus, {}, {}}, {ex, minus, {}, {}}}});
    open([this](const Form& form) {
        type(form, 1, 2, plusText);
        leaveRow(form);
        EXPECT_EQ(gridOf(form).GetShownWarning(), "[IDS_CMD_ERR_SAME_LC_SAME_DIR]Error : Load case EX with direction " + plusText + " already exists.");
        EXPECT_TRUE(gridOf(form).IsEdit());
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
        type(form, 1, 1, "EY");
        form.press("OK");
    });
    EXPECT_THAT(stored().groups, ElementsAre(T_LCUG_SEIS{ex, plus, {}, {}}, T_LCUG_SEIS{ey, plus, {}, {}}));
}

TEST_F(UndergroundSets, ACellThatIsMissingIsNamed)
{
    addCases();
    store({{}, {}});
    open([](const Form& form) {
        type(form, CTBGrid::append, 1, "EX");
        leaveRow(form);
        EXPECT_EQ(gridOf(form).GetShownWarning(), shown("IDS_ZEL_TB__Direction") + shown("IDS_ZEL_CMD___has_not_been_entered_"));
        EXPECT_THAT(gridRows(form), IsEmpty());
    });
}

TEST_F(UndergroundSets, DeletingARowLeavesTheTicksOfTheOthers)
{
    addCases();
    store({{}, {{ex, plus, {soil1}, {}}, {ey, plus, {soil2}, {rest}}, {ez, plus, {}, {}}}});
    open([this](const Form& form) {
        ASSERT_TRUE(gridOf(form).deleteRows({0}).ok());
        EXPECT_THAT(gridRows(form), ElementsAre(Texts{"1", "EY", plusText}, Texts{"2", "EZ", plusText}));
        EXPECT_THAT(ticked(form, "seismicList"), ElementsAre(1));
        EXPECT_THAT(ticked(form, "staticList"), ElementsAre(0));
        form.press("OK");
    });
    EXPECT_THAT(stored().groups, ElementsAre(T_LCUG_SEIS{ey, plus, {soil2}, {rest}}, T_LCUG_SEIS{ez, plus, {}, {}}));
}

TEST_F(UndergroundSets, ABlockIsPastedAsAWholeOrNotAtAll)
{
    addCases();
    store({{}, {{ex, plus, {soil1}, {}}}});
    open([this](const Form& form) {
        CTBBrowserWndEx& grid = gridOf(form);
        ASSERT_TRUE(grid.paste(CTBGrid::append, 1, "EY\t" + plusText + "\nEY\t" + plusText + "\n").ok());
        EXPECT_EQ(gridRows(form).size(), 1U);
        ASSERT_TRUE(grid.paste(0, 1, "EZ\t" + plusText + "\nEX\t" + plusText + "\n").ok());
        EXPECT_THAT(gridRows(form), ElementsAre(Texts{"1", "EZ", plusText}, Texts{"2", "EX", plusText}));
        form.press("OK");
    });
    EXPECT_THAT(stored().groups, ElementsAre(T_LCUG_SEIS{ez, plus, {soil1}, {}}, T_LCUG_SEIS{ex, plus, {}, {}}));
}

// The rest

TEST_F(UndergroundSets, TheButtonOpensTheFactorsWhichWriteByThemselves)
{
    addCases();
    const int code = open([this](const Form& form) {
        user.inModal([](CDialog& inner) {
            EXPECT_EQ(inner.ClassName(), "CUnderSeisFactor");
            Form(inner).set("Vertical Load Factor :", "0.75");
            Form(inner).press("OK");
        });
        form.press("Factors for Seismic Design...");
        form.press("Cancel");
    });
    EXPECT_EQ(code, IDCANCEL);
    T_SIFT_D factors;
    ASSERT_NE(CDataSift().Get(factors), 0);
    EXPECT_EQ(factors.verticalLoadFactor, 0.75);
    T_LCUG_D record;
    EXPECT_EQ(CDataLcug().Get(record), 0);
}

TEST_F(UndergroundSets, ChangesOfTheModelMeanwhileAreNotFollowed)
{
    addCases();
    store({{{2.0, ex, 0}}, {{ex, plus, {}, {}}}});
    open([this](const Form& form) {
        renameCase("EX", "EX2");
        deleteCase("EZ");
        EXPECT_EQ(form.row(0)[1], "EX");
        EXPECT_EQ(gridRows(form)[0][1], "EX");
        EXPECT_EQ(form.items("Load Case :").size(), 6U);
        form.press("OK");
    });
    EXPECT_THAT(stored().scaleUps, ElementsAre(T_LCUG_SF{2.0, ex, 0}));
}

TEST_F(UndergroundSets, OkWithAnEmptyListStoresTheGroupsAlone)
{
    addCases();
    EXPECT_EQ(open([](const Form& form) { form.press("OK"); }), IDOK);
    EXPECT_THAT(stored().scaleUps, IsEmpty());
    EXPECT_EQ(stored().groups.size(), 4U);
}

}  // namespace
