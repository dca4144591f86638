#include "contract/forms/forms.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/view_ctrl.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"

#include <gtest/gtest.h>

namespace {

using Keys = std::vector<zel::Key>;
using Texts = std::vector<CString>;

class Domain : public CDBDlgBase {
public:
    Domain() : CDBDlgBase(14095, "Domain") {}
    CMouseEdit angle{*this, "angle", "Angle :"};
    CMouseEdit outline{*this, "outline", "Outer Point IDs :"};
    CSelectLC loadCase{*this, "loadCase", "Load Case : "};
};

class Picking : public testing::Test {
protected:
    Picking()
    {
        form->Create(1, 14095, nullptr);
        form->ShowWindow();
        form->angle.SetAttObjectKeyList();
        form->angle.SetModeToUse(100);
        form->angle.SetMaxObjectKeyNum(2);
        form->outline.SetAttNodeList();
        form->outline.SetModeToUse(37);
        form->outline.SetMaxNodeKeyNum(500);
    }
    void addCase(const char* name)
    {
        T_STLD_D record;
        record.name = name;
        record.type = "D";
        ASSERT_NE(CDataStld().Add(record), 0);
    }

    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
    zel::HeadlessUserInterface host;
    Domain* form = new Domain;  // goes with the document
};

TEST_F(Picking, CollectsKeysInTheOrderOfPickingEachOnce)
{
    Keys keys;
    EXPECT_EQ(form->outline.GetNodeKList(keys), 0);
    EXPECT_TRUE(form->outline.pick({7, 3}, false));
    EXPECT_TRUE(form->outline.pick({3, 12}, false));
    EXPECT_EQ(form->outline.GetWindowText(), "7,3,12");
    EXPECT_NE(form->outline.GetNodeKList(keys), 0);
    EXPECT_EQ(keys, (Keys{7, 3, 12}));
    form->outline.ClearNodeKeyList();
    EXPECT_EQ(form->outline.GetNodeKList(keys), 0);
}

TEST_F(Picking, RefusesMoreThanItMayHoldAndKeepsWhatItHas)
{
    int mouse = 0;
    form->angle.onMouse([&mouse] { ++mouse; });
    EXPECT_TRUE(form->angle.pick({1, 2}, false));
    EXPECT_EQ(form->angle.pick({3}, false).refusal, "\"Angle\" holds at most 2 objects");
    EXPECT_EQ(form->angle.GetWindowText(), "1,2");
    EXPECT_EQ(mouse, 1);
}

TEST_F(Picking, KeysCanBeTypedWithCommasAndBlanks)
{
    Keys keys;
    EXPECT_TRUE(form->angle.set(CString("11, 12 x -3 0")));
    EXPECT_NE(form->angle.GetObjectKList(keys), 0);
    EXPECT_EQ(keys, (Keys{11, 12}));
    form->angle.SetKeyList({5, 6}, ", ");
    EXPECT_EQ(form->angle.GetWindowText(), "5, 6");
}

TEST_F(Picking, TellsTheViewWhenTheOutlineIsClosed)
{
    bool closedAtTheHandler = false;
    form->outline.onMouse([&] { closedAtTheHandler = I_ZELModelBase::GetCurMySelfST()->IsPickClosed(); });
    EXPECT_TRUE(form->outline.pick({1, 2, 3}, true));
    EXPECT_TRUE(closedAtTheHandler);
    I_ZELModelBase::GetCurMySelfST()->ResetPick();
    EXPECT_FALSE(host.view.IsPickClosed());
    form->outline.EnableWindow(false);
    EXPECT_FALSE(form->outline.pick({4}, true));
    EXPECT_FALSE(host.view.IsPickClosed());
}

TEST_F(Picking, ComesAsTheFocusDoes)
{
    Texts ran;
    form->outline.onSetFocus([&ran] { ran.push_back("focus"); });
    form->outline.onMouse([&ran] { ran.push_back("mouse"); });
    EXPECT_TRUE(form->outline.pick({1}, false));
    EXPECT_TRUE(form->outline.pick({2}, false));
    EXPECT_EQ(ran, (Texts{"focus", "mouse", "mouse"}));
}

TEST_F(Picking, OtherControlsTakeNoPickedObjects)
{
    EXPECT_EQ(form->loadCase.pick({1}, false).refusal, "\"Load Case\" takes no picked objects: its kind is combo");
}

TEST_F(Picking, TheViewKeepsModeAndActiveObjects)
{
    I_ZELModelBase::SetModelingModeST(26);
    EXPECT_EQ(host.view.modelingMode(), 26);
    EXPECT_EQ(host.events.back(), "mode 26");
    host.view.ActivateOnly({3, 1}, {}, {2}, false);
    host.view.ActivateCommon(1, {2}, {5}, {}, false);
    host.view.ActivateCommon(2, {3}, {}, {2}, false);
    EXPECT_EQ(host.view.active(), (zel::HeadlessModelView::Objects{{1, 2}, {5}, {}}));
    host.view.ActivateAll();
    EXPECT_FALSE(host.view.active());
}

TEST_F(Picking, ALoadCasePickerOfAnEmptyModelHasKeyZero)
{
    unsigned kind = 9;
    zel::Key key = 9;
    unsigned extra = 9;
    form->loadCase.SetLoadType(1, 1, 0);
    EXPECT_EQ(form->loadCase.GetSelectedLoad(kind, key, &extra), 0);
    EXPECT_EQ(key, 0U);
    EXPECT_EQ(extra, 0U);
    form->loadCase.SetLoadType(1, 0, 0);
    EXPECT_EQ(form->loadCase.items(), Texts{""});
    EXPECT_EQ(form->loadCase.GetSelectedLoad(kind, key, nullptr), 0);
    EXPECT_EQ(key, 0U);
}

TEST_F(Picking, ALoadCasePickerSelectsByKey)
{
    addCase("DL");
    addCase("LL");
    form->loadCase.SetLoadType(1, 1, 0);
    EXPECT_EQ(form->loadCase.items(), (Texts{"DL", "LL"}));
    const zel::Key second = CDataStld().GetKeyByName("LL");
    EXPECT_NE(form->loadCase.ChangeSelect(1, second, 0), 0);
    unsigned kind = 0;
    zel::Key key = 0;
    EXPECT_NE(form->loadCase.GetSelectedLoad(kind, key, nullptr), 0);
    EXPECT_EQ(kind, 1U);
    EXPECT_EQ(key, second);
    EXPECT_EQ(form->loadCase.ChangeSelect(1, 99, 0), 0);
    form->loadCase.GetSelectedLoad(kind, key, nullptr);
    EXPECT_EQ(key, 0U);
}

TEST_F(Picking, ALoadCasePickerFollowsTheLoadCasesAndKeepsItsChoice)
{
    addCase("DL");
    addCase("LL");
    form->loadCase.SetLoadType(1, 1, 0);
    EXPECT_TRUE(form->loadCase.set(CString("LL")));
    addCase("WX");
    EXPECT_EQ(form->loadCase.items(), (Texts{"DL", "LL", "WX"}));
    EXPECT_EQ(form->loadCase.GetWindowText(), "LL");

    CDataStld cases;
    cases.Get("LL");
    cases.currentRecord.name = "Live";
    ASSERT_NE(cases.Modify("LL"), 0);
    EXPECT_EQ(form->loadCase.GetWindowText(), "Live");
    ASSERT_NE(cases.Del("Live"), 0);
    EXPECT_EQ(form->loadCase.items(), (Texts{"DL", "WX"}));
    EXPECT_EQ(form->loadCase.GetCurSel(), -1);
}

}  // namespace
