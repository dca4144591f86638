#include "loadcomb/default_combination_fixture.h"

#include "contract/design_codes.h"

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DefaultCombinationTest;
using zel::test::Form;
using zel::test::Texts;

constexpr const char* windSets = "Set Load Cases for Wind Direction...";
constexpr const char* orthogonalSets = "Set Load Cases for Orthogonal Effect...";
constexpr const char* seismicFactors = "Factors for Seismic Design...";
constexpr const char* undergroundSets = "Set Load Cases for Underground Load...";
constexpr const char* types[] = {"Strength", "for Special Seismic Load", "for Vertical Seismic Load", "for Underground Load", "for Underground Load (Special)"};

class DefaultCombination : public DefaultCombinationTest {
protected:
    static bool usable(const Form& form, const char* name) { return form.visible(name) && form.enabled(name); }
    static bool gone(const Form& form, const char* name) { return !form.visible(name) && !form.enabled(name); }
    static bool isChosen(const Form& form, const char* radio) { return form.at<CRadioButton>(radio).GetCheck(); }
};

TEST_F(DefaultCombination, ShowsItsFieldsInTheOrderOfThePage)
{
    addCases();
    open([](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Select Default Load Combination");
        EXPECT_EQ(form.dialog().templateId(), 31002U);
        EXPECT_EQ(form.dialog().ClassName(), "CCMAutoLoadCombDlg");
        Texts labels;
        for (const zel::Control* control : form.dialog().controls())
            labels.push_back(control->label());
        EXPECT_THAT(labels, ElementsAre("Add", "Replace", "Design Code :", "Load Code :",    //
                                        "Scale Up Factor :", "RS Load Case :", "Consider Accidental Eccentricity", "ES Load Case :", "", "Add", "Modify", "Delete",
                                        windSets, orthogonal, orthogonalSets,    //
                                        types[0], types[1], types[2], types[3], types[4], seismicFactors, undergroundSets,    //
                                        pressure, "Alpha_H :", "...",    //
                                        "Consider Horizontal Pressure Load(Earth)", "Load Factor For Strength :", "Load Factor For Serviceability :", "OK", "Cancel"));
        const auto& columns = form.at<CListCtrl>("list").columns();
        ASSERT_EQ(columns.size(), 3U);
        EXPECT_EQ(columns[0].title, shown("IDS_ZEL_CMD__Factor"));
        EXPECT_EQ(columns[1].title, shown("IDS_ZEL_CMD_RS_Load_Name"));
        EXPECT_EQ(columns[2].title, shown("IDS_ZEL_CMD_ES_Load_Name"));
    });
}

TEST_F(DefaultCombination, OpensWithItsDefaults)
{
    addCases();
    open([](const Form& form) {
        EXPECT_TRUE(isChosen(form, "modeAdd"));
        EXPECT_EQ(form.text(code), "AIK-USD94");
        EXPECT_EQ(form.text(factor), "1");
        EXPECT_EQ(form.text(response), "EX");
        EXPECT_EQ(form.text(eccentric), "EX");
        EXPECT_FALSE(form.at<CCheckBox>(eccentricity).GetCheck());
        EXPECT_THAT(form.rows(), IsEmpty());
        EXPECT_FALSE(form.at<CCheckBox>(orthogonal).GetCheck());
        EXPECT_TRUE(isChosen(form, "Strength"));
        EXPECT_FALSE(form.at<CCheckBox>(pressure).GetCheck());
        EXPECT_EQ(form.text(alphaH), "1");
        EXPECT_FALSE(form.at<CCheckBox>("horizontalPressure").GetCheck());
        EXPECT_THAT(form.items("strengthFactor"), ElementsAre("1.6", "0.9", "0"));
        EXPECT_THAT(form.items("serviceFactor"), ElementsAre("1.0", "0.6", "0"));
        EXPECT_EQ(form.chosen("strengthFactor"), 0);
        EXPECT_EQ(form.chosen("serviceFactor"), 0);
        EXPECT_THAT(form.items("loadCode"), ElementsAre("KDS 41 10 15:2021", "KDS 41 10 15:2019"));
        EXPECT_EQ(form.chosen("loadCode"), 0);
        EXPECT_EQ(form.at<CComboBox>("loadCode").GetItemData(1), 1U);
    });
}

