#include "loadcomb/default_combination_fixture.h"

#include "modeldb/full_disk.h"
#include "modeldb/model_fixture.h"

#include <algorithm>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zel::test::DefaultCombinationTest;
using zel::test::Form;
using zel::test::Texts;

constexpr const char* noLoadCase = "IDS_QV_CMD__ADDD__No_Existing_Load_Case_";
constexpr const char* noSuchCode = "IDS_ZEL_CMD__Not_Existed_Genernation_Code____";
constexpr const char* noPairs = "IDS_ZEL_CMD__Not_Existed_Orthogonal_Case____";

class DefaultCombinationOk : public DefaultCombinationTest {
protected:
    static bool someFactor(const std::vector<T_LCOM_D>& records, zel::Key key, double wanted)
    {
        return std::ranges::any_of(records, [=](const T_LCOM_D& record) {
            return std::ranges::any_of(record.items, [=](const T_LCOM_ITEM& item) { return item.key == key && item.factor == wanted; });
        });
    }

    /// The rows that a press of OK after `use` stores, without the model's own earlier ones.
    std::vector<T_LCOM_D> generated(const std::function<void(const Form&)>& use)
    {
        EXPECT_EQ(open([&](const Form& form) {
            form.press("Replace");
            use(form);
            form.press("OK");
        }), IDOK);
        return combinations();
    }
};

TEST_F(DefaultCombinationOk, GeneratesStoresAndCloses)
{
    addCases();
    EXPECT_EQ(open([](const Form& form) { form.press("OK"); }), IDOK);
    ASSERT_FALSE(combinations().empty());
    EXPECT_EQ(combinations()[0].name, "gLCB1  ");
    EXPECT_EQ(combinations()[0].description, "1.0D + 1.0L");
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(DefaultCombinationOk, AddKeepsTheCombinationsOfTheKindAndReplaceDoesNot)
{
    addCases();
    open([](const Form& form) { form.press("OK"); });
    const std::size_t once = combinations().size();
    open([](const Form& form) { form.press("OK"); });
    EXPECT_THAT(combinations(), SizeIs(2 * once));
    open([](const Form& form) {
        form.press("Replace");
        form.press("OK");
    });
    EXPECT_THAT(combinations(), SizeIs(once));
}

TEST_F(DefaultCombinationOk, HandsTheScaleUpsAndPartnersToTheGenerator)
{
    addCases();
    EXPECT_FALSE(someFactor(generated([](const Form&) {}), ex, 1.43 * 1.25));
    const std::vector<T_LCOM_D> records = generated([](const Form& form) {
        add(form, "EX", "1.25");
        addPair(form, "EY", "2", "EZ");
    });
    EXPECT_TRUE(someFactor(records, ex, 1.43 * 1.25));
    EXPECT_TRUE(std::ranges::any_of(records, [this](const T_LCOM_D& record) {
        const auto has = [&record](zel::Key key) { return std::ranges::find(record.items, key, &T_LCOM_ITEM::key) != record.items.end(); };
        return has(ey) && has(ez);
    })) << "the eccentric partner stands beside its case";
}

TEST_F(DefaultCombinationOk, HandsTypeAndOrthogonalEffectToTheGenerator)
{
    addCases();
    ASSERT_NE(CDataLcoe().Add({{{ex, ey}}}), 0);
    T_SLCF_D factors;
    factors.shortPeriodCoefficient = 0.5;
    factors.verticalForceFactor = 0.3;
    factors.overStrengthFactors = {{ex, 2.5}, {ey, 2.5}};
    ASSERT_NE(CDataSlcf().Add(factors), 0);
    const auto of = [this](const char* type, bool both) {
        return generated([=](const Form& form) {
            form.set(code, "KDS 41 20 : 2022");
            form.press(type);
            form.tick(orthogonal, both);
        });
    };
    const std::vector<T_LCOM_D> strength = of("Strength", false);
    EXPECT_TRUE(of("for Special Seismic Load", false) != strength);
    EXPECT_TRUE(of("for Vertical Seismic Load", false) != strength);
    const std::vector<T_LCOM_D> both = of("Strength", true);
    EXPECT_TRUE(std::ranges::any_of(both, [this](const T_LCOM_D& record) {
        return std::ranges::count_if(record.items, [this](const T_LCOM_ITEM& item) { return item.key == ex || item.key == ey; }) == 2;
    }));
}

TEST_F(DefaultCombinationOk, HandsAlphaHOnlyWhileVerticalPressureIsConsidered)
{
    addCases();
    addCase("HH", "EH");
    addCase("VV", "EV");
    const auto of = [this](bool considered) {
        return generated([considered](const Form& form) {
            form.set(code, "KBC-USD09");
            form.tick(pressure, true);
            form.set(alphaH, "0.9");
            form.tick(pressure, considered);
        });
    };
    const std::vector<T_LCOM_D> considered = of(true);
    EXPECT_TRUE(considered != of(false));
    EXPECT_TRUE(of(false) == generated([](const Form& form) { form.set(code, "KBC-USD09"); }));
}

TEST_F(DefaultCombinationOk, TheLoadCodeReachesNoTable)
{
    addCases();
    const std::vector<T_LCOM_D> first = generated([](const Form& form) { form.set(code, "KDS 41 20 : 2022"); });
    const std::vector<T_LCOM_D> second = generated([](const Form& form) {
        form.set(code, "KDS 41 20 : 2022");
        form.at<CComboBox>("loadCode").SetCurSel(1);
    });
    EXPECT_TRUE(first == second);
}

TEST_F(DefaultCombinationOk, AnAlphaHThatIsNoNumberLeavesItOpenInSilence)
{
    addCases();
    EXPECT_EQ(open([](const Form& form) {
        form.set(code, "KBC-USD09");
        form.tick(pressure, true);
        form.set(alphaH, "high");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
    }), IDCANCEL);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(combinations(), IsEmpty());
}

TEST_F(DefaultCombinationOk, RemembersTheScaleUpsInTheSequenceOfTheLoadCases)
{
    addCases();
    ASSERT_NE(CDataStld().ChangeSequence({ez}, dl), 0);
    open([](const Form& form) {
        add(form, "EX", "2");
        add(form, "EZ", "4");
        add(form, "EY", "3");
        form.press("OK");
    });
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ez, 4.0, 0}, T_SURS_SF{ex, 2.0, 0}, T_SURS_SF{ey, 3.0, 0}));
}

