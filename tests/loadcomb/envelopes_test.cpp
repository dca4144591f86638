#include "command/command.h"
#include "contract/tables/envelope_table.h"
#include "contract/tables/load_combination_table.h"
#include "load/dialog_test.h"

namespace zel::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// A model with two load cases and a combination of kind 1 and of kind 3.
class Envelopes : public DialogTest {
protected:
    Envelopes()
    {
        addCase("DL", "D");
        addCase("LL", "L");
        addCombination(1, "gLCB1  ");
        addCombination(3, "cLCB1  ");
    }

    static void addCombination(int kind, const char* name)
    {
        T_LCOM_D record;
        record.name = name;
        ASSERT_NE(CDataLcom().Add(kind, record), 0);
    }
    static void store(const char* name, std::vector<T_ENVL_BASE> items)
    {
        T_ENVL_D record;
        record.name = name;
        record.items = std::move(items);
        ASSERT_NE(CDataEnvl().Add(record), 0);
    }
    static T_ENVL_D stored(const char* name)
    {
        CDataEnvl envelopes;
        EXPECT_NE(envelopes.Get(CString(name)), 0);
        return envelopes.currentRecord;
    }

    int openList(const std::function<void(const Form&)>& use)
    {
        user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
        return CMD_DoModal(2, nullptr, 0);
    }
    /// Opens the item dialog by a button of the list; `use` is what the user does there.
    void openItem(const Form& list, const char* button, const std::function<void(const Form&)>& use)
    {
        user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
        list.press(button);
    }
};

TEST_F(Envelopes, OfferLoadCasesThenTheCombinationsOfEachKind)
{
    openList([&](const Form& list) {
        EXPECT_EQ(list.dialog().GetWindowText(), "Envelope");
        EXPECT_EQ(list.dialog().templateId(), 14054U);
        openItem(list, "Add", [](const Form& item) {
            EXPECT_EQ(item.dialog().GetWindowText(), "Define Envelope");
            EXPECT_EQ(item.at<CListCtrl>("candidates").columns()[0].title, shown("IDS_ZEL_CMD__Load_Case"));
            EXPECT_EQ(item.at<CListCtrl>("candidates").columns()[1].title, shown("IDS_ZEL_CMD__Type"));
            EXPECT_THAT(item.rows("candidates"), ElementsAre(Texts{"DL", "ST"}, Texts{"LL", "ST"}, Texts{"gLCB1  ", "CB"}, Texts{"cLCB1  ", "CBC"}));
            EXPECT_THAT(item.rows("selected"), IsEmpty());
        });
    });
}

TEST_F(Envelopes, MoveTheSelectedRowsBetweenTheTablesKeepingTheOrderOfTheSource)
{
    openList([&](const Form& list) {
        openItem(list, "Add", [](const Form& item) {
            item.select("candidates", {1, 3});
            item.press("->");
            EXPECT_THAT(item.rows("selected"), ElementsAre(Texts{"LL", "ST"}, Texts{"cLCB1  ", "CBC"}));
            item.select("candidates", {0});
            item.press("->");
            EXPECT_THAT(item.rows("selected"), ElementsAre(Texts{"DL", "ST"}, Texts{"LL", "ST"}, Texts{"cLCB1  ", "CBC"}));
            item.select("selected", {1});
            item.press("<-");
            EXPECT_THAT(item.rows("candidates"), ElementsAre(Texts{"LL", "ST"}, Texts{"gLCB1  ", "CB"}));
            item.set("Envelope Name", "E1");
            item.set("Description", "all");
            item.press("OK");
        });
        EXPECT_THAT(list.items("envelopeList"), ElementsAre("E1"));
        EXPECT_THAT(list.rows("items"), IsEmpty()) << "nothing is selected yet";
        list.select("envelopeList", {0});
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"DL", "ST"}, Texts{"cLCB1  ", "CBC"}));
    });
    EXPECT_EQ(stored("E1").description, "all");
    EXPECT_THAT(stored("E1").items, ElementsAre(T_ENVL_BASE{0, 1}, T_ENVL_BASE{8, 1}));
}

TEST_F(Envelopes, AreRefusedWithoutANameOrWithoutAnItem)
{
    openList([&](const Form& list) {
        openItem(list, "Add", [&](const Form& item) {
            item.press("OK");
            EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
            item.set("Envelope Name", "E1");
            item.press("Apply");
            EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_loadcase_"));
        });
    });
    EXPECT_EQ(CDataEnvl().GetCount(), 0);
}

TEST_F(Envelopes, TakeANameOfBlanks)
{
    openList([&](const Form& list) {
        openItem(list, "Add", [](const Form& item) {
            item.set("Envelope Name", "  ");
            item.select("candidates", {0});
            item.press("->");
            item.press("OK");
        });
    });
    EXPECT_EQ(CDataEnvl().GetCount(), 1);
}

TEST_F(Envelopes, ApplyStoresAndStaysInItsMode)
{
    openList([&](const Form& list) {
        openItem(list, "Add", [&](const Form& item) {
            item.set("Envelope Name", "E1");
            item.select("candidates", {0});
            item.press("->");
            item.press("Apply");
            item.press("Apply");
            EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_DUPLICATE_NAME")) << "it still adds";
            item.set("Envelope Name", "E2");
            item.press("Apply");
        });
        EXPECT_THAT(list.items("envelopeList"), ElementsAre("E1", "E2"));
        list.select("envelopeList", {0});
        openItem(list, "Modify", [&](const Form& item) {
            EXPECT_EQ(item.text("Envelope Name"), "E1");
            item.set("Envelope Name", "E3");
            item.press("Apply");
            item.set("Envelope Name", "E4");
            item.press("Apply");
        });
        EXPECT_THAT(list.items("envelopeList"), ElementsAre("E4", "E2"));
    });
}

