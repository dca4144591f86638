#include "desktop/forms/form_window.h"

#include "contract/forms/buttons.h"
#include "contract/forms/find_control.h"
#include "contract/forms/open_dialogs.h"
#include "contract/forms/tabs.h"
#include "desktop/forms/accessible_names.h"
#include "desktop/forms/mnemonics.h"
#include "desktop/forms/text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace zel::desktop {

namespace {

constexpr std::chrono::milliseconds idlePause{30};

/// The button that Enter presses: the dialog's choice, else its OK.
const Control* defaultButtonOf(const CDialog& dialog, const std::vector<Control*>& controls)
{
    if (dialog.defaultButton() != nullptr)
        return dialog.defaultButton();
    const auto ok = std::find_if(controls.begin(), controls.end(), [&](const Control* each) {
        return each->kind() == Kind::button && &each->dialog() == &dialog && normalisedLabel(each->label()) == "OK";
    });
    return ok != controls.end() ? *ok : nullptr;
}

/// Enter and Escape press these; a letter would be taken from a field.
bool needsNoMnemonic(const Control& control)
{
    return control.kind() == Kind::button && (control.label() == "OK" || control.label() == "Cancel");
}

/// Whether the page that a control stands on is the chosen one.
bool isOnShownPage(const Control& control)
{
    for (const CDialog* form = &control.dialog(); form->container() != nullptr; form = &form->container()->dialog()) {
        for (const Control::Nested& entry : form->container()->nested()) {
            if (entry.dialog == form && !entry.shown)
                return false;
        }
    }
    return true;
}

}  // namespace

FormWindow::FormWindow(CDialog& dialog, UserHand& hand, QWidget* parent) : QDialog(parent), m_dialog(&dialog), m_context{hand}
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, this, [this] { showChanges(); });
    auto* sheets = new QVBoxLayout(this);
    sheets->setContentsMargins(0, 0, 0, 0);
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
    deleteWhenIdle();
}

/// A widget whose event is still being handled must stay, with its view.
void FormWindow::deleteWhenIdle()
{
    if (userActionUnderWay())
        QTimer::singleShot(idlePause, this, [this] { deleteWhenIdle(); });
    else
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
    const bool otherControls = std::exchange(m_formChanged, false) && m_dialog->controls() != m_controls;
    if (otherControls || std::exchange(m_fontChanged, false)) {
        rebuild();
        return;
    }
    for (const FormParts::Part& part : m_parts.parts) {
        if (std::find(changed.begin(), changed.end(), part.view->control()) != changed.end())
            part.view->show();
    }
    if (labelsChanged())
        nameParts();
    showState();
    showFocus();
}

// The form

void FormWindow::build()
{
    m_controls = m_dialog->controls();
    m_sheet = new QWidget(this);
    layout()->addWidget(m_sheet);
    {
        const Refreshing guard(m_context);
        m_parts = layOutForm(*m_dialog, m_context, *m_sheet);
    }
    nameParts();
    QWidget* former = nullptr;
    for (const FormParts::Part& part : m_parts.parts) {
        if (QWidget* widget = part.view->focusWidget()) {
            widget->installEventFilter(this);
            if (former != nullptr)
                setTabOrder(former, widget);
            former = widget;
        }
    }
    if (isVisible())
        m_sheet->show();
    showState();
    focusFirst();
    showFocus();
}

void FormWindow::drop()
{
    for (const FormParts::Part& part : m_parts.parts)
        part.view->detach();
    const Refreshing guard(m_context);
    m_sheet->hide();
    layout()->removeWidget(m_sheet);
    m_former.push_back({std::exchange(m_sheet, nullptr), std::exchange(m_parts, {})});
}

void FormWindow::rebuild()
{
    drop();
    build();
    deleteFormer();
}

/// The widgets that a form was built of before go when nothing happens in them any more.
void FormWindow::deleteFormer()
{
    QTimer::singleShot(idlePause, this, [this] {
        if (userActionUnderWay()) {
            deleteFormer();
            return;
        }
        for (const Former& former : std::exchange(m_former, {}))
            delete former.sheet;
    });
}

bool FormWindow::labelsChanged()
{
    std::vector<CString> labels;
    for (const FormParts::Part& part : m_parts.parts)
        labels.push_back(part.view->control() != nullptr ? part.view->control()->label() : CString());
    return std::exchange(m_labels, labels) != labels;
}

void FormWindow::nameParts()
{
    (void)labelsChanged();
    std::vector<QString> texts;
    std::vector<Control*> controls;
    for (const FormParts::Part& part : m_parts.parts) {
        const Control& control = *part.view->control();
        const bool bears = part.label != nullptr || !part.view->hasLabelBeside();
        texts.push_back(bears && !needsNoMnemonic(control) ? drawnLabel(control.label()) : QString());
        controls.push_back(const_cast<Control*>(&control));
    }
    const std::vector<QString> marked = withMnemonics(texts);
    const std::vector<QString> names = accessibleNames(*m_dialog, controls);
    for (std::size_t i = 0; i < marked.size(); ++i) {
        const FormParts::Part& part = m_parts.parts[i];
        const QString text = needsNoMnemonic(*controls[i]) ? drawnLabel(controls[i]->label()) : marked[i];
        if (part.label != nullptr)
            part.label->setText(text);
        else
            part.view->setOwnText(text);
        part.view->widget().setAccessibleName(names[i]);
        part.view->widget().setObjectName(toQt(controls[i]->id()));
    }
}

