#include "forms/sample_form.h"

#include <gtest/gtest.h>

namespace {

using forms_test::OpenForm;
using Texts = std::vector<CString>;

TEST(EditField, StartsEmptyTakesATextAndTellsTheDialog)
{
    OpenForm open;
    EXPECT_EQ(open.form->name.GetWindowText(), "");
    EXPECT_TRUE(open.form->name.set(CString("  DL ")));
    EXPECT_EQ(open.form->name.GetWindowText(), "  DL ") << "exactly as typed";
    EXPECT_EQ(open.form->ran, Texts{"name"});
    EXPECT_FALSE(open.form->name.HasFocus()) << "the field has been left";
}

TEST(EditField, TheProgramsChannelFiresNothingAndIsNeverRefused)
{
    OpenForm open;
    open.form->name.EnableWindow(false);
    open.form->name.SetWindowText("by the program");
    EXPECT_EQ(open.form->name.GetWindowText(), "by the program");
    EXPECT_TRUE(open.form->ran.empty());
}

TEST(EditField, RefusesWhileDisabledHiddenOrReadOnlyAndKeepsTheOldText)
{
    OpenForm open;
    CEdit& name = open.form->name;
    name.SetWindowText("old");

    name.EnableWindow(false);
    EXPECT_EQ(name.set(CString("new")).refusal, "\"Name\" is disabled");
    name.EnableWindow();
    name.ShowWindow(false);
    EXPECT_EQ(name.set(CString("new")).refusal, "\"Name\" is hidden");
    name.ShowWindow();
    name.SetReadOnly();
    EXPECT_EQ(name.set(CString("new")).refusal, "\"Name\" is read-only");
    EXPECT_EQ(name.set(true).refusal, "\"Name\" takes a text");

    EXPECT_EQ(name.GetWindowText(), "old");
    EXPECT_TRUE(open.form->ran.empty());
}

TEST(EditField, TakesANumberAsItsText)
{
    OpenForm open;
    EXPECT_TRUE(open.form->count.set(1234567.25));
    EXPECT_EQ(open.form->count.GetWindowText(), "1234567.25");
}

TEST(EditField, FocusHandlersRunWhenTheUserComesAndGoes)
{
    OpenForm open;
    Texts ran;
    open.form->name.onSetFocus([&ran] { ran.push_back("came"); });
    open.form->name.onKillFocus([&ran] { ran.push_back("left"); });
    EXPECT_TRUE(open.form->name.focus());
    EXPECT_TRUE(open.form->press.press());
    EXPECT_EQ(ran, (Texts{"came", "left"}));
    EXPECT_TRUE(open.form->press.HasFocus());

    open.form->name.SetFocus();
    EXPECT_TRUE(open.form->name.HasFocus());
    EXPECT_EQ(ran.size(), 2U) << "the program moves the focus in silence";
}

TEST(EditField, SelectsItsTextForTheNextEntry)
{
    OpenForm open;
    open.form->name.SetWindowText("LL");
    open.form->name.SetSel(0, -1);
    EXPECT_EQ(open.form->name.GetSel(), (std::pair<int, int>{0, 2}));
}

TEST(Label, ShowsWhatTheProgramSaysAndTakesNothing)
{
    OpenForm open;
    CStatic text{*open.form, "text", "SQRT"};
    EXPECT_EQ(text.label(), "SQRT");
    text.SetWindowText("other");
    EXPECT_EQ(text.label(), "other");
    EXPECT_EQ(text.set(CString("x")).refusal, "\"other\" takes no value: its kind is label");
}

TEST(Button, RunsItsHandlerWhenItCanBePressed)
{
    OpenForm open;
    EXPECT_TRUE(open.form->press.press());
    open.form->press.EnableWindow(false);
    EXPECT_FALSE(open.form->press.press());
    EXPECT_EQ(open.form->ran, Texts{"press"});
    EXPECT_EQ(open.form->press.label(), "Press");
    open.form->press.SetWindowText("Spread Sheet Form");
    EXPECT_EQ(open.form->press.label(), "Spread Sheet Form");
}

TEST(CheckBox, StartsClearTakesBothStatesAndRefusesAText)
{
    OpenForm open;
    CCheckBox& active = open.form->active;
    EXPECT_FALSE(active.GetCheck());
    EXPECT_TRUE(active.set(true));
    EXPECT_TRUE(active.GetCheck());
    EXPECT_TRUE(active.set(true));
    EXPECT_EQ(open.form->ran, Texts{"active"}) << "nothing is clicked where the box stands right already";
    EXPECT_FALSE(active.set(CString("yes")));
    EXPECT_TRUE(active.GetCheck());
    EXPECT_TRUE(active.press());
    EXPECT_FALSE(active.GetCheck());
    active.SetCheck(true);
    EXPECT_EQ(open.form->ran, (Texts{"active", "active"}));
}

TEST(Radios, ExactlyOneIsChosen)
{
    OpenForm open;
    EXPECT_EQ(open.form->mode.GetSel(), -1);
    EXPECT_TRUE(open.form->add.set(true));
    EXPECT_EQ(open.form->mode.GetSel(), 0);
    EXPECT_TRUE(open.form->replace.set(true));
    EXPECT_FALSE(open.form->add.GetCheck());
    EXPECT_TRUE(open.form->replace.GetCheck());
    EXPECT_EQ(open.form->ran, (Texts{"mode", "mode"}));

    EXPECT_FALSE(open.form->replace.set(false));
    EXPECT_EQ(open.form->mode.GetSel(), 1) << "a radio is not cleared by itself";
    open.form->mode.SetSel(0);
    EXPECT_EQ(open.form->ran.size(), 2U);
    open.form->mode.SetSel(7);
    EXPECT_EQ(open.form->mode.GetSel(), -1);
}

TEST(Spin, ChangesTheNumberOfItsFieldWithinTheRange)
{
    OpenForm open;
    open.form->countSpin.SetRange(0, 2);
    int changes = 0;
    open.form->count.onChange([&changes] { ++changes; });
    EXPECT_TRUE(open.form->countSpin.spin(1));
    EXPECT_EQ(open.form->count.GetWindowText(), "1") << "an empty field counts as 0";
    EXPECT_TRUE(open.form->countSpin.spin(1));
    EXPECT_TRUE(open.form->countSpin.spin(1));
    EXPECT_EQ(open.form->count.GetWindowText(), "2");
    EXPECT_EQ(changes, 3) << "the field's handler runs as when the number is typed";
    open.form->count.SetWindowText("-5");
    EXPECT_TRUE(open.form->countSpin.spin(-1));
    EXPECT_EQ(open.form->count.GetWindowText(), "0");
    EXPECT_FALSE(open.form->countSpin.spin(2));
    open.form->count.EnableWindow(false);
    EXPECT_FALSE(open.form->countSpin.spin(1));
    EXPECT_EQ(open.form->count.GetWindowText(), "0");
}

TEST(Spin, AHandlerGetsTheChangeThatItIsToSubtract)
{
    OpenForm open;
    std::vector<int> changes;
    open.form->countSpin.onDelta([&changes](int change) { changes.push_back(change); });
    EXPECT_TRUE(open.form->countSpin.spin(1));
    EXPECT_TRUE(open.form->countSpin.spin(-1));
    EXPECT_EQ(changes, (std::vector<int>{-1, 1}));
    EXPECT_EQ(open.form->count.GetWindowText(), "");
}

TEST(Rules, AreAskedWheneverItMatters)
{
    OpenForm open;
    open.form->press.enabledWhen([form = open.form] { return form->active.GetCheck(); });
    open.form->count.visibleWhen([form = open.form] { return form->active.GetCheck(); });
    EXPECT_FALSE(open.form->press.press());
    EXPECT_FALSE(open.form->count.IsWindowVisible());
    open.form->active.SetCheck(true);
    EXPECT_TRUE(open.form->press.press());
    EXPECT_TRUE(open.form->count.IsWindowVisible());
    open.form->press.EnableWindow(false);
    EXPECT_FALSE(open.form->press.IsWindowEnabled()) << "rule and EnableWindow must both allow it";
}

TEST(Groups, HideAndDisableWhatIsInThem)
{
    OpenForm open;
    open.form->applied.EnableWindow(false);
    EXPECT_EQ(open.form->active.set(true).refusal, "\"Active\" is disabled");
    EXPECT_EQ(open.form->add.set(true).refusal, "\"Append\" is disabled");
    EXPECT_TRUE(open.form->name.IsWindowEnabled());
    open.form->applied.ShowWindow(false);
    EXPECT_EQ(open.form->active.set(true).refusal, "\"Active\" is hidden");
}

class Watcher final : public zel::IFormObserver {
public:
    void controlChanged(zel::Control& control) override { changes.push_back(control.id()); }
    void formChanged(CDialog& /*dialog*/) override { ++formChanges; }
    Texts changes;
    int formChanges = 0;
};

TEST(Observers, HearOfChangesByProgramAndUser)
{
    OpenForm open;
    Watcher watcher;
    open.form->observe(watcher);
    open.form->name.SetWindowText("a");
    EXPECT_TRUE(open.form->active.set(true));
    EXPECT_EQ(watcher.changes, (Texts{"name", "active"}));
    open.form->SetWindowText("Other title");
    open.form->applied.ShowWindow(false);
    EXPECT_GE(watcher.formChanges, 2);

    open.form->unobserve(watcher);
    open.form->name.SetWindowText("b");
    EXPECT_EQ(watcher.changes.size(), 2U);
}

}  // namespace
