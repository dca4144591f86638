#include "desktop/sample_dialogs.h"

#include "contract/forms/open_dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace desktop_test {

using zel::desktop::FormWindow;

using NestedModals = DesktopTest;

namespace {

FormWindow& asForm(QWidget& window)
{
    return dynamic_cast<FormWindow&>(window);
}

void answer(QWidget& box, QMessageBox::StandardButton button)
{
    dynamic_cast<QMessageBox&>(box).button(button)->click();
}

}  // namespace

TEST_F(NestedModals, RunThreeDeepWithQuestionsAndReturnTheirCodes)
{
    NestedForm outermost(1);
    int deepest = 0;
    whenModal([&](QWidget& first) {
        EXPECT_EQ(first.windowTitle(), "Level 1");
        whenModal([&](QWidget& second) {
            EXPECT_EQ(second.windowTitle(), "Level 2");
            EXPECT_EQ(second.parentWidget(), &first);
            whenModal([&](QWidget& third) {
                EXPECT_EQ(third.windowTitle(), "Level 3");
                EXPECT_EQ(zel::openDialogs().size(), 3U);
                whenModal([&](QWidget& box) { answer(box, QMessageBox::No); });
                click(asForm(third), "Ask");
                whenModal([&](QWidget& box) {
                    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), "End?");
                    answer(box, QMessageBox::Yes);
                });
                click(asForm(third), "Ask and End");
                deepest = 1;
            });
            click(asForm(second), "Deeper");
            EXPECT_EQ(deepest, 1);
            EXPECT_EQ(dynamic_cast<NestedForm&>(*asForm(second).dialog()).code, 43);
            EXPECT_EQ(QApplication::activeModalWidget(), &second);
            type(asForm(second), "Value", "usable");
            EXPECT_EQ(control(asForm(second), "Value").GetWindowText(), "usable");
            QTest::keyClick(second.focusWidget(), Qt::Key_Escape);
        });
        click(asForm(first), "Deeper");
        whenModal([&](QWidget& box) { answer(box, QMessageBox::Yes); });
        click(asForm(first), "Ask");
        click(asForm(first), "OK");
    });
    EXPECT_EQ(outermost.DoModal(), IDOK);
    EXPECT_EQ(outermost.code, IDCANCEL);
    EXPECT_EQ(outermost.answer, IDYES);
    EXPECT_TRUE(zel::openDialogs().empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(NestedModals, TheFormBelowTakesNoInput)
{
    NestedForm outermost(1);
    whenModal([&](QWidget& first) {
        whenModal([&](QWidget& second) {
            QTest::mouseClick(&widget<QPushButton>(asForm(first), "OK"), Qt::LeftButton);
            EXPECT_FALSE(outermost.hasEnded());
            click(asForm(second), "Cancel");
        });
        click(asForm(first), "Deeper");
        click(asForm(first), "Cancel");
    });
    EXPECT_EQ(outermost.DoModal(), IDCANCEL);
}

TEST_F(NestedModals, AFormThatOneOfThemAsksForIsUsableAndOutlivesIt)
{
    show(example("tower"));
    QPointer<FormWindow> cases;
    whenModal([&](QWidget& modal) {
        click(asForm(modal), "...");  // the load cases, by a command to the host
        settle();
        cases = &form("CCMLoadCaseDlg");
        ASSERT_FALSE(cases.isNull());
        EXPECT_TRUE(cases->isVisible());
        type(*cases, "Name", "NEW1");
        EXPECT_EQ(control(*cases, "Name").GetWindowText(), "NEW1");
        click(asForm(modal), "Cancel");
    });
    EXPECT_TRUE(window.hand().open("CDgnGenSeisFactor"));
    settle();
    ASSERT_FALSE(cases.isNull()) << "it stays when the modal form has ended";
    EXPECT_TRUE(cases->isVisible());
    EXPECT_EQ(cases->parentWidget(), &window);
    cases->activateWindow();
    (void)QTest::qWaitForWindowActive(cases);
    (void)window.hand().choose(control(*cases, "Type"), 1);
    type(*cases, "Self Weight Factor", "0");
    click(*cases, "Add");
    EXPECT_NE(dumpOf(window.document()).find("NEW1"), std::string::npos);
}

TEST_F(NestedModals, AFormThatClosesTheOneItStandsOverGoesWithoutACrash)
{
    auto* below = new SampleForm;
    showSample(window, *below);
    NestedForm modal(1);
    whenModal([&](QWidget& over) {
        below->End();
        settle();
        QTest::qWait(60);
        click(asForm(over), "OK");
    });
    EXPECT_EQ(modal.DoModal(), IDOK);
    settle();
    EXPECT_TRUE(zel::openDialogs().empty());
}

}  // namespace desktop_test