TEST_F(Envelopes, ApplyOnAnExistingOneWritesAllOfItAndLeavesTheFormAsItStands)
{
    store("E1", {{0, 1}});
    openList([&](const Form& list) {
        list.select("envelopeList", {0});
        openItem(list, "Modify", [&](const Form& item) {
            item.set("Description", "of two");
            item.select("candidates", {0});
            item.press("->");
            item.press("Apply");
            EXPECT_FALSE(item.dialog().hasEnded());
            EXPECT_EQ(stored("E1").description, "of two");
            EXPECT_THAT(stored("E1").items, ElementsAre(T_ENVL_BASE{0, 1}, T_ENVL_BASE{0, 2}));
            EXPECT_EQ(item.text("Envelope Name"), "E1");
            EXPECT_THAT(item.rows("selected"), ElementsAre(Texts{"DL", "ST"}, Texts{"LL", "ST"}));
            item.set("Description", "not this");
            item.press("Cancel");
        });
        EXPECT_EQ(CDataEnvl().GetCount(), 1);
        EXPECT_EQ(stored("E1").description, "of two");
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"DL", "ST"}, Texts{"LL", "ST"}));
    });
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Envelopes, ARefusedWriteKeepsTheFormOpenWithoutAWordOfItsOwn)
{
    store("E1", {{0, 1}});
    openList([&](const Form& list) {
        openItem(list, "Add", [&](const Form& item) {
            item.set("Envelope Name", "e1");
            item.select("candidates", {0});
            item.press("->");
            item.press("OK");
            EXPECT_FALSE(item.dialog().hasEnded());
            EXPECT_THAT(boxes(), ElementsAre("IDS_DB_REFUSE_DUPLICATE_NAME"));
        });
    });
}

TEST_F(Envelopes, ModifyAndDeleteNeedASelectedEnvelope)
{
    openList([&](const Form& list) {
        list.press("Modify");
        list.press("Delete");
        EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___No_selected_envelope_", "IDS_ZEL_CMD__Error___No_selected_envelope_"));
    });
}

TEST_F(Envelopes, AfterADeletionTheEntryAtThatPlaceIsSelectedOrTheLast)
{
    store("A", {{0, 1}});
    store("B", {{0, 2}});
    store("C", {{6, 1}});
    openList([&](const Form& list) {
        list.select("envelopeList", {1});
        list.press("Delete");
        EXPECT_EQ(list.at<CListBox>("envelopeList").GetCurSel(), 1);
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"gLCB1  ", "CB"}));
        list.press("Delete");
        EXPECT_EQ(list.at<CListBox>("envelopeList").GetCurSel(), 0);
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"DL", "ST"}));
    });
}

TEST_F(Envelopes, DeletingTheLastOneLeavesAnEmptyItemsTable)
{
    store("A", {{0, 1}});
    openList([&](const Form& list) {
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"DL", "ST"}));
        list.press("Delete");
        EXPECT_THAT(list.items("envelopeList"), IsEmpty());
        EXPECT_THAT(list.rows("items"), IsEmpty());
    });
}

TEST_F(Envelopes, ACombinationThatIsGoneStaysAnItemWithAnEmptyText)
{
    store("A", {{0, 1}, {6, 1}});
    openList([&](const Form& list) {
        CDataLcom().Del(1, Key{1});
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"DL", "ST"}, Texts{"", "CB"}));
        openItem(list, "Modify", [](const Form& item) {
            EXPECT_THAT(item.rows("selected"), ElementsAre(Texts{"DL", "ST"}, Texts{"", "CB"}));
            item.press("OK");
        });
    });
    EXPECT_THAT(stored("A").items, ElementsAre(T_ENVL_BASE{0, 1}, T_ENVL_BASE{6, 1}));
}

TEST_F(Envelopes, LabelTheTypesOfOtherPrograms)
{
    store("A", {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {7, 1}, {9, 1}, {10, 1}});
    openList([&](const Form& list) {
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"", "RS"}, Texts{"", "TH"}, Texts{"", "MV"}, Texts{"", "SM"}, Texts{"", ""}, Texts{"", "CBS"},
                                                    Texts{"", "CBF"}, Texts{"", "CBR"}));
    });
}

TEST_F(Envelopes, TheListFollowsNoticesAndKeepsItsSelectionByKey)
{
    store("A", {{0, 1}});
    store("B", {{0, 2}});
    openList([&](const Form& list) {
        list.select("envelopeList", {1});
        CDataEnvl envelopes;
        envelopes.Del(CString("A"));
        EXPECT_EQ(list.at<CListBox>("envelopeList").GetCurSel(), 0);
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"LL", "ST"}));
        model->Undo();
        EXPECT_EQ(list.at<CListBox>("envelopeList").GetCurSel(), 1);
        renameCase("LL", "LIVE");
        EXPECT_THAT(list.rows("items"), ElementsAre(Texts{"LIVE", "ST"}));
        tellOfNoChange();
        EXPECT_THAT(list.items("envelopeList"), ElementsAre("A", "B"));
    });
}

}  // namespace zel::test
