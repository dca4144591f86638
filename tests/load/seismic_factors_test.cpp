#include "load/dialog_test.h"

#include "contract/tables/load_set_tables.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DialogTest;
using zel::test::Form;
using zel::test::Texts;

constexpr const char* loadCase = "Load Case :";
constexpr const char* factor = "Over-Strength Factor :";

/// Both dialogs of factors for seismic design: their tables and what each is called.
struct General {
    using Dialog = CDgnGenSeisFactor;
    using Handle = CDataSlcf;
    using Record = T_SLCF_D;
    using Entry = T_SOSF_BASE;
};
struct Underground {
    using Dialog = CUnderSeisFactor;
    using Handle = CDataSift;
    using Record = T_SIFT_D;
    using Entry = T_SIFT_BASE;
};

template <class Which> class SeismicFactors : public DialogTest {
protected:
    using Entry = typename Which::Entry;

    int open(const std::function<void(const Form&)>& use) { return run<typename Which::Dialog>(use); }

    void store(const std::vector<Entry>& entries)
    {
        typename Which::Record record;
        record.overStrengthFactors = entries;
        ASSERT_NE(typename Which::Handle().Add(record), 0);
    }

    [[nodiscard]] bool isStored() const
    {
        typename Which::Record record;
        return typename Which::Handle().Get(record) != 0;
    }

    [[nodiscard]] std::vector<Entry> stored() const
    {
        typename Which::Record record;
        EXPECT_NE(typename Which::Handle().Get(record), 0);
        return record.overStrengthFactors;
    }

    static void enter(const Form& form, const char* name, const char* value)
    {
        form.set(loadCase, name);
        form.set(factor, value);
    }
    static void add(const Form& form, const char* name, const char* value)
    {
        enter(form, name, value);
        form.press("Add");
    }
};

using Both = testing::Types<General, Underground>;
TYPED_TEST_SUITE(SeismicFactors, Both);

TYPED_TEST(SeismicFactors, OffersEarthquakeCasesInTheirSequenceWithTheMarkOfAStaticCase)
{
    this->addCase("DL", "D");
    this->addCase("EX", "E");
    this->addCase("EEP1", "EEP");
    this->addCase("EY", "E");
    this->open([](const Form& form) {
        EXPECT_THAT(form.items(loadCase), ElementsAre("EX(ST)", "EY(ST)"));
        EXPECT_EQ(form.chosen(loadCase), -1);
        EXPECT_THAT(form.rows(), IsEmpty());
    });
}

TYPED_TEST(SeismicFactors, OpensWithTheDefaultsWhereNothingIsStored)
{
    this->open([](const Form& form) {
        EXPECT_EQ(form.text("Vertical Load Factor :"), "0.2");
        EXPECT_EQ(form.text("Short Period Coefficient :"), "0");
    });
}

TYPED_TEST(SeismicFactors, OpensWithTheStoredEntriesAndTheFirstRowSelected)
{
    this->store({{this->addCase("EX", "E"), 2.5}, {this->addCase("EY", "E"), 3.0}});
    this->open([](const Form& form) {
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX(ST)", "2.5"}, Texts{"EY(ST)", "3"}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
    });
}

TYPED_TEST(SeismicFactors, AddWithoutALoadCaseShowsTheInvalidKeyMessage)
{
    this->addCase("EX", "E");
    this->open([](const Form& form) {
        form.set(factor, "2");
        form.press("Add");
        EXPECT_THAT(form.rows(), IsEmpty());
    });
    EXPECT_THAT(this->boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_"));
}

TYPED_TEST(SeismicFactors, WithoutEarthquakeCasesTheListIsEmptyAndAddAlwaysShowsTheInvalidKeyMessage)
{
    this->addCase("DL", "D");
    this->open([](const Form& form) {
        EXPECT_THAT(form.items(loadCase), IsEmpty());
        for (const char* value : {"", "2", "abc"}) {
            form.set(factor, value);
            form.press("Add");
        }
    });
    const CString invalid = "IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_";
    EXPECT_THAT(this->boxes(), ElementsAre(invalid, invalid, invalid));
}

TYPED_TEST(SeismicFactors, AddWithAFactorOfZeroOrBelowShowsTheInvalidKeyMessageToo)
{
    this->addCase("EX", "E");
    this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "0");
        this->add(form, "EX(ST)", "-1");
        EXPECT_THAT(form.rows(), IsEmpty());
    });
    const CString invalid = "IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_";
    EXPECT_THAT(this->boxes(), ElementsAre(invalid, invalid));
}

