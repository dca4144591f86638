#include "desktop/desktop_fixture.h"

#include "command/command.h"

#include <QLineEdit>

namespace desktop_test {

using StaticLoadCasesWindow = DesktopTest;

TEST_F(StaticLoadCasesWindow, TypingAndClickingAddsALoadCase)
{
    show(example("first"));
    auto& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    type(form, "Name", "WX");
    EXPECT_EQ(widget<QLineEdit>(form, "Name").text(), "WX");
    EXPECT_EQ(control(form, "Name").GetWindowText(), "WX");
}

}  // namespace desktop_test
