#include "desktop/plan_fixture.h"

#include "contract/forms/forms.h"
#include "contract/forms/open_dialogs.h"

namespace desktop_test {

namespace {

/// A form that collects an outline and two points, and counts what it hears.
class OutlineForm final : public CDBDlgBase {
public:
    OutlineForm() : CDBDlgBase(14095, "Domain")
    {
        outline.SetAttNodeList();
        outline.SetModeToUse(37);
        outline.SetMaxNodeKeyNum(500);
        angle.SetAttObjectKeyList();
        angle.SetModeToUse(100);
        angle.SetMaxObjectKeyNum(2);
        outline.onMouse([this] {
            ++picks;
            I_ZELModelBase* view = I_ZELModelBase::GetCurMySelfST();
            if (!view->IsPickClosed())
                return;
            closed.push_back(outline.GetWindowText());
            view->ResetPick();
            outline.ClearNodeKeyList();
        });
    }

    CEdit name{*this, "name", "Name :"};
    CMouseEdit angle{*this, "angle", "Angle :"};
    CMouseEdit outline{*this, "outline", "Outer Point IDs :"};
    int picks = 0;
    std::vector<CString> closed;  ///< the outlines
};

class Picking : public PlanTest {
protected:
    Picking()
    {
        form->Create(1, 14095, nullptr);
        form->ShowWindow();
        settle();
    }
    void focus(zel::Control& control)
    {
        EXPECT_TRUE(window.hand().focus(control));
        settle();
    }

    OutlineForm* form = new OutlineForm;  // goes with the document
};

}  // namespace

TEST_F(Picking, ClicksGoToThePickFieldThatHasTheFocus)
{
    focus(form->outline);
    click(0, 0);
    click(10, 0);
    EXPECT_EQ(form->outline.GetWindowText(), "1,2");
    EXPECT_EQ(form->picks, 2);
    EXPECT_EQ(selection(), objects({}));
}

TEST_F(Picking, ClicksSelectWhileAnotherFieldHasTheFocus)
{
    focus(form->name);
    click(0, 0);
    EXPECT_EQ(selection(), objects({1}));
    EXPECT_EQ(form->outline.GetWindowText(), "");
}

TEST_F(Picking, TheFirstPointClosesTheOutline)
{
    focus(form->outline);
    I_ZELModelBase::SetModelingModeST(26);
    for (const auto& [x, y] : {std::pair{0, 0}, {10, 0}, {10, 10}})
        click(x, y);
    EXPECT_TRUE(form->closed.empty());
    click(0, 0);
    EXPECT_EQ(form->closed, (std::vector<CString>{"1,2,3"}));
    EXPECT_FALSE(plan().modelView().IsPickClosed());
    click(0, 10);
    EXPECT_EQ(form->outline.GetWindowText(), "4") << "the next outline begins";
}

TEST_F(Picking, EnterClosesTheOutline)
{
    focus(form->outline);
    click(0, 0);
    click(10, 0);
    press(Qt::Key_Return);
    EXPECT_TRUE(form->closed.empty()) << "two points are no outline";
    click(0, 10);
    press(Qt::Key_Return);
    EXPECT_EQ(form->closed, (std::vector<CString>{"1,2,4"}));
}

TEST_F(Picking, ADoubleClickClosesTheOutlineWithItsPoint)
{
    focus(form->outline);
    click(0, 0);
    click(10, 0);
    click(10, 10);  // the first click of the two
    QTest::mouseDClick(&plan(), Qt::LeftButton, {}, at(10, 10));
    EXPECT_EQ(form->closed, (std::vector<CString>{"1,2,3"}));
    EXPECT_EQ(form->outline.GetWindowText(), "");
}

TEST_F(Picking, BackspaceTakesTheLastPointBackAndEscapeAll)
{
    focus(form->outline);
    click(0, 0);
    click(10, 0);
    click(10, 10);
    press(Qt::Key_Backspace);
    EXPECT_EQ(form->outline.GetWindowText(), "1,2");
    press(Qt::Key_Escape);
    EXPECT_EQ(form->outline.GetWindowText(), "");
    EXPECT_TRUE(form->IsWindow());
}

TEST_F(Picking, ALineGivesBothItsEndsToAFieldForObjects)
{
    focus(form->angle);
    click(10, 5);
    EXPECT_EQ(form->angle.GetWindowText(), "2,3");
}

TEST_F(Picking, APickThatTheFieldRefusesChangesNothing)
{
    focus(form->angle);
    click(0, 0);
    click(10, 10);
    click(0, 10);
    EXPECT_EQ(form->angle.GetWindowText(), "1,3");
    click(5, 5);
    EXPECT_EQ(form->angle.GetWindowText(), "1,3") << "an area has no key that it could take";
}

TEST_F(Picking, TheOutlineIsDrawnAsItStandsInTheField)
{
    focus(form->outline);
    const auto colour = [&] { return plan().grab().toImage().pixelColor(at(5, 0) + QPoint(0, 0)); };
    const QColor before = colour();
    EXPECT_TRUE(form->outline.type("1,2,3"));
    EXPECT_NE(colour(), before);
}

TEST_F(Picking, ADialogThatClosesInsideAPickIsNoHarm)
{
    form->angle.onMouse([this] { form->DestroyWindow(); });
    focus(form->angle);
    click(0, 0);
    EXPECT_EQ(zel::activeDialog(), nullptr);
    click(10, 0);
    EXPECT_EQ(selection(), objects({2}));
}

}  // namespace desktop_test
