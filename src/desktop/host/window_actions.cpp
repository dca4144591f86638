#include "desktop/host/window_actions.h"

#include "desktop/forms/form_window.h"
#include "desktop/host/main_window.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

namespace zel::desktop {

namespace {

void closeForms(MainWindow& window)
{
    // A form may refuse to close, or open another one: only those that are open now are asked, once each.
    std::vector<QPointer<FormWindow>> forms;
    for (FormWindow* form : window.services().formWindows())
        forms.emplace_back(form);
    for (const QPointer<FormWindow>& form : forms) {
        if (form != nullptr && form->dialog() != nullptr)
            (void)window.hand().close(*form->dialog());
    }
}

void fill(MainWindow& window, QMenu& menu)
{
    menu.clear();
    const std::vector<FormWindow*> forms = window.services().formWindows();
    QAction* close = menu.addAction(QStringLiteral("&Close All Forms"));
    close->setEnabled(!forms.empty());
    QObject::connect(close, &QAction::triggered, &menu, [&window] { closeForms(window); });
    menu.addSeparator();
    if (forms.empty())
        menu.addAction(QStringLiteral("No forms are open"))->setEnabled(false);
    int number = 0;
    for (FormWindow* form : forms) {
        QString title = form->windowTitle();
        title.replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString mark = ++number < 10 ? QStringLiteral("&%1  ").arg(number) : QString();
        QAction* action = menu.addAction(mark + title);
        QObject::connect(action, &QAction::triggered, form, [form] {
            form->show();
            form->raise();
            form->activateWindow();
        });
    }
}

}  // namespace

void addWindowActions(MainWindow& window, QMenu& menu)
{
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&window, &menu] { fill(window, menu); });
    fill(window, menu);
}

}  // namespace zel::desktop
