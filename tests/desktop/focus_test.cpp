#include "desktop/sample_dialogs.h"

#include "contract/forms/open_dialogs.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

namespace desktop_test {

using zel::desktop::FormWindow;

using FocusInForms = DesktopTest;

namespace {

bool isFocused(FormWindow& form, const zel::Control& control)
{
    const QWidget* widget = form.viewOf(control)->focusWidget();
    return widget->hasFocus();
}

}  // namespace

TEST_F(FocusInForms, StandsOnTheFirstFieldAtOpening)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    EXPECT_EQ(dialog->GetFocus(), &dialog->name);
    EXPECT_TRUE(isFocused(form, dialog->name));
    EXPECT_EQ(dialog->left, 0);
}

TEST_F(FocusInForms, StandsWhereTheDialogSetsItAtOpening)
{
    auto* dialog = new SampleForm;
    dialog->Create();
    dialog->search.SetFocus();
    FormWindow& form = showSample(window, *dialog);
    EXPECT_EQ(dialog->GetFocus(), &dialog->search);
    EXPECT_TRUE(isFocused(form, dialog->search));
}

TEST_F(FocusInForms, FollowsTheDialogAndTellsItOfTheUser)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    dialog->count.SetFocus();
    settle();
    EXPECT_TRUE(isFocused(form, dialog->count));
    QTest::mouseClick(form.viewOf(dialog->name)->focusWidget(), Qt::LeftButton);
    EXPECT_EQ(dialog->GetFocus(), &dialog->name);
    QTest::mouseClick(form.viewOf(dialog->search)->focusWidget(), Qt::LeftButton);
    EXPECT_EQ(dialog->GetFocus(), &dialog->search);
    EXPECT_EQ(dialog->left, 1) << "the handler of the field that was left";
}

TEST_F(FocusInForms, ShowsThePartOfATextThatTheDialogSelects)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    dialog->search.SetWindowText("하중 12");
    dialog->search.SetFocus();
    dialog->search.SetSel(7, 9);  // two syllables of three bytes each and a blank stand before
    settle();
    EXPECT_EQ(widget<QLineEdit>(form, "Search").selectedText(), "12");
    dialog->search.SetSel(0, -1);
    settle();
    EXPECT_EQ(widget<QLineEdit>(form, "Search").selectedText(), "하중 12");
    QTest::keyClicks(&widget<QLineEdit>(form, "Search"), QStringLiteral("7"));
    EXPECT_EQ(dialog->search.GetWindowText(), "7") << "typing replaces it";
}

TEST_F(FocusInForms, GoesOnWithTabAndBackWithShift)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(dialog->GetFocus(), &dialog->search);
    EXPECT_TRUE(isFocused(form, dialog->search));
    QTest::keyClick(form.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(dialog->GetFocus(), &dialog->name);
    EXPECT_TRUE(isFocused(form, dialog->name));
}

TEST_F(FocusInForms, JumpsToAFieldByTheMnemonicOfItsLabel)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    QTest::keyClick(form.focusWidget(), Qt::Key_S, Qt::AltModifier);
    settle();
    EXPECT_EQ(dialog->GetFocus(), &dialog->search);
}

TEST_F(FocusInForms, EnterIsTheFieldsOwnElseTheDefaultButtons)
{
    auto* dialog = new SampleForm;
    FormWindow& form = showSample(window, *dialog);
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog->applied, 1);
    dialog->search.SetFocus();
    settle();
    QTest::keyClick(form.focusWidget(), Qt::Key_Enter);
    EXPECT_EQ(dialog->searched, 1);
    EXPECT_EQ(dialog->applied, 1);
    dialog->searchButton.SetFocus();
    settle();
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog->searched, 2) << "the button with the focus";
    QTest::keyClick(form.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(dialog->searched, 3);
}

TEST_F(FocusInForms, EscapeAndTheCloseBoxAreTheControllers)
{
    auto* dialog = new SampleForm;
    QTest::keyClick(showSample(window, *dialog).focusWidget(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(window.services().formWindows().empty());
    auto* other = new SampleForm;
    showSample(window, *other).close();
    settle();
    EXPECT_TRUE(window.services().formWindows().empty());
}

TEST_F(FocusInForms, TheFormThatIsActivatedIsTheDialogInFront)
{
    auto* first = new SampleForm;
    auto* second = new PanelForm;
    FormWindow& firstForm = showSample(window, *first);
    showSample(window, *second);
    EXPECT_EQ(zel::activeDialog(), second);
    firstForm.activateWindow();
    (void)QTest::qWaitForWindowActive(&firstForm);
    settle();
    EXPECT_EQ(zel::activeDialog(), first);
}

}  // namespace desktop_test
