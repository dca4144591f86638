#include "load/dialog_test.h"

#include "contract/tables/load_set_tables.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DialogTest;
using zel::test::Form;
using zel::test::Texts;

constexpr int lowRise = 0;
constexpr int highRise = 1;

class WindSets : public DialogTest {
protected:
    WindSets() : none(shown("IDS_ZEL_CMD__NONE")) {}

    int open(const std::function<void(const Form&)>& use) { return run<CLoadCaseWindDirectDlg>(use); }

    void addWindCases()
    {
        wx = addCase("WX", "W");
        wy = addCase("WY", "W");
        wax = addCase("WAX", "WA");
        wtx = addCase("WTX", "WT");
    }

    static void store(const std::vector<T_LCWD_BASE>& sets, int torsionDirection = 0) { ASSERT_NE(CDataLcwd().Add(T_LCWD_D{0, torsionDirection, sets}), 0); }

    static T_LCWD_D stored()
    {
        T_LCWD_D record;
        EXPECT_NE(CDataLcwd().Get(record), 0);
        return record;
    }

    static T_LCWD_BASE set(zel::Key along, zel::Key across, zel::Key torsion, int buildingType = highRise)
    {
        return {0, buildingType, along, across, torsion, 2.2, 0.8};
    }

    CString none;
    zel::Key wx = 0, wy = 0, wax = 0, wtx = 0;
};

