#include "desktop/files_fixture.h"

#include "command/command.h"
#include "desktop/host/help_actions.h"

#include <QTreeWidget>

#include <set>

namespace desktop_test {

using Menus = DesktopTest;

namespace {

QChar mnemonicOf(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String(" "));
    const qsizetype place = text.indexOf(QLatin1Char('&'));
    return place >= 0 && place + 1 < text.size() ? text.at(place + 1).toLower() : QChar();
}

/// Expects that each entry has a mnemonic and that no two have the same.
void expectUniqueMnemonics(const QList<QAction*>& actions, const QString& menu)
{
    std::set<QChar> seen;
    for (const QAction* each : actions) {
        if (each->isSeparator() || !each->isVisible() || !each->isEnabled() || each->menu() == nullptr)
            continue;
        EXPECT_TRUE(seen.insert(mnemonicOf(each->text())).second) << menu.toStdString() << ": " << each->text().toStdString();
    }
    for (const QAction* each : actions) {
        if (each->isSeparator() || !each->isVisible() || each->menu() != nullptr || mnemonicOf(each->text()).isNull())
            continue;
        EXPECT_TRUE(seen.insert(mnemonicOf(each->text())).second) << menu.toStdString() << ": " << each->text().toStdString();
    }
}

}  // namespace

TEST_F(Menus, StandInTheUsualOrder)
{
    QStringList titles;
    for (const QAction* each : window.menuBar()->actions())
        titles.append(each->text().remove(QLatin1Char('&')));
    EXPECT_EQ(titles.mid(0, 3), (QStringList{"File", "Edit", "View"}));
    EXPECT_EQ(titles.mid(titles.size() - 2), (QStringList{"Window", "Help"}));
    EXPECT_TRUE(titles.contains("Load"));
}

TEST_F(Menus, MnemonicsAreUniqueInEachMenu)
{
    open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    expectUniqueMnemonics(window.menuBar()->actions(), "the bar");
    for (QMenu* menu : window.menuBar()->findChildren<QMenu*>()) {
        Q_EMIT menu->aboutToShow();
        expectUniqueMnemonics(menu->actions(), menu->title());
    }
}

TEST_F(Menus, NoKeyMeansTwoThings)
{
    std::set<QString> seen;
    for (const auto& each : zel::desktop::shortcutsOf(window)) {
        for (const QString& key : each.keys.split(", "))
            EXPECT_TRUE(seen.insert(key).second) << key.toStdString() << " of " << each.command.toStdString();
    }
    EXPECT_TRUE(seen.contains("Ctrl+Z"));
    EXPECT_TRUE(seen.contains("Ctrl+O"));
}

TEST_F(Menus, TheWindowMenuListsTheOpenFormsAndClosesThem)
{
    open(D_CMD_MODEL_LOAD_LOADCASE, "CCMLoadCaseDlg");
    EXPECT_NO_THROW(action(window, "Window", "1  Static Load Cases"));
    action(window, "Window", "Close All Forms").trigger();
    settle();
    EXPECT_TRUE(window.services().formWindows().empty());
    EXPECT_FALSE(action(window, "Window", "Close All Forms").isEnabled());
}

TEST_F(Menus, HelpListsTheKeysOfTheActions)
{
    QStringList commands;
    whenModal([&](QWidget& modal) {
        const auto* tree = modal.findChild<QTreeWidget*>();
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            for (int j = 0; j < tree->topLevelItem(i)->childCount(); ++j)
                commands.append(tree->topLevelItem(i)->child(j)->text(0) + '=' + tree->topLevelItem(i)->child(j)->text(1));
        }
        modal.close();
    });
    action(window, "Help", "Keyboard Shortcuts").trigger();
    EXPECT_TRUE(commands.contains("Open=Ctrl+O")) << commands.join("; ").toStdString();
    EXPECT_TRUE(commands.contains("Redo=Ctrl+Shift+Z, Ctrl+Y")) << commands.join("; ").toStdString();
}

}  // namespace desktop_test
