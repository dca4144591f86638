#include "desktop/host/help_actions.h"

#include "contract/version.h"
#include "desktop/forms/text.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace zel::desktop {

namespace {

/// A text of a menu as one says it.
QString spoken(QString text)
{
    text.remove(QStringLiteral("..."));
    return spokenLabel(fromQt(text));
}

void gather(const QString& menu, const QList<QAction*>& actions, std::vector<Shortcut>& all)
{
    for (const QAction* action : actions) {
        if (const QMenu* inner = action->menu()) {
            gather(menu.isEmpty() ? spoken(inner->title()) : menu, inner->actions(), all);
        } else if (!action->shortcuts().isEmpty() && !action->shortcut().isEmpty()) {
            QStringList keys;
            for (const QKeySequence& each : action->shortcuts())
                keys.append(each.toString(QKeySequence::NativeText));
            all.push_back({menu, spoken(action->text()), keys.join(QStringLiteral(", "))});
        }
    }
}

void showShortcuts(QMainWindow& window)
{
    QDialog dialog(&window);
    dialog.setWindowTitle(QStringLiteral("Keyboard Shortcuts"));
    auto* list = new QTreeWidget;
    list->setColumnCount(2);
    list->setHeaderLabels({QStringLiteral("Command"), QStringLiteral("Keys")});
    list->setAccessibleName(QStringLiteral("Keyboard shortcuts"));
    list->setRootIsDecorated(false);
    list->setIndentation(12);
    QTreeWidgetItem* heading = nullptr;
    for (const Shortcut& each : shortcutsOf(window)) {
        const QString title = each.menu.isEmpty() ? QStringLiteral("Anywhere") : each.menu;
        if (heading == nullptr || heading->text(0) != title) {
            heading = new QTreeWidgetItem(list, {title});
            QFont bold = list->font();
            bold.setBold(true);
            heading->setFont(0, bold);
            heading->setFirstColumnSpanned(true);
            heading->setFlags(Qt::ItemIsEnabled);
        }
        new QTreeWidgetItem(heading, {each.command, each.keys});
    }
    list->expandAll();
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list->header()->setStretchLastSection(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(list);
    rows->addWidget(buttons);
    dialog.resize(420, 460);
    dialog.exec();
}

void showAbout(QMainWindow& window)
{
    QMessageBox box(&window);
    box.setWindowTitle(QStringLiteral("About ZEL"));
    box.setIcon(QMessageBox::Information);
    box.setTextFormat(Qt::PlainText);
    box.setText(QStringLiteral("ZEL ") + QString::fromLatin1(versionText));
    box.setInformativeText(QStringLiteral("Modelling, loads and load combinations of slabs and mats.\n\nMIT License. Copyright (c) ZEL authors.\n"
                                          "The software is provided \"as is\", without warranty of any kind."));
    box.exec();
}

}  // namespace

std::vector<Shortcut> shortcutsOf(const QMainWindow& window)
{
    std::vector<Shortcut> all;
    gather({}, window.menuBar()->actions(), all);
    gather({}, window.actions(), all);
    return all;
}

void addHelpActions(QMainWindow& window, QMenu& menu)
{
    QAction* keys = menu.addAction(QStringLiteral("&Keyboard Shortcuts"));
    QObject::connect(keys, &QAction::triggered, &window, [&window] { showShortcuts(window); });
    menu.addSeparator();
    QAction* about = menu.addAction(QStringLiteral("&About ZEL"));
    about->setMenuRole(QAction::AboutRole);
    QObject::connect(about, &QAction::triggered, &window, [&window] { showAbout(window); });
}

}  // namespace zel::desktop
