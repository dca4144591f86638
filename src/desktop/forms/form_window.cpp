#include "desktop/forms/form_window.h"

#include "contract/forms/buttons.h"
#include "contract/forms/open_dialogs.h"
#include "contract/forms/tabs.h"
#include "desktop/forms/mnemonics.h"
#include "desktop/forms/text.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QStackedWidget>

#include <algorithm>

namespace zel::desktop {

FormWindow::FormWindow(CDialog& dialog, UserHand& hand, QWidget* parent) : QDialog(parent), m_dialog(&dialog), m_context{hand}
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, this, [this] { showChanges(); });
    dialog.observe(*this);
    build();
}

FormWindow::~FormWindow()
{
    if (m_dialog != nullptr)
        m_dialog->unobserve(*this);
}

void FormWindow::letGo()
{
    if (m_dialog == nullptr)
        return;
    m_dialog->unobserve(*this);
    m_dialog = nullptr;
    m_timer.stop();
    for (const FormParts::Part& part : m_parts.parts)
        part.view->detach();
    hide();
    deleteLater();
}

ControlView* FormWindow::viewOf(const Control& control) const
{
    for (const FormParts::Part& part : m_parts.parts) {
        if (part.view->control() == &control)
            return part.view.get();
    }
    return nullptr;
}

// What the controller tells

void FormWindow::controlChanged(Control& control)
{
    if (std::find(m_changed.begin(), m_changed.end(), &control) == m_changed.end())
        m_changed.push_back(&control);
    if (!m_timer.isActive())
        m_timer.start(0);
}

void FormWindow::formChanged(CDialog& /*dialog*/)
{
    m_formChanged = true;
    detachMissing();
    if (!m_timer.isActive())
        m_timer.start(0);
}

/// A control that is gone must not be asked any more, not even by a paint event before the next refresh.
void FormWindow::detachMissing()
{
    const std::vector<Control*> controls = m_dialog->controls();
    for (const FormParts::Part& part : m_parts.parts) {
        if (std::find(controls.begin(), controls.end(), part.view->control()) == controls.end())
            part.view->detach();
    }
}

void FormWindow::showChanges()
{
    m_timer.stop();
    if (m_dialog == nullptr)
        return;
    const std::vector<const Control*> changed = std::exchange(m_changed, {});
    if (std::exchange(m_formChanged, false) && m_dialog->controls() != m_controls) {
        drop();
        build();
        return;
    }
    for (const FormParts::Part& part : m_parts.parts) {
        if (std::find(changed.begin(), changed.end(), part.view->control()) != changed.end())
            part.view->show();
    }
    showState();
    showFocus();
}

// The form

void FormWindow::build()
{
    m_controls = m_dialog->controls();
    m_parts = layOutForm(*m_dialog, m_context, *this);
    nameParts();
    QWidget* former = nullptr;
    for (const FormParts::Part& part : m_parts.parts) {
        part.view->show();
        if (QWidget* widget = part.view->focusWidget()) {
            widget->installEventFilter(this);
            if (former != nullptr)
                setTabOrder(former, widget);
            former = widget;
        }
    }
    showState();
    showFocus();
    adjustSize();
}

void FormWindow::drop()
{
    for (const FormParts::Part& part : m_parts.parts)
        part.view->detach();
    const Refreshing guard(m_context);
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    delete layout();
    m_parts = {};
}

void FormWindow::nameParts()
{
    std::vector<QString> texts;
    for (const FormParts::Part& part : m_parts.parts)
        texts.push_back(part.label != nullptr || !part.view->hasLabelBeside() ? drawnLabel(part.view->control()->label()) : QString());
    const std::vector<QString> marked = withMnemonics(texts);
    for (std::size_t i = 0; i < marked.size(); ++i) {
        const FormParts::Part& part = m_parts.parts[i];
        const Control& control = *part.view->control();
        if (part.label != nullptr)
            part.label->setText(marked[i]);
        else
            part.view->setOwnText(marked[i]);
        QString name = spokenLabel(control.label());
        if (name.isEmpty() && control.group() != nullptr)
            name = spokenLabel(control.group()->GetWindowText());
        if (name.isEmpty())
            name = toQt(m_dialog->GetWindowText());
        part.view->widget().setAccessibleName(name);
        part.view->widget().setObjectName(toQt(control.id()));
    }
}

/// Title, and what is enabled and visible.
void FormWindow::showState()
{
    const Refreshing guard(m_context);
    setWindowTitle(toQt(m_dialog->GetWindowText()));
    for (const FormParts::Part& part : m_parts.parts) {
        const Control* control = part.view->control();
        if (control == nullptr)
            continue;
        const bool visible = control->IsWindowVisible();
        const bool enabled = control->IsWindowEnabled();
        part.view->widget().setVisible(visible);
        part.view->widget().setEnabled(enabled);
        if (part.label != nullptr) {
            part.label->setVisible(visible);
            part.label->setEnabled(enabled);
        }
    }
    for (const FormParts::Frame& frame : m_parts.frames) {
        const bool visible = std::any_of(frame.controls.begin(), frame.controls.end(), [](const Control* each) { return each->IsWindowVisible(); });
        frame.box->setVisible(visible);
        frame.box->setTitle(drawnLabel(frame.group->GetWindowText()));
    }
    for (const FormParts::Stack& stack : m_parts.stacks)
        stack.pages->setCurrentIndex(dynamic_cast<CDlgTabCtrl&>(*stack.tabs).GetCurSel());
    fitHeight();
}

/// A form without lists is as high as its fields: it follows when some of them come or go.
void FormWindow::fitHeight()
{
    if (m_parts.isTall || layout() == nullptr || !isVisible())
        return;
    layout()->activate();
    const QSize wanted = sizeHint();
    if (height() != wanted.height())
        resize(std::max(width(), wanted.width()), wanted.height());
}

void FormWindow::showFocus()
{
    Control* focused = m_dialog->GetFocus();
    ControlView* view = focused != nullptr ? viewOf(*focused) : nullptr;
    QWidget* widget = view != nullptr ? view->focusWidget() : nullptr;
    if (widget == nullptr || widget->hasFocus() || widget->isAncestorOf(QWidget::focusWidget()))
        return;
    const Refreshing guard(m_context);
    widget->setFocus(Qt::OtherFocusReason);
}

// What the user does

Control* FormWindow::controlOf(const QObject* widget) const
{
    for (const FormParts::Part& part : m_parts.parts) {
        if (part.view->isAttached() && part.view->focusWidget() == widget)
            return const_cast<Control*>(part.view->control());
    }
    return nullptr;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && m_dialog != nullptr && m_context.refreshing == 0) {
        Control* control = controlOf(watched);
        if (control != nullptr && !control->HasFocus())
            (void)m_context.hand.focus(*control);
    }
    return QDialog::eventFilter(watched, event);
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    if (m_dialog == nullptr)
        return;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        (void)m_context.hand.key(*m_dialog, UserKey::enter);
    else if (event->key() == Qt::Key_Escape)
        (void)m_context.hand.key(*m_dialog, UserKey::escape);
    else
        event->ignore();
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    if (m_dialog == nullptr)
        return;
    event->ignore();  // whether it closes is the dialog's affair
    (void)m_context.hand.close(*m_dialog);
}

void FormWindow::reject()
{
    if (m_dialog != nullptr)
        (void)m_context.hand.close(*m_dialog);
}

void FormWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_dialog != nullptr && activeDialog() != m_dialog)
        (void)m_context.hand.activate(*m_dialog);
}

}  // namespace zel::desktop
