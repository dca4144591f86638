#include "desktop/files_fixture.h"

#include "command/command.h"
#include "desktop/host/window_places.h"

#include <QDockWidget>
#include <QSettings>

namespace desktop_test {

using WindowPlaces = DesktopTest;
using zel::desktop::besideParent;
using zel::desktop::onScreens;

TEST_F(WindowPlaces, APlaceOffTheScreensIsMovedOntoTheNearest)
{
    const QRect left(0, 0, 1920, 1080);
    const QRect right(1920, 0, 1280, 1024);
    EXPECT_EQ(onScreens({100, 100, 400, 300}, {left, right}), QRect(100, 100, 400, 300));
    EXPECT_EQ(onScreens({3000, 900, 400, 300}, {left, right}), QRect(2800, 724, 400, 300));
    EXPECT_EQ(onScreens({3000, 900, 400, 300}, {left}), QRect(1520, 780, 400, 300)) << "the right screen was unplugged";
    EXPECT_EQ(onScreens({-50, -50, 4000, 3000}, {left}), left) << "no larger than the screen";
}

TEST_F(WindowPlaces, AFormStandsBesideItsParentWhereThereIsRoom)
{
    const QRect screen(0, 0, 1920, 1080);
    EXPECT_EQ(besideParent({300, 200}, {100, 50, 800, 600}, screen), QRect(908, 50, 300, 200));
    EXPECT_EQ(besideParent({300, 200}, {1100, 50, 800, 600}, screen), QRect(792, 50, 300, 200));
    EXPECT_EQ(besideParent({300, 200}, {0, 0, 1920, 1080}, screen), QRect(1620, 0, 300, 200)) << "over a parent that fills the screen";
}

TEST_F(WindowPlaces, AFormComesBackWhereItWasClosed)
{
    QSettings().clear();
    auto& form = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    form.move(33, 44);
    settle();
    (void)window.hand().close(*form.dialog());
    settle();
    const auto& again = open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    EXPECT_EQ(again.pos(), QPoint(33, 44));
    QSettings().clear();
}

TEST_F(WindowPlaces, TheDocksComeBackAsTheyWereLeft)
{
    QSettings().clear();
    auto* dock = window.findChild<QDockWidget*>();
    ASSERT_NE(dock, nullptr);
    dock->close();
    window.close();
    zel::desktop::MainWindow next;
    next.restorePlace();
    next.show();
    settle();
    EXPECT_FALSE(next.findChild<QDockWidget*>(dock->objectName())->isVisible());
    QSettings().clear();
}

}  // namespace desktop_test