TYPED_TEST(SeismicFactors, AFactorThatIsNoNumberEndsAddAndModifyInSilence)
{
    this->addCase("EX", "E");
    this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "2");
        for (const char* value : {"", "abc", "1.2x"}) {
            form.set(factor, value);
            form.press("Add");
            form.press("Modify");
        }
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX(ST)", "2"}));
    });
    EXPECT_THAT(this->boxes(), IsEmpty());
}

TYPED_TEST(SeismicFactors, AddPutsTheEntryAtTheEndAndSelectsIt)
{
    this->addCase("EX", "E");
    this->addCase("EY", "E");
    this->open([this](const Form& form) {
        this->add(form, "EY(ST)", "2.5");
        this->add(form, "EX(ST)", "3");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EY(ST)", "2.5"}, Texts{"EX(ST)", "3"}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
    });
    EXPECT_THAT(this->boxes(), IsEmpty());
}

TYPED_TEST(SeismicFactors, AddOfAListedCaseNamesItWithItsMark)
{
    this->addCase("EX", "E");
    this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "2");
        this->add(form, "EX(ST)", "3");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX(ST)", "2"}));
    });
    ASSERT_EQ(this->user.boxes.size(), 1U);
    EXPECT_EQ(this->user.boxes[0].key, "IDS_ZEL_CMD__Loadcase__s_already_exist_");
    EXPECT_EQ(this->user.boxes[0].text, "Loadcase EX(ST) already exists.");
}

TYPED_TEST(SeismicFactors, ModifyKeepsTheCaseOfItsOwnRowButTakesNoOtherRows)
{
    this->addCase("EX", "E");
    this->addCase("EY", "E");
    this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "2");
        this->add(form, "EY(ST)", "3");
        form.select("list", {0});
        form.set(factor, "2.25");
        form.press("Modify");
        EXPECT_THAT(this->boxes(), IsEmpty());

        this->enter(form, "EY(ST)", "4");
        form.press("Modify");
        EXPECT_THAT(this->boxes(), ElementsAre("IDS_ZEL_CMD__Loadcase__s_already_exist_"));
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX(ST)", "2.25"}, Texts{"EY(ST)", "3"}));
    });
}

TYPED_TEST(SeismicFactors, ModifyAndDeleteWithoutARowSayThatNoneIsSelected)
{
    this->addCase("EX", "E");
    this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "2");
        form.select("list", {});
        form.press("Modify");
        form.press("Delete");
        EXPECT_EQ(form.rows().size(), 1U);
    });
    const CString none = "IDS_ZEL_CMD__ADDD__No_selected_item_in_the_list__nCh";
    EXPECT_THAT(this->boxes(), ElementsAre(none, none));
}

TYPED_TEST(SeismicFactors, DeleteOfTheLastRowSelectsTheNewLastRowAndOfTheOnlyRowNothing)
{
    this->store({{this->addCase("E1", "E"), 1.0}, {this->addCase("E2", "E"), 2.0}, {this->addCase("E3", "E"), 3.0}});
    this->open([](const Form& form) {
        form.select("list", {2});
        form.press("Delete");
        EXPECT_THAT(form.selected(), ElementsAre(1));
        form.select("list", {0});
        form.press("Delete");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"E2(ST)", "2"}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
        form.press("Delete");
        EXPECT_THAT(form.rows(), IsEmpty());
        EXPECT_THAT(form.selected(), IsEmpty());
    });
    EXPECT_THAT(this->boxes(), IsEmpty());
}

