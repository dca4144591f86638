#include "desktop/host/edit_actions.h"

#include "contract/notices.h"
#include "desktop/forms/text.h"
#include "desktop/host/main_window.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <utility>

namespace zel::desktop {

namespace {

/// "&Undo Add load case "DL"", with what menus take for mnemonics doubled.
QString withName(const char* text, const CString& name)
{
    QString shown = toQt(name);
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    return shown.isEmpty() ? QString::fromLatin1(text) : QString::fromLatin1(text) + QLatin1Char(' ') + shown;
}

/// The field whose text is being typed; null if there is none.
const QLineEdit* typedField()
{
    const QWidget* focus = QApplication::focusWidget();
    const auto* line = qobject_cast<const QLineEdit*>(focus);
    return line != nullptr || focus == nullptr ? line : focus->findChild<QLineEdit*>();
}

std::vector<Key> allOf(const CViewCtrl& view, void (CViewCtrl::*selected)(std::vector<Key>&) const, void (CViewCtrl::*others)(std::vector<Key>&) const)
{
    std::vector<Key> keys;
    std::vector<Key> rest;
    (view.*selected)(keys);
    (view.*others)(rest);
    keys.insert(keys.end(), rest.begin(), rest.end());
    return keys;
}

}  // namespace

EditActions::EditActions(MainWindow& window, QMenu& menu) : QObject(&window), m_window(window)
{
    const auto add = [&](const char* text, const QList<QKeySequence>& keys, auto&& run) {
        QAction* action = menu.addAction(QString::fromLatin1(text));
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::ApplicationShortcut);  // forms are windows of their own
        QObject::connect(action, &QAction::triggered, this, std::forward<decltype(run)>(run));
        return action;
    };
    m_undo = add("&Undo", {QKeySequence(Qt::CTRL | Qt::Key_Z)}, [this] { undo(); });
    m_redo = add("&Redo", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}, [this] { redo(); });
    menu.addSeparator();
    QAction* all = add("Select &All", {QKeySequence(Qt::CTRL | Qt::Key_A)}, [this] { selectAll(); });
    all->setShortcutContext(Qt::WindowShortcut);  // in a form it means the form's own list
    add("Select &None", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A)}, [this] { m_window.hand().select(m_window.document(), {}); });
    m_previous = add("Select &Previous", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P)}, [this] { m_window.hand().select(m_window.document(), m_before); });
    menu.addSeparator();
    QAction* preferences = add("Pre&ferences...", {QKeySequence(Qt::CTRL | Qt::Key_Comma)}, [this] { m_window.showPreferences(0); });
    preferences->setMenuRole(QAction::PreferencesRole);
    qApp->installEventFilter(this);
}

void EditActions::showDocument()
{
    m_now = m_window.document().GetViewCtrl()->selection();
    m_before = {};
    showNames();
}

void EditActions::showNotice(long long hint)
{
    if (hint == Hint::selection) {
        const T_SELECTION selection = m_window.document().GetViewCtrl()->selection();
        if (selection != m_now)
            m_before = std::exchange(m_now, selection);
        m_previous->setEnabled(m_before != m_now);
    } else {
        showNames();
    }
}

void EditActions::showNames()
{
    const ModelDocument& document = m_window.document();
    m_undo->setText(withName("&Undo", document.undoName()));
    m_redo->setText(withName("&Redo", document.redoName()));
    m_undo->setEnabled(document.undoCount() > 0);
    m_redo->setEnabled(document.redoCount() > 0);
    m_previous->setEnabled(m_before != m_now);
}

void EditActions::undo()
{
    m_window.hand().undo(m_window.document());
    showNames();
}

void EditActions::redo()
{
    m_window.hand().redo(m_window.document());
    showNames();
}

void EditActions::selectAll()
{
    const CViewCtrl& view = *m_window.document().GetViewCtrl();
    T_SELECTION all;
    all.points = allOf(view, &CViewCtrl::GetAllSelectedPont, &CViewCtrl::GetAllUnSelectedPont);
    all.lines = allOf(view, &CViewCtrl::GetAllSelectedLine, &CViewCtrl::GetAllUnSelectedLine);
    all.areas = allOf(view, &CViewCtrl::GetAllSelectedArea, &CViewCtrl::GetAllUnSelectedArea);
    m_window.hand().select(m_window.document(), all);
}

/// A text field claims the keys of undo even when it has nothing to take back; then they are the model's.
bool EditActions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride || watched != QApplication::focusWidget())
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isUndo = key->matches(QKeySequence::Undo);
    const bool isRedo = key->matches(QKeySequence::Redo) || (key->key() == Qt::Key_Y && key->modifiers() == Qt::ControlModifier);
    const QLineEdit* field = isUndo || isRedo ? typedField() : nullptr;
    if (field == nullptr || (isUndo ? field->isUndoAvailable() : field->isRedoAvailable()))
        return false;
    event->ignore();
    return true;
}

}  // namespace zel::desktop