TEST_F(DefaultCombination, EachKindOffersItsCodes)
{
    CArray<CString, CString&> general;
    CArray<CString, CString&> concrete;
    CDBLib::GetConLcomCodeNameList(general);
    CDBLib::GetConCodeNameList(concrete);
    ASSERT_FALSE(general.empty());
    const std::vector<Texts> offered{
        general,
        {"AIK-ASD83", "AIK-LSD97", "AISC-ASD89", "AISC-LRFD93"},
        concrete,
        {"KCI-USD99", "AIK-USD94", "ACI318-89"},    // three, and no more of the six that the kind knows
        {"SSRC79", "AIK-SRC2K"},
    };
    for (int kind = 1; kind <= 5; ++kind) {
        open([&](const Form& form) {
            EXPECT_EQ(form.items(code), offered[static_cast<std::size_t>(kind) - 1]) << kind;
            EXPECT_EQ(form.chosen(code), 0) << kind;
        }, kind);
    }
}

TEST_F(DefaultCombination, TheLoadCaseListsHoldTheCasesOfTypeEAlone)
{
    addCase("DL", "D");
    addCase("E2", "E");
    addCase("EEP", "EEP");
    addCase("EH", "EH");
    addCase("E1", "E");
    open([](const Form& form) {
        EXPECT_THAT(form.items(response), ElementsAre("E2", "E1"));
        EXPECT_THAT(form.items(eccentric), ElementsAre("E2", "E1"));
        EXPECT_EQ(form.chosen(response), 0);
        EXPECT_EQ(form.chosen(eccentric), 0);
    });
}

TEST_F(DefaultCombination, TheScaleUpControlsAreEnabledWithoutEarthquakeCasesToo)
{
    addCase("DL", "D");
    open([](const Form& form) {
        EXPECT_THAT(form.items(response), IsEmpty());
        EXPECT_EQ(form.chosen(response), -1);
        for (const char* name : {factor, response, eccentricity, "list", "add", "modify", "del"})
            EXPECT_TRUE(form.enabled(name)) << name;
    });
}

/// What a code shows beside what all show.
struct CodeGroups {
    const char* name;
    bool wind, seismic, underground, verticalPressure;
};

constexpr CodeGroups groupsOfCodes[] = {
    // code               wind   seismic underground vertical pressure
    {"AIK-USD94",         false, false,  false,      false},
    {"KBC-USD16",         true,  true,   false,      false},
    {"KDS 41 30 : 2018",  true,  true,   true,       false},
    {"KDS 41 20 : 2022",  true,  true,   true,       false},
    {"KCI-USD12",         false, true,   false,      true},
    {"KBC-USD09",         false, true,   false,      true},
    {"KBC-USD05",         false, true,   false,      false},
    {"KCI-USD99",         false, false,  false,      false},
    {"KSCE-USD96",        false, false,  false,      false},
    {"ACI318-89",         false, false,  false,      false},
    {"ACI318-95",         false, false,  false,      false},
    {"ACI318-99",         false, false,  false,      false},
    {"ACI318-02",         false, false,  false,      false},
    {"BS8110-97",         false, false,  false,      false},
    {"GB50010-02",        false, false,  false,      false},
    {"CSA-A23.3-94",      false, false,  false,      false},
};

