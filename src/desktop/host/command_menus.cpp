#include "desktop/host/command_menus.h"

#include "desktop/views/dialog_opening.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <string_view>

namespace zel::desktop {

namespace {

QString text(std::string_view latin)
{
    return QString::fromLatin1(latin.data(), static_cast<qsizetype>(latin.size()));
}

}  // namespace

void addCommandMenus(QMenuBar& bar, UserHand& hand)
{
    QMenu* menu = nullptr;
    for (const DialogRow& row : dialogRows) {
        const DialogOpening opening{&row};
        if (row.entry.menu.empty() || !opening.isThere())
            continue;
        const QString title = text(row.entry.menu);
        if (menu == nullptr || menu->title() != title)
            menu = bar.addMenu(title);
        QAction* action = menu->addAction(text(row.entry.text));
        action->setShortcut(QKeySequence(text(row.entry.key)));
        QObject::connect(action, &QAction::triggered, action, [&hand, opening] { opening.run(hand); });
    }
}

}  // namespace zel::desktop