TEST_F(WindSets, AnEmptyModelOpensWithoutCasesAndAddSaysThatNoneWasSelected)
{
    open([this](const Form& form) {
        EXPECT_EQ(form.dialog().GetWindowText(), "Set Load Cases for Wind Direction");
        EXPECT_EQ(form.dialog().templateId(), 14110U);
        EXPECT_THAT(form.items("Along Wind Load Case :"), IsEmpty());
        EXPECT_THAT(form.items("Across Wind Load Case :"), ElementsAre(none));
        EXPECT_EQ(form.chosen("Across Wind Load Case :"), 0);
        EXPECT_THAT(form.items("Torsional Wind Load Case :"), ElementsAre(none));
        EXPECT_EQ(form.chosen("Torsional Wind Load Case :"), 0);
        form.press("Add");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Loadcase_was_not_selected_"));
}

TEST_F(WindSets, ListsHoldTheirKindsAndOpenOnTheSecondAlongCaseAndTheFirstOfTheOthers)
{
    addWindCases();
    addCase("WAY", "WA");
    addCase("DL", "D");
    open([this](const Form& form) {
        EXPECT_THAT(form.items("Along Wind Load Case :"), ElementsAre("WX", "WY"));
        EXPECT_EQ(form.text("Along Wind Load Case :"), "WY");
        EXPECT_THAT(form.items("Across Wind Load Case :"), ElementsAre(none, "WAX", "WAY"));
        EXPECT_EQ(form.text("Across Wind Load Case :"), "WAX");
        EXPECT_THAT(form.items("Torsional Wind Load Case :"), ElementsAre(none, "WTX"));
        EXPECT_EQ(form.text("Torsional Wind Load Case :"), "WTX");
        EXPECT_EQ(form.text("GD :"), "2.2");
        EXPECT_EQ(form.text("k :"), "0.8");
        EXPECT_TRUE(form.at<CRadioButton>("High Rise Building").GetCheck());
        EXPECT_EQ(form.chosen("Torsion Wind Direction :"), 0);
    });
}

TEST_F(WindSets, WithOneAlongCaseItIsTheOneThatIsOffered)
{
    addCase("WX", "W");
    open([](const Form& form) { EXPECT_EQ(form.text("Along Wind Load Case :"), "WX"); });
}

TEST_F(WindSets, ColumnsBearTheirTitlesAndWidths)
{
    open([](const Form& form) {
        const char* keys[] = {"IDS_ZEL_CMD_Orthgonal_Effect_Group_No", "IDS_ZEL_CMD_WIND_DIRECTION_ALONG",     "IDS_ZEL_CMD_WIND_DIRECTION_ACROSS",
                              "IDS_ZEL_CMD_WIND_DIRECTION_TORSION",    "IDS_ZEL_CMD_WIND_DIRECTION_FACTOR_GD", "IDS_ZEL_CMD_WIND_DIRECTION_FACTOR_K"};
        const int widths[] = {70, 60, 60, 60, 40, 40};
        const auto& columns = form.at<CListCtrl>("list").columns();
        ASSERT_EQ(columns.size(), 6U);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            EXPECT_EQ(columns[i].title, shown(keys[i]));
            EXPECT_EQ(columns[i].width, widths[i]);
        }
        EXPECT_THAT(
            form.items("Torsion Wind Direction :"),
            ElementsAre(shown("IDS_ZEL_CMD_WIND_DIRECTION_PLUS_MINUS"), shown("IDS_ZEL_CMD_WIND_DIRECTION_PLUS"), shown("IDS_ZEL_CMD_WIND_DIRECTION_MINUS")));
    });
}

TEST_F(WindSets, ARowShowsItsNumberCasesAndFactorsAndDashesInALowBuilding)
{
    addWindCases();
    store({set(wx, wax, wtx), set(wy, 0, 0, lowRise), set(wy, 99, 0)}, 2);
    open([this](const Form& form) {
        EXPECT_THAT(
            form.rows(),
            ElementsAre(Texts{"1", "WX", "WAX", "WTX", "2.2", "0.8"}, Texts{"2", "WY", none, "-", "-", "-"}, Texts{"3", "WY", none, none, "2.2", "0.8"}));
        EXPECT_THAT(form.selected(), ElementsAre(0));
        EXPECT_EQ(form.chosen("Torsion Wind Direction :"), 2);
    });
}

TEST_F(WindSets, OpensWithTheFactorsAndTheBuildingOfTheFirstSetButNotItsCases)
{
    addWindCases();
    T_LCWD_BASE first = set(wx, 0, 0, lowRise);
    first.gd = 1.9;
    first.k = 0.6;
    store({first});
    open([](const Form& form) {
        EXPECT_EQ(form.text("GD :"), "1.9");
        EXPECT_EQ(form.text("k :"), "0.6");
        EXPECT_TRUE(form.at<CRadioButton>("Middle Low Rise Building").GetCheck());
        EXPECT_EQ(form.text("Along Wind Load Case :"), "WY");
        EXPECT_EQ(form.text("Across Wind Load Case :"), "WAX");
        EXPECT_FALSE(form.enabled("GD :"));
    });
}

TEST_F(WindSets, TorsionAndFactorsAreEnabledForHighBuildingsAlone)
{
    addWindCases();
    open([](const Form& form) {
        for (const bool high : {false, true, false}) {
            form.tick(high ? "High Rise Building" : "Middle Low Rise Building", true);
            EXPECT_EQ(form.enabled("Torsional Wind Load Case :"), high);
            EXPECT_EQ(form.enabled("GD :"), high);
            EXPECT_EQ(form.enabled("k :"), high);
            EXPECT_TRUE(form.enabled("Across Wind Load Case :"));
        }
    });
}

TEST_F(WindSets, AddAppendsTheSetAndASetOfALowBuildingHasNoTorsion)
{
    addWindCases();
    const int code = open([](const Form& form) {
        form.press("Add");
        form.tick("Middle Low Rise Building", true);
        form.press("Add");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "WY", "WAX", "WTX", "2.2", "0.8"}, Texts{"2", "WY", "WAX", "-", "-", "-"}));
        EXPECT_THAT(form.selected(), ElementsAre(1));
        form.choose("Torsion Wind Direction :", 1);
        form.press("OK");
    });
    EXPECT_EQ(code, IDOK);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(stored(), (T_LCWD_D{0, 1, {set(wy, wax, wtx), set(wy, wax, 0, lowRise)}}));
}

TEST_F(WindSets, FactorsMustLieInTheirRangesWhateverTheBuilding)
{
    addWindCases();
    struct Case {
        const char* gd;
        const char* k;
        const char* key;  ///< of the message; null: taken
    };
    constexpr const char* badGd = "IDS_ZEL_CMD_ERROR_CHK_WIND_LOAD_DIRECTION_GD";
    constexpr const char* badK = "IDS_ZEL_CMD_ERROR_CHK_WIND_LOAD_DIRECTION_K";
    const Case cases[] = {
        {"0", "0.8", badGd},    {"-1", "0.8", badGd}, {"abc", "0.8", badGd},   {"0", "0.9", badGd},      {"2.2", "0.801", badK},
        {"2.2", "0.549", badK}, {"2.2", "", badK},    {"2.2", "0.8", nullptr}, {"2.2", "0.55", nullptr},
    };
    open([&](const Form& form) {
        for (const char* building : {"High Rise Building", "Middle Low Rise Building"}) {
            for (const Case& each : cases) {
                SCOPED_TRACE(CString(building) + ", GD " + each.gd + ", k " + each.k);
                form.tick("High Rise Building", true);
                form.set("GD :", each.gd);
                form.set("k :", each.k);
                form.tick(building, true);
                form.press("Add");
                EXPECT_EQ(boxes(), each.key != nullptr ? std::vector<CString>{each.key} : std::vector<CString>{});
            }
        }
        EXPECT_EQ(form.rows().size(), 4U);
    });
}