TEST_F(DefaultCombination, ACodeShowsTheGroupsThatItReads)
{
    open([](const Form& form) {
        for (const CodeGroups& expected : groupsOfCodes) {
            form.set(code, expected.name);
            const auto shows = [&](const char* control, bool shown) {
                EXPECT_EQ(form.visible(control), shown) << expected.name << ", " << control;
                EXPECT_FALSE(!shown && form.enabled(control)) << expected.name << ", " << control;
            };
            shows(windSets, expected.wind);
            shows(orthogonal, expected.seismic);
            shows(orthogonalSets, expected.seismic);
            shows("Strength", expected.seismic);
            shows("for Special Seismic Load", expected.seismic);
            shows("for Vertical Seismic Load", expected.seismic);
            shows(seismicFactors, expected.seismic);
            shows(pressure, expected.verticalPressure);
            shows(alphaH, expected.verticalPressure);
            shows("...", expected.verticalPressure);
            for (const char* control : {"for Underground Load", "for Underground Load (Special)", undergroundSets})
                EXPECT_EQ(form.visible(control), expected.underground) << expected.name << ", " << control;
        }
    });
}

TEST_F(DefaultCombination, LoadCodeAndHorizontalPressureAreHiddenForEveryCode)
{
    open([](const Form& form) {
        for (const CodeGroups& each : groupsOfCodes) {
            form.set(code, each.name);
            EXPECT_FALSE(form.visible("loadCode")) << each.name;
            for (const char* control : {"horizontalPressure", "strengthFactor", "serviceFactor"})
                EXPECT_TRUE(gone(form, control)) << each.name << ", " << control;
        }
    });
}

TEST_F(DefaultCombination, AnotherCodeSetsTypeAndOrthogonalEffectBack)
{
    open([](const Form& form) {
        form.set(code, "KBC-USD16");
        form.press("for Special Seismic Load");
        form.tick(orthogonal, true);
        form.set(code, "KDS 41 20 : 2022");
        EXPECT_TRUE(isChosen(form, "Strength"));
        EXPECT_FALSE(isChosen(form, "for Special Seismic Load"));
        EXPECT_FALSE(form.at<CCheckBox>(orthogonal).GetCheck());
        EXPECT_FALSE(form.enabled(orthogonalSets));
    });
}

TEST_F(DefaultCombination, TheTypeSaysWhichSetsAndScaleUpsCount)
{
    open([](const Form& form) {
        form.set(code, "KDS 41 20 : 2022");
        for (int type = 0; type < 5; ++type) {
            form.press(types[type]);
            EXPECT_EQ(usable(form, seismicFactors), type == 1 || type == 2) << types[type];
            EXPECT_EQ(usable(form, undergroundSets), type >= 3) << types[type];
            for (const char* control : {factor, response, eccentricity, "list", "add", "modify", "del"})
                EXPECT_EQ(form.enabled(control), type <= 2) << types[type] << ", " << control;
        }
        form.set(code, "AIK-USD94");
        EXPECT_TRUE(form.enabled(factor)) << "a code without types";
    });
}

TEST_F(DefaultCombination, TheEccentricCaseFollowsItsCheck)
{
    addCases();
    open([](const Form& form) {
        EXPECT_FALSE(form.enabled(eccentric));
        form.tick(eccentricity, true);
        EXPECT_TRUE(form.enabled(eccentric));
        form.tick(eccentricity, false);
        EXPECT_FALSE(form.enabled(eccentric));
    });
}

TEST_F(DefaultCombination, TheOrthogonalSetsFollowTheirCheck)
{
    open([](const Form& form) {
        form.set(code, "KBC-USD05");
        EXPECT_FALSE(form.enabled(orthogonalSets));
        form.tick(orthogonal, true);
        EXPECT_TRUE(form.enabled(orthogonalSets));
    });
}

TEST_F(DefaultCombination, AlphaHFollowsTheCheckOfVerticalPressure)
{
    open([](const Form& form) {
        form.set(code, "KBC-USD09");
        EXPECT_FALSE(form.enabled(alphaH));
        EXPECT_FALSE(form.enabled("..."));
        form.tick(pressure, true);
        EXPECT_TRUE(form.enabled(alphaH));
        EXPECT_TRUE(form.enabled("..."));
    });
}

