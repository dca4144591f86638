#include "desktop/files_fixture.h"

#include "command/command.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/view_ctrl.h"

#include <QApplication>
#include <QLineEdit>

namespace desktop_test {

namespace {

void addCase(const char* name)
{
    T_STLD_D record;
    record.name = name;
    CDataStld().Add(record);
}

int caseCount()
{
    return static_cast<int>(CDataStld().GetCount());
}

}  // namespace

class UndoInTheWindow : public DesktopTest {
protected:
    [[nodiscard]] QString undoText() { return editActions().at(0)->text().remove(QLatin1Char('&')); }
    [[nodiscard]] QList<QAction*> editActions() const
    {
        for (QMenu* menu : window.menuBar()->findChildren<QMenu*>()) {
            if (menu->title() == "&Edit")
                return menu->actions();
        }
        return {};
    }
    /// Presses keys where the focus is, as a keyboard does: shortcuts are looked at first.
    static void press(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers) { QTest::keyClick(target.windowHandle(), key, modifiers); }
};

TEST_F(UndoInTheWindow, TheEntriesBearTheNameOfTheChangeAndAreGreyWhenThereIsNone)
{
    EXPECT_EQ(undoText(), "Undo");
    EXPECT_FALSE(editActions().at(0)->isEnabled());
    addCase("DL & more");
    EXPECT_EQ(editActions().at(0)->text(), "&Undo Add static load case \"DL && more\"");
    EXPECT_TRUE(editActions().at(0)->isEnabled());
    EXPECT_FALSE(editActions().at(1)->isEnabled());
    editActions().at(0)->trigger();
    EXPECT_EQ(caseCount(), 0);
    EXPECT_EQ(undoText(), "Undo");
    EXPECT_EQ(editActions().at(1)->text(), "&Redo Add static load case \"DL && more\"");
    editActions().at(1)->trigger();
    EXPECT_EQ(caseCount(), 1);
}

TEST_F(UndoInTheWindow, KeysWorkInTheMainWindowAndInAForm)
{
    addCase("A");
    addCase("B");
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    press(window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caseCount(), 1);
    press(window, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(caseCount(), 2);
    auto& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    press(form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caseCount(), 1);
    press(form, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(caseCount(), 2);
}

TEST_F(UndoInTheWindow, AFieldTakesItsOwnTypingBackFirst)
{
    addCase("A");
    auto& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    auto& field = widget<QLineEdit>(form, "Name");
    field.setFocus();
    settle();
    const QString before = field.text();
    press(form, Qt::Key_Z, Qt::ControlModifier);  // nothing was typed: it is the model's
    EXPECT_EQ(caseCount(), 0);
    press(form, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(caseCount(), 1);
    field.setFocus();
    QTest::keyClicks(&field, "xyz");
    ASSERT_TRUE(field.text().contains("xyz"));
    press(form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(field.text().contains("xyz"));
    EXPECT_EQ(caseCount(), 1);
}

TEST_F(UndoInTheWindow, SelectionCanBeAllNoneOrThePreviousOne)
{
    fill(window.document(), threePoints);
    const auto selected = [&] { return window.document().GetViewCtrl()->selection().points.size(); };
    action(window, "Edit", "Select All").trigger();
    EXPECT_EQ(selected(), 3U);
    action(window, "Edit", "Select None").trigger();
    EXPECT_EQ(selected(), 0U);
    action(window, "Edit", "Select Previous").trigger();
    EXPECT_EQ(selected(), 3U);
    action(window, "Edit", "Select Previous").trigger();
    EXPECT_EQ(selected(), 0U);
}

}  // namespace desktop_test