TEST_F(WindSets, ASetWithoutAnyCaseIsRefused)
{
    addCase("W1", "W");
    open([this](const Form& form) {
        // The case is deleted from the list only at the notice; a case of another name stands in the way no more.
        form.set("Across Wind Load Case :", none.c_str());
        form.set("Torsional Wind Load Case :", none.c_str());
        auto& along = form.at<CComboBox>("Along Wind Load Case :");
        along.ResetContent();
        along.AddString("W9");
        along.SetCurSel(0);
        form.press("Add");
        EXPECT_THAT(form.rows(), IsEmpty());
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__Invalid_loadcase_key_"));
}

TEST_F(WindSets, ASetWithOnlyAnAcrossCaseIsStoredUnlessALoadCaseIsChangedMeanwhile)
{
    addWindCases();
    store({set(0, wax, 0)});
    EXPECT_EQ(open([](const Form& form) { form.press("OK"); }), IDOK);
    EXPECT_EQ(stored().sets.size(), 1U);
    open([this](const Form& form) {
        addCase("DL", "D");
        EXPECT_EQ(form.rows().size(), 1U);
        renameCase("DL", "DL2");
        EXPECT_THAT(form.rows(), IsEmpty());
    });
}

TEST_F(WindSets, AddRefusesTheSameSetAndFactorsWithinATinyDistanceAreTheSame)
{
    addWindCases();
    open([this](const Form& form) {
        form.press("Add");
        form.press("Add");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_"));
        form.set("GD :", "2.2000000009");
        form.press("Add");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_"));
        form.set("GD :", "2.20000001");
        form.press("Add");
        EXPECT_THAT(boxes(), IsEmpty());
        EXPECT_EQ(form.rows().size(), 2U);
    });
}

TEST_F(WindSets, SetsThatDifferInTheBuildingAloneCanBeAddedButNotReachedByModify)
{
    addWindCases();
    open([this](const Form& form) {
        form.set("Torsional Wind Load Case :", none.c_str());
        form.press("Add");
        form.tick("Middle Low Rise Building", true);
        form.press("Add");
        EXPECT_THAT(boxes(), IsEmpty());
        ASSERT_EQ(form.rows().size(), 2U);

        form.set("Along Wind Load Case :", "WX");
        form.press("Modify");
        EXPECT_THAT(boxes(), IsEmpty());
        form.set("Along Wind Load Case :", "WY");
        form.press("Modify");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__An_identical_load_group_already_exists_"));
        EXPECT_THAT(form.row(1), ElementsAre("2", "WX", "WAX", "-", "-", "-"));
    });
}

TEST_F(WindSets, ModifyAndDeleteWithoutARowHaveMessagesOfTheirOwn)
{
    addWindCases();
    open([](const Form& form) {
        form.press("Modify");
        form.press("Delete");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__ADDD__No_selected_item_in_the_list__nCh", "IDS_ZEL_CMD__ADDD__Error___Not_Selected_Data____"));
}

TEST_F(WindSets, DeleteNumbersTheRowsAnewAndSelectsTheRowAtThatPlaceIfThereIsOne)
{
    addWindCases();
    store({set(wx, 0, 0), set(wy, 0, 0), set(wx, wax, 0)});
    open([](const Form& form) {
        form.select("list", {1});
        form.press("Delete");
        EXPECT_EQ(form.row(1)[0], "2");
        EXPECT_THAT(form.selected(), ElementsAre(1));
        form.press("Delete");
        EXPECT_THAT(form.selected(), IsEmpty());
        EXPECT_EQ(form.rows().size(), 1U);
    });
}

TEST_F(WindSets, SelectingARowShowsItInTheForm)
{
    addWindCases();
    T_LCWD_BASE second = set(wx, 0, 0, lowRise);
    second.gd = 1.75;
    second.k = 0.7;
    store({set(wy, wax, wtx), second});
    open([this](const Form& form) {
        form.select("list", {1});
        EXPECT_EQ(form.text("Along Wind Load Case :"), "WX");
        EXPECT_EQ(form.text("Across Wind Load Case :"), none);
        EXPECT_EQ(form.text("Torsional Wind Load Case :"), none);
        EXPECT_EQ(form.text("GD :"), "1.75");
        EXPECT_EQ(form.text("k :"), "0.7");
        EXPECT_FALSE(form.enabled("GD :"));
        form.select("list", {0});
        EXPECT_EQ(form.text("Along Wind Load Case :"), "WY");
        EXPECT_EQ(form.text("Torsional Wind Load Case :"), "WTX");
        EXPECT_TRUE(form.enabled("GD :"));
    });
}

TEST_F(WindSets, CancelWritesNothing)
{
    addWindCases();
    EXPECT_EQ(open([](const Form& form) {
                  form.press("Add");
                  form.press("Cancel");
              }),
              IDCANCEL);
    T_LCWD_D record;
    EXPECT_EQ(CDataLcwd().Get(record), 0);
}

TEST_F(WindSets, DeletingTheAlongCaseRemovesTheSetWithoutAnyQuestion)
{
    addWindCases();
    store({set(wx, wax, wtx), set(wy, wax, wtx)});
    open([this](const Form& form) {
        deleteCase("WX");
        ASSERT_EQ(form.rows().size(), 1U);
        EXPECT_EQ(form.row(0)[1], "WY");
        EXPECT_THAT(form.items("Along Wind Load Case :"), ElementsAre("WY"));
        form.press("OK");
    });
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(stored().sets, ElementsAre(set(wy, wax, wtx)));
}

TEST_F(WindSets, DeletingTheAcrossOrTorsionCaseClearsItAndKeepsTheSet)
{
    addWindCases();
    store({set(wx, wax, wtx)});
    open([this](const Form& form) {
        deleteCase("WAX");
        EXPECT_THAT(form.row(0), ElementsAre("1", "WX", none, "WTX", "2.2", "0.8"));
        deleteCase("WTX");
        EXPECT_THAT(form.row(0), ElementsAre("1", "WX", none, none, "2.2", "0.8"));
        form.press("OK");
    });
    EXPECT_THAT(stored().sets, ElementsAre(set(wx, 0, 0)));
}

TEST_F(WindSets, ChangingTheTypeOfAnAcrossCaseClearsItAndKeepsTheSet)
{
    addWindCases();
    store({set(wx, wax, wtx)});
    open([this](const Form& form) {
        changeCase("WAX", [](T_STLD_D& record) { record.type = "W"; });
        EXPECT_THAT(form.row(0), ElementsAre("1", "WX", none, "WTX", "2.2", "0.8"));
        EXPECT_THAT(form.items("Along Wind Load Case :"), ElementsAre("WX", "WY", "WAX"));
        EXPECT_THAT(form.items("Across Wind Load Case :"), ElementsAre(none));
        form.press("OK");
    });
    EXPECT_THAT(stored().sets, ElementsAre(set(wx, 0, wtx)));
}

TEST_F(WindSets, ChangingTheTypeOfAnAlongCaseRemovesTheSet)
{
    addWindCases();
    store({set(wx, wax, wtx)});
    open([this](const Form& form) {
        changeCase("WX", [](T_STLD_D& record) { record.type = "D"; });
        EXPECT_THAT(form.rows(), IsEmpty());
    });
}

/// A set that goes cancels the showing anew of the sets behind it, whose record is right all the same.
TEST_F(WindSets, ASetThatGoesLeavesTheTextsOfTheRowsBehindItAsTheyWere)
{
    addWindCases();
    store({set(0, wtx, 0), set(wx, wax, 0)});
    open([this](const Form& form) {
        deleteCase("WAX");
        ASSERT_EQ(form.rows().size(), 1U);
        EXPECT_THAT(form.row(0), ElementsAre("2", "WX", "WAX", none, "2.2", "0.8"));
        form.press("OK");
    });
    EXPECT_THAT(stored().sets, ElementsAre(set(wx, 0, 0)));
}

TEST_F(WindSets, AddedAndRenamedCasesAreOfferedAtOnce)
{
    addWindCases();
    open([this](const Form& form) {
        addCase("WZ", "W");
        EXPECT_THAT(form.items("Along Wind Load Case :"), ElementsAre("WX", "WY", "WZ"));
        renameCase("WTX", "WTX2");
        EXPECT_THAT(form.items("Torsional Wind Load Case :"), ElementsAre(none, "WTX2"));
    });
}

TEST_F(WindSets, TheButtonBesideTheLoadCasesPostsTheHostsCommand)
{
    open([](const Form& form) { form.press("..."); });
    EXPECT_THAT(user.commands, ElementsAre(zel::HeadlessUserInterface::Command{32869, true}));
}

}  // namespace