TYPED_TEST(SeismicFactors, SelectingARowShowsItAndClearingTheSelectionLeavesNoCaseAndTheFactorAsItWas)
{
    this->store({{this->addCase("EX", "E"), 2.5}, {this->addCase("EY", "E"), 3.0}});
    this->open([](const Form& form) {
        form.select("list", {1});
        EXPECT_EQ(form.text(loadCase), "EY(ST)");
        EXPECT_EQ(form.text(factor), "3");
        form.select("list", {});
        EXPECT_EQ(form.chosen(loadCase), -1);
        EXPECT_EQ(form.text(factor), "3");
    });
}

TYPED_TEST(SeismicFactors, ACaseWhoseNameEndsInTheLettersOfTheMarkComesBackWhole)
{
    const zel::Key st = this->addCase("ST", "E");
    const zel::Key best = this->addCase("BEST)", "E");
    const int code = this->open([this](const Form& form) {
        this->add(form, "ST(ST)", "2");
        this->add(form, "BEST)(ST)", "3");
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    ASSERT_EQ(this->stored().size(), 2U);
    EXPECT_EQ(this->stored()[0].loadCaseKey, st);
    EXPECT_EQ(this->stored()[1].loadCaseKey, best);
}

TYPED_TEST(SeismicFactors, ACaseWhoseNameEndsInAParenthesisComesBackWhole)
{
    this->addCase("E1", "E");
    const auto key = this->addCase("E1(", "E");
    this->open([this](const Form& form) {
        this->add(form, "E1((ST)", "2");
        form.press("OK");
    });
    EXPECT_THAT(this->boxes(), IsEmpty());
    ASSERT_EQ(this->stored().size(), 1U);
    EXPECT_EQ(this->stored()[0].loadCaseKey, key);
}

TYPED_TEST(SeismicFactors, ANumberThatCannotBeTakenHasTheFocusAndAMarkUntilItIsChanged)
{
    this->addCase("EX", "E");
    this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "abc");
        EXPECT_TRUE(form.at(factor).HasFocus());
        EXPECT_TRUE(form.at(factor).isEntryRefused());
        form.set(factor, "2");
        EXPECT_FALSE(form.at(factor).isEntryRefused());
        form.press("Add");
        form.set("Short Period Coefficient :", "");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
        EXPECT_TRUE(form.at("Short Period Coefficient :").isEntryRefused());
        EXPECT_TRUE(form.at("Short Period Coefficient :").HasFocus());
    });
    EXPECT_THAT(this->boxes(), IsEmpty());
}

TYPED_TEST(SeismicFactors, OkStoresTheScalarsAndTheList)
{
    const zel::Key ex = this->addCase("EX", "E");
    const int code = this->open([this](const Form& form) {
        form.set("Vertical Load Factor :", "0.25");
        form.set("Short Period Coefficient :", "0.5");
        this->add(form, "EX(ST)", "2.5");
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    typename TypeParam::Record record;
    ASSERT_NE(typename TypeParam::Handle().Get(record), 0);
    EXPECT_EQ(record.verticalLoadFactor, 0.25);
    EXPECT_EQ(record.shortPeriodCoefficient, 0.5);
    ASSERT_EQ(record.overStrengthFactors.size(), 1U);
    EXPECT_EQ(record.overStrengthFactors[0].loadCaseKey, ex);
    EXPECT_EQ(record.overStrengthFactors[0].factor, 2.5);
}

TYPED_TEST(SeismicFactors, OkTakesNoPartOfTheEntryForm)
{
    this->addCase("EX", "E");
    const int code = this->open([this](const Form& form) {
        this->enter(form, "EX(ST)", "abc");
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    EXPECT_THAT(this->stored(), IsEmpty());
}

TYPED_TEST(SeismicFactors, OkWithAScalarThatIsNoNumberStaysOpenInSilenceAndWritesNothing)
{
    this->addCase("EX", "E");
    const int code = this->open([this](const Form& form) {
        this->add(form, "EX(ST)", "2");
        for (const char* field : {"Vertical Load Factor :", "Short Period Coefficient :"}) {
            form.set(field, "abc");
            form.press("OK");
            EXPECT_FALSE(form.dialog().hasEnded());
            form.set(field, "1");
        }
        EXPECT_EQ(form.rows().size(), 1U);
    });
    EXPECT_EQ(code, IDCANCEL);
    EXPECT_THAT(this->boxes(), IsEmpty());
    EXPECT_FALSE(this->isStored());
}

TYPED_TEST(SeismicFactors, CancelAfterAddLeavesTheTableAsItWas)
{
    this->store({{this->addCase("EX", "E"), 2.5}});
    const std::vector<typename TypeParam::Entry> before = this->stored();
    this->addCase("EY", "E");
    const int code = this->open([this](const Form& form) {
        this->add(form, "EY(ST)", "2");
        form.press("Cancel");
    });
    EXPECT_EQ(code, IDCANCEL);
    EXPECT_EQ(this->stored(), before);
}

TYPED_TEST(SeismicFactors, DeletingALoadCaseMeanwhileRemovesItsRow)
{
    this->store({{this->addCase("EX", "E"), 2.5}, {this->addCase("EY", "E"), 3.0}});
    this->open([this](const Form& form) {
        this->deleteCase("EX");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EY(ST)", "3"}));
        EXPECT_THAT(form.items(loadCase), ElementsAre("EX(ST)", "EY(ST)"));
        form.press("OK");
    });
    ASSERT_EQ(this->stored().size(), 1U);
}

TYPED_TEST(SeismicFactors, RenamingALoadCaseMeanwhileRewritesItsRowButNotTheOffers)
{
    this->store({{this->addCase("EX", "E"), 2.5}, {this->addCase("EY", "E"), 3.0}});
    this->open([this](const Form& form) {
        this->renameCase("EX", "EX2");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX2(ST)", "2.5"}, Texts{"EY(ST)", "3"}));
        EXPECT_THAT(form.items(loadCase), ElementsAre("EX(ST)", "EY(ST)"));
    });
}

TYPED_TEST(SeismicFactors, ALoadCaseWithAnotherKeyKeepsItsEntry)
{
    const zel::Key ex = this->addCase("EX", "E");
    this->store({{ex, 2.5}});
    this->open([ex](const Form& form) {
        CDataStld cases;
        ASSERT_NE(cases.Get(ex), 0);
        cases.currentKey = 40;
        ASSERT_NE(cases.Modify(CString("EX")), 0);
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX(ST)", "2.5"}));
        form.press("OK");
    });
    ASSERT_EQ(this->stored().size(), 1U);
    EXPECT_EQ(this->stored()[0].loadCaseKey, 40U);
}

TYPED_TEST(SeismicFactors, ALoadCaseAddedMeanwhileIsOfferedAtTheNextOpening)
{
    this->addCase("EX", "E");
    this->open([this](const Form& form) {
        this->addCase("EY", "E");
        EXPECT_THAT(form.items(loadCase), ElementsAre("EX(ST)"));
    });
    this->open([](const Form& form) { EXPECT_THAT(form.items(loadCase), ElementsAre("EX(ST)", "EY(ST)")); });
}

TYPED_TEST(SeismicFactors, AWriteOfItsTableByAnotherWindowReplacesWhatWasEntered)
{
    const zel::Key ex = this->addCase("EX", "E");
    const zel::Key ey = this->addCase("EY", "E");
    this->open([this, ex, ey](const Form& form) {
        form.set("Vertical Load Factor :", "0.9");
        this->add(form, "EX(ST)", "2");
        this->store({{ey, 3.5}, {ex, 1.5}});
        EXPECT_EQ(form.text("Vertical Load Factor :"), "0.2");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EY(ST)", "3.5"}, Texts{"EX(ST)", "1.5"}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
    });
}

TYPED_TEST(SeismicFactors, NoticesThatTellOfNoChangeLeaveTheFormAsItIs)
{
    this->store({{this->addCase("EX", "E"), 2.5}});
    this->open([this](const Form& form) {
        form.set("Vertical Load Factor :", "0.9");
        this->tellOfNoChange();
        EXPECT_EQ(form.text("Vertical Load Factor :"), "0.9");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"EX(ST)", "2.5"}));
    });
}

TYPED_TEST(SeismicFactors, TheButtonBesideTheLoadCasesPostsTheHostsCommand)
{
    this->open([](const Form& form) { form.press("..."); });
    EXPECT_THAT(this->user.commands, ElementsAre(zel::HeadlessUserInterface::Command{32869, true}));
}

TYPED_TEST(SeismicFactors, TheListTellsWhetherItHoldsANameAndInWhichRow)
{
    this->store({{this->addCase("EX", "E"), 2.5}, {this->addCase("EY", "E"), 3.0}});
    this->open([](const Form& form) {
        auto& dialog = dynamic_cast<typename TypeParam::Dialog&>(form.dialog());
        int row = -1;
        EXPECT_EQ(dialog.CheckLoadCaseName("EY(ST)", row), 0);
        EXPECT_EQ(row, 1);
        EXPECT_NE(dialog.CheckLoadCaseName("EZ(ST)", row), 0);
    });
}

class GeneralSeismicFactors : public DialogTest {};

TEST_F(GeneralSeismicFactors, OpensWithAnEmptyOverStrengthFactorAndLiteralTitles)
{
    run<CDgnGenSeisFactor>([](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Factors for Seismic Design");
        EXPECT_EQ(form.dialog().templateId(), 14283U);
        EXPECT_EQ(form.text(factor), "");
        EXPECT_EQ(form.text("Vertical Force Factor :"), "0.2");
        const auto& columns = form.at<CListCtrl>("list").columns();
        ASSERT_EQ(columns.size(), 2U);
        EXPECT_EQ(columns[0].title, "Load Case");
        EXPECT_EQ(columns[0].width, 85);
        EXPECT_EQ(columns[1].title, "Factor");
        EXPECT_EQ(columns[1].width, 60);
    });
}

TEST_F(GeneralSeismicFactors, OkReadsAndStoresTheVerticalForceFactor)
{
    const int code = run<CDgnGenSeisFactor>([](const Form& form) {
        form.set("Vertical Force Factor :", "x");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
        form.set("Vertical Force Factor :", "0.3");
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    T_SLCF_D record;
    ASSERT_NE(CDataSlcf().Get(record), 0);
    EXPECT_EQ(record.verticalForceFactor, 0.3);
}

TEST_F(GeneralSeismicFactors, AWriteByAnotherWindowShowsTheVerticalForceFactorToo)
{
    run<CDgnGenSeisFactor>([](const Form& form) {
        T_SLCF_D record;
        record.verticalForceFactor = 0.45;
        ASSERT_NE(CDataSlcf().Add(record), 0);
        EXPECT_EQ(form.text("Vertical Force Factor :"), "0.45");
    });
}

class UndergroundSeismicFactors : public DialogTest {};

TEST_F(UndergroundSeismicFactors, OpensWithTheDefaultOverStrengthFactorAndTranslatedTitles)
{
    run<CUnderSeisFactor>([](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Factors for Seismic Design");
        EXPECT_EQ(form.dialog().templateId(), 14112U);
        EXPECT_EQ(form.text(factor), "0.2");
        const auto& columns = form.at<CListCtrl>("list").columns();
        ASSERT_EQ(columns.size(), 2U);
        EXPECT_EQ(columns[0].title, shown("IDS_ZEL_CMD__Load_Case"));
        EXPECT_EQ(columns[1].title, shown("IDS_ZEL_CMD__Factor"));
        EXPECT_THROW((void)form.at("Vertical Force Factor :"), std::runtime_error);
    });
}

TEST_F(UndergroundSeismicFactors, ClearingTheSelectionShowsTheEntryOfNoCaseWithTheFactorAsItWas)
{
    addCase("EX", "E");
    run<CUnderSeisFactor>([](const Form& form) {
        form.set(factor, "7");
        form.select("list", {});
        EXPECT_EQ(form.chosen(loadCase), -1);
        EXPECT_EQ(form.text(factor), "7");
    });
}

}  // namespace