TEST_F(DefaultCombination, ItsButtonsOpenTheSetsModally)
{
    open([this](const Form& form) {
        form.set(code, "KDS 41 20 : 2022");
        form.tick(orthogonal, true);
        const std::vector<std::pair<const char*, const char*>> buttons{{windSets, "CLoadCaseWindDirectDlg"}, {orthogonalSets, "CCmdSetOrthoLCDlg"}};
        const auto opens = [&](const char* button, const char* dialogClass) {
            user.inModal([&](CDialog& dialog) {
                EXPECT_EQ(dialog.ClassName(), dialogClass);
                EXPECT_TRUE(dialog.isModal());
                EXPECT_EQ(dialog.GetParent(), &form.dialog());
            });
            form.press(button);
        };
        for (const auto& [button, dialogClass] : buttons)
            opens(button, dialogClass);
        form.press("for Special Seismic Load");
        opens(seismicFactors, "CDgnGenSeisFactor");
        form.press("for Underground Load");
        opens(undergroundSets, "CLoadCaseUndergroundDlg");
        EXPECT_FALSE(form.dialog().hasEnded());
    });
}

/// The dialog that computes Alpha_H, behind its button.
class CalculationOfAlphaH : public DefaultCombinationTest {
protected:
    /// What the field shows when `use` has used the calculation.
    double shownAfter(const std::function<void(const Form&)>& use)
    {
        double value = 0.0;
        open([&](const Form& form) {
            form.set(code, "KBC-USD09");
            form.tick(pressure, true);
            form.set(alphaH, "0.9");
            user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
            form.press("...");
            value = form.at<CEditUnit>(alphaH).GetEditValue();
        });
        return value;
    }

    double ofHeight(const char* height)
    {
        return shownAfter([height](const Form& form) {
            form.press("h > 2.0m");
            form.set("h :", height);
            form.press("OK");
        });
    }
};

TEST_F(CalculationOfAlphaH, OpensOnLowEarthWithTheHeightDisabled)
{
    shownAfter([](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Calculation of Alpha_H");
        EXPECT_EQ(form.dialog().templateId(), 31003U);
        EXPECT_EQ(form.dialog().groups().front()->GetWindowText(), shown("IDS_ZEL_CMD_LOADCOMB_AUTO_ALPHAH_FRAME"));
        EXPECT_TRUE(form.at<CRadioButton>("low").GetCheck());
        EXPECT_EQ(form.text("low"), shown("IDS_ZEL_CMD_LOADCOMB_AUTO_ALPHAH_H1"));
        EXPECT_EQ(form.text("high"), "h > 2.0m");
        EXPECT_EQ(form.text("formula"), shown("IDS_ZEL_CMD_LOADCOMB_AUTO_ALPHAH_H2"));
        EXPECT_EQ(form.text("h :"), "2");
        EXPECT_FALSE(form.enabled("h :"));
        form.press("h > 2.0m");
        EXPECT_TRUE(form.enabled("h :"));
    });
}

TEST_F(CalculationOfAlphaH, LowEarthGivesOne)
{
    EXPECT_EQ(shownAfter([](const Form& form) {
        form.press("high");
        form.set("h :", "7");
        form.press("low");
        form.press("OK");
    }), 1.0);
}

TEST_F(CalculationOfAlphaH, HighEarthGivesTheFormulaDownToItsFloor)
{
    EXPECT_EQ(ofHeight("2"), 1.0);
    EXPECT_EQ(ofHeight("4"), 1.05 - 0.025 * 4.0);
    EXPECT_EQ(ofHeight("7.0"), 0.875);
    EXPECT_EQ(ofHeight("8"), 0.875);
}

TEST_F(CalculationOfAlphaH, CancelKeepsTheValue)
{
    EXPECT_EQ(shownAfter([](const Form& form) {
        form.press("high");
        form.set("h :", "5");
        form.press("Cancel");
    }), 0.9);
}

TEST_F(CalculationOfAlphaH, AHeightThatIsNoNumberLeavesItOpenInSilence)
{
    EXPECT_EQ(shownAfter([](const Form& form) {
        form.press("high");
        form.set("h :", "deep");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
    }), 0.9);
    EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace
