#include "desktop/desktop_fixture.h"
#include "desktop/views/line_pane.h"
#include "desktop/views/model_views.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QMenu>
#include <QTextBlock>
#include <QTimer>

namespace desktop_test {

namespace {

/// Opens the context menu of a pane and chooses the entry of that text.
void choose(zel::desktop::LinePane& pane, const QString& text)
{
    QTimer::singleShot(20, qApp, [text] {
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr)
            qFatal("no menu came up");
        for (QAction* action : menu->actions()) {
            if (action->text() == text)
                action->trigger();
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), pane.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(pane.viewport(), &event);
}

}  // namespace

using LinePanes = DesktopTest;

TEST_F(LinePanes, OutputAndHistoryShareAPlaceWithOutputInFront)
{
    settle();
    QDockWidget* output = window.findChild<QDockWidget*>(QStringLiteral("Output"));
    QDockWidget* history = window.findChild<QDockWidget*>(QStringLiteral("History"));
    EXPECT_EQ(window.tabifiedDockWidgets(output), QList<QDockWidget*>{history});
    EXPECT_FALSE(window.views().output().viewport()->visibleRegion().isEmpty());
    EXPECT_TRUE(window.views().history().viewport()->visibleRegion().isEmpty());
}

TEST_F(LinePanes, LinesAreKeptInOrderAndTheViewFollowsThem)
{
    zel::desktop::LinePane& pane = window.views().output();
    for (int i = 0; i < 100; ++i)
        window.addOutput(QStringLiteral("line %1").arg(i));
    settle();
    EXPECT_TRUE(pane.toPlainText().startsWith(QStringLiteral("line 0\nline 1\n")));
    EXPECT_EQ(pane.cursorForPosition(QPoint(2, pane.viewport()->height() - 2)).block().text(), "line 99");
}

TEST_F(LinePanes, LinesAreCopiedAndClearedFromTheirMenu)
{
    zel::desktop::LinePane& pane = window.views().history();
    window.addHistory(QStringLiteral("first"));
    window.addHistory(QStringLiteral("second"));
    choose(pane, QStringLiteral("Select &All"));
    choose(pane, QStringLiteral("&Copy"));
    EXPECT_EQ(QApplication::clipboard()->text(), "first\nsecond");
    choose(pane, QStringLiteral("C&lear"));
    EXPECT_EQ(pane.toPlainText(), "");
    window.addHistory(QStringLiteral("third"));
    EXPECT_EQ(pane.toPlainText(), "third");
}

}  // namespace desktop_test
