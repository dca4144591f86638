#include "desktop/views/model_views.h"

#include "desktop/views/line_pane.h"
#include "desktop/views/model_tree.h"
#include "desktop/views/plan_view.h"

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>

namespace zel::desktop {

namespace {

constexpr double zoomStep = 1.25;

/// A dock around a view; its name keeps its place from one run to the next.
QDockWidget* addDock(QMainWindow& window, const QString& title, QWidget* view, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(title);
    dock->setWidget(view);
    window.addDockWidget(area, dock);
    return dock;
}

}  // namespace

ModelViews::ModelViews(QMainWindow& window, UserHand& hand)
    : m_window(window),
      m_plan(new PlanView(hand, &window)),
      m_tree(new ModelTree(hand, &window)),
      m_output(new LinePane(QStringLiteral("Output"), &window)),
      m_history(new LinePane(QStringLiteral("History"), &window))
{
    window.setCentralWidget(m_plan);
    QDockWidget* tree = addDock(window, QStringLiteral("Model"), m_tree, Qt::LeftDockWidgetArea);
    QDockWidget* output = addDock(window, QStringLiteral("Output"), m_output, Qt::BottomDockWidgetArea);
    QDockWidget* history = addDock(window, QStringLiteral("History"), m_history, Qt::BottomDockWidgetArea);
    window.tabifyDockWidget(output, history);
    output->raise();
    window.resizeDocks({tree}, {330}, Qt::Horizontal);
    window.resizeDocks({output}, {130}, Qt::Vertical);

    auto* place = new QLabel(&window);
    place->setAccessibleName(QStringLiteral("Place of the cursor in the plan"));
    place->setContentsMargins(6, 0, 6, 0);
    window.statusBar()->addWidget(place);
    m_plan->onStatus([place](const QString& text) { place->setText(text); });
}

void ModelViews::setDocument(CDBDoc* document)
{
    m_plan->setDocument(document);
    m_tree->setDocument(document);
}

void ModelViews::showNotice(long long hint)
{
    m_plan->showNotice(hint);
    m_tree->showNotice(hint);
}

void ModelViews::addActions(QMenu& menu)
{
    const auto add = [&](const char* text, const QList<QKeySequence>& keys, auto action) {
        QAction* added = menu.addAction(QString::fromLatin1(text));
        added->setShortcuts(keys);
        QObject::connect(added, &QAction::triggered, m_plan, action);
        return added;
    };
    add("&Fit", {QKeySequence(Qt::CTRL | Qt::Key_0)}, [plan = m_plan] { plan->fit(); });
    add("Zoom &In", {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [plan = m_plan] { plan->zoom(zoomStep); });
    add("Zoom &Out", {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [plan = m_plan] { plan->zoom(1 / zoomStep); });
    add("Point &Numbers", {}, [plan = m_plan](bool on) { plan->showPointNumbers(on); })->setCheckable(true);
    menu.addSeparator();
    for (QDockWidget* dock : m_window.findChildren<QDockWidget*>()) {
        QAction* toggle = dock->toggleViewAction();
        menu.addAction(toggle);
    }
}

}  // namespace zel::desktop