void FormWindow::showPart(const FormParts::Part& part)
{
    const Control* control = part.view->control();
    if (control == nullptr)
        return;
    // The pages behind the chosen one keep their widgets, so that the form keeps its size when another is chosen.
    const bool visible = isOnShownPage(*control) ? control->IsWindowVisible() : control->CWnd::IsWindowVisible();
    const bool enabled = control->IsWindowEnabled();
    QWidget& widget = part.view->widget();
    widget.setVisible(visible);
    widget.setEnabled(enabled);
    if (part.label != nullptr) {
        part.label->setVisible(visible);
        part.label->setEnabled(enabled);
    }
    part.view->showAsDefault(control == defaultButtonOf(*m_dialog, m_controls));
}

/// Title, and what is enabled and visible.
void FormWindow::showState()
{
    const QSize former = size();
    {
        const Refreshing guard(m_context);
        setWindowTitle(toQt(m_dialog->GetWindowText()));
        for (const FormParts::Part& part : m_parts.parts)
            showPart(part);
        for (const FormParts::Stack& stack : m_parts.stacks)
            stack.pages->setCurrentIndex(dynamic_cast<CDlgTabCtrl&>(*stack.tabs).GetCurSel());
        closeGaps(m_parts, *m_sheet);
    }
    fit(former);
}

/// The window follows when parts of the form come or go; what the user has made it larger or smaller by stays, except for the height of a form
/// in which nothing makes use of it.
void FormWindow::fit(QSize former)
{
    layout()->activate();
    const QSize wanted = sizeHint();
    if (wanted == m_wanted)
        return;
    QSize size = m_wanted.isValid() ? former + wanted - m_wanted : wanted;
    if (!m_parts.bodies.back()->grows())
        size.setHeight(wanted.height());
    m_wanted = wanted;
    const QSize room = screen() != nullptr ? screen()->availableSize() : wanted;
    resize(size.expandedTo(minimumSizeHint()).boundedTo(room));
}

/// A form opens with the focus on its first field, unless its dialog has set it.
void FormWindow::focusFirst()
{
    if (m_dialog->GetFocus() != nullptr)
        return;
    for (const FormParts::Part& part : m_parts.parts) {
        const Control* control = part.view->control();
        if (control != nullptr && part.view->focusWidget() != nullptr && control->kind() != Kind::tabs && control->IsWindowVisible() &&
            control->IsWindowEnabled()) {
            const_cast<Control*>(control)->SetFocus();
            return;
        }
    }
}

void FormWindow::showFocus()
{
    Control* focused = m_dialog->GetFocus();
    ControlView* view = focused != nullptr ? viewOf(*focused) : nullptr;
    QWidget* widget = view != nullptr ? view->focusWidget() : nullptr;
    if (widget == nullptr || widget->hasFocus() || widget->isAncestorOf(QWidget::focusWidget()))
        return;
    {
        const Refreshing guard(m_context);
        widget->setFocus(Qt::TabFocusReason);
    }
    view->show();  // with the part of the text that the dialog has selected
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
    // A grid keeps Tab for its cells; with Ctrl it goes on to the next control.
    if (event->type() == QEvent::KeyPress && m_dialog != nullptr) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool leaves = (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && key.modifiers().testFlag(Qt::ControlModifier);
        if (leaves && controlOf(watched) != nullptr && controlOf(watched)->kind() == Kind::grid)
            return QDialog::focusNextPrevChild(key.key() == Qt::Key_Tab && !key.modifiers().testFlag(Qt::ShiftModifier));
    }
    if (event->type() == QEvent::FocusIn && m_dialog != nullptr && m_context.refreshing == 0) {
        Control* control = controlOf(watched);
        if (control != nullptr && !control->HasFocus())
            (void)m_context.hand.focus(*control);
    }
    return QDialog::eventFilter(watched, event);
}

/// Tab is the controller's, which knows what can be used; back goes by the order of the widgets, which is the same.
bool FormWindow::focusNextPrevChild(bool next)
{
    const bool byTheProgram = m_context.refreshing > 0;  // a widget that is hidden or disabled passes the focus on
    const bool fromGrid = m_dialog != nullptr && m_dialog->GetFocus() != nullptr && m_dialog->GetFocus()->kind() == Kind::grid;  // which has had the key
    if (!next || m_dialog == nullptr || byTheProgram || fromGrid)
        return QDialog::focusNextPrevChild(next);
    (void)m_context.hand.key(*m_dialog, UserKey::tab);
    showChanges();
    return true;
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
    if ((event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) && m_dialog != nullptr && !m_fontChanged) {
        m_fontChanged = true;
        m_timer.start(0);
    }
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_dialog != nullptr && activeDialog() != m_dialog)
        (void)m_context.hand.activate(*m_dialog);
}

}  // namespace zel::desktop