TEST_F(DefaultCombinationOk, AnEmptyListDoesNotClearWhatIsRemembered)
{
    addCases();
    store({{ex, 2.0, 0}});
    EXPECT_EQ(open([](const Form& form) {
        form.select("list", {0});
        form.press("del");
        form.press("OK");
    }), IDOK);
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ex, 2.0, 0}));
}

TEST_F(DefaultCombinationOk, ScaleUpsAndCombinationsAreOneStepToUndo)
{
    addCases();
    open([](const Form& form) { form.press("OK"); });
    const std::vector<T_LCOM_D> before = combinations();
    open([](const Form& form) {
        add(form, "EX", "2");
        form.press("Replace");
        form.press("OK");
    });
    EXPECT_TRUE(combinations() != before);
    EXPECT_EQ(model->undoName(), "Generate load combinations of \"AIK-USD94\"");
    ASSERT_NE(model->Undo(), 0);
    EXPECT_TRUE(combinations() == before);
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(DefaultCombinationOk, ACodeThatIsNoneOfConcreteIsRefusedBeforeAnythingIsWritten)
{
    addCases();
    for (const int kind : {2, 5}) {
        EXPECT_EQ(open([](const Form& form) {
            add(form, "EX", "2");
            form.press("OK");
            EXPECT_FALSE(form.dialog().hasEnded());
            EXPECT_THAT(form.rows(), SizeIs(1));
        }, kind), IDCANCEL);
        EXPECT_THAT(boxes(), ElementsAre(noSuchCode)) << kind;
    }
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(DefaultCombinationOk, AKindWithoutTablesIsAnsweredByTheGenerator)
{
    addCases();
    for (const int kind : {3, 4}) {
        EXPECT_EQ(open([](const Form& form) {
            form.press("OK");
            EXPECT_FALSE(form.dialog().hasEnded());
        }, kind), IDCANCEL);
        for (const CString& key : boxes())
            EXPECT_EQ(key, noLoadCase) << kind;
        EXPECT_THAT(combinations(kind), IsEmpty());
    }
}

TEST_F(DefaultCombinationOk, TheOrthogonalEffectWithoutPairsIsRefusedAfterTheScaleUpsAreRemembered)
{
    addCases();
    const auto press = [this](const Form& form) {
        form.set(code, "KBC-USD16");
        form.tick(orthogonal, true);
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
        EXPECT_THAT(boxes(), ElementsAre(noPairs));
    };
    open([&](const Form& form) {
        add(form, "EX", "2");
        press(form);
        EXPECT_THAT(form.rows(), SizeIs(1)) << "the form stays as it was";
    });
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ex, 2.0, 0}));
    ASSERT_NE(CDataLcoe().Add(T_LCOE_D()), 0);
    open(press);
    EXPECT_THAT(combinations(), IsEmpty());
}

TEST_F(DefaultCombinationOk, ARunWithoutRowsLeavesItOpenWithAnEmptyList)
{
    ex = addCase("EX", "E");
    EXPECT_EQ(open([this](const Form& form) {
        add(form, "EX", "2");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
        EXPECT_THAT(boxes(), ElementsAre(noLoadCase));
        EXPECT_THAT(form.rows(), IsEmpty()) << "the scale-ups are gone, and that shows";
    }), IDCANCEL);
    EXPECT_THAT(stored(), ElementsAre(T_SURS_SF{ex, 2.0, 0}));
}

TEST_F(DefaultCombinationOk, ReplaceDeletesThoughTheRunGivesNoRows)
{
    addCase("EX", "E");
    T_LCOM_D record;
    record.name = "mine";
    ASSERT_NE(CDataLcom().Add(1, record), 0);
    open([](const Form& form) {
        form.press("Replace");
        form.press("OK");
    });
    EXPECT_THAT(combinations(), IsEmpty());
}

TEST_F(DefaultCombinationOk, StopsWithoutAMessageOfItsOwnWhenTheModelDoesNotTakeTheScaleUps)
{
    const zel::test::Folder folder;
    model.reset();
    model = zel::ModelDocument::create(folder / "model.qvx");
    addCases();
    open([this](const Form& form) {
        add(form, "EX", "2");
        {
            const zel::test::FullDisk full(1);
            form.press("OK");
        }
        EXPECT_FALSE(form.dialog().hasEnded());
        EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_FILE_WRITE")) << "the model has told it";
        EXPECT_THAT(form.rows(), SizeIs(1));
    });
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_THAT(combinations(), IsEmpty());
}

TEST_F(DefaultCombinationOk, OnlyThreeCodesKeepTheHorizontalPressure)
{
    open([](const Form& form) {
        auto& horizontal = form.at<CCheckBox>("horizontalPressure");
        for (const char* name : {"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KBC-USD09", "AIK-USD94"}) {
            form.set(code, name);
            horizontal.SetCheck(true);
            form.press("OK");
            EXPECT_EQ(horizontal.GetCheck(), CString(name) != "KBC-USD09" && CString(name) != "AIK-USD94") << name;
        }
    });
    EXPECT_THAT(boxes(), Each(CString(noLoadCase)));
}

TEST_F(DefaultCombinationOk, CancelWritesNothing)
{
    addCases();
    const CString before = model->undoName();
    EXPECT_EQ(open([](const Form& form) {
        add(form, "EX", "2");
        form.press("Cancel");
    }), IDCANCEL);
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_EQ(model->undoName(), before);
}

}  // namespace
