#include "contract/forms/dialog.h"

#include "contract/format_text.h"
#include "contract/forms/buttons.h"
#include "contract/forms/control.h"
#include "contract/forms/dialog_names.h"
#include "contract/forms/window_list.h"
#include "contract/messages.h"
#include "contract/user_interface.h"

#include <algorithm>
#include <string>
#include <typeinfo>

using zel::Control;
using zel::Taken;

namespace {

constexpr int mostModalDialogs = 100;  ///< that wait inside each other: each takes a part of the stack

/// Counts the modal dialogs that are open, this one included.
class ModalDepth {
public:
    ModalDepth() { ++s_depth; }
    ~ModalDepth() { --s_depth; }
    ModalDepth(const ModalDepth&) = delete;
    ModalDepth& operator=(const ModalDepth&) = delete;

    [[nodiscard]] bool isTooDeep() const { return s_depth > mostModalDialogs; }

private:
    inline static int s_depth = 0;
};

void collect(const std::vector<Control*>& own, std::vector<Control*>& all)
{
    for (Control* control : own) {
        if (control->isListed())
            all.push_back(control);
        for (const Control::Nested& inside : control->nested()) {
            if (inside.dialog != nullptr)
                collect(inside.dialog->ownControls(), all);
        }
    }
}

bool canHaveFocus(const Control& control)
{
    using zel::Kind;
    const Kind kind = control.kind();
    const bool shows = kind == Kind::label || kind == Kind::unit || kind == Kind::picture || kind == Kind::graph || kind == Kind::spin;
    return !shows && control.IsWindowVisible() && control.IsWindowEnabled();
}

}  // namespace

CDialog::CDialog(unsigned templateId, CString title, CWnd* parent) : CWnd(std::move(title)), m_templateId(templateId), m_parent(parent) {}

CDialog::~CDialog()
{
    if (m_container != nullptr)
        m_container->forget(*this);
    zel::WindowList::instance().remove(*this);
}

CString CDialog::ClassName() const
{
    const std::string_view name = zel::dialogName(typeid(*this));
    return name.empty() ? "Dialog" + std::to_string(m_templateId) : CString(name);
}

std::vector<Control*> CDialog::controls() const
{
    std::vector<Control*> all;
    collect(m_controls, all);
    return all;
}

CDialog& CDialog::root()
{
    return m_container != nullptr ? m_container->dialog().root() : *this;
}

const CDialog& CDialog::root() const
{
    return m_container != nullptr ? m_container->dialog().root() : *this;
}

void CDialog::enter(Control& control)
{
    m_controls.push_back(&control);
}

void CDialog::leave(Control& control)
{
    std::erase(m_controls, &control);
    CDialog& outermost = root();
    if (outermost.m_focus == &control)
        outermost.m_focus = nullptr;
}

void CDialog::observe(zel::IFormObserver& observer)
{
    m_observers.push_back(&observer);
}

void CDialog::unobserve(zel::IFormObserver& observer)
{
    std::erase(m_observers, &observer);
}

void CDialog::controlChanged(Control& control)
{
    const CDialog& outermost = root();
    for (std::size_t i = 0; i < outermost.m_observers.size(); ++i)
        outermost.m_observers[i]->controlChanged(control);
}

void CDialog::formChanged()
{
    CDialog& outermost = root();
    for (std::size_t i = 0; i < outermost.m_observers.size(); ++i)
        outermost.m_observers[i]->formChanged(outermost);
}

void CDialog::focusOn(Control* control)
{
    CDialog& outermost = root();
    if (outermost.m_focus == control)
        return;
    outermost.m_focus = control;
    outermost.formChanged();
}

// Opening and closing

void CDialog::makeWindow()
{
    m_endCode.reset();
    m_state = State::open;
    for (Control* control : std::vector<Control*>(m_controls)) {
        for (const Control::Nested& inside : control->nested()) {
            if (inside.dialog != nullptr)
                inside.dialog->openInside();
        }
    }
    OnInitDialog();
}

void CDialog::unmakeWindow()
{
    for (Control* control : std::vector<Control*>(m_controls)) {
        control->onDestroying();
        for (const Control::Nested& inside : control->nested()) {
            if (inside.dialog != nullptr)
                inside.dialog->closeInside();
        }
    }
    m_state = State::closed;
    m_focus = nullptr;
    zel::WindowList::instance().remove(*this);
}

void CDialog::appear()
{
    m_appeared = true;
    m_fresh = true;
    zel::WindowList::instance().toFront(*this);
    if (zel::IUserInterface* host = zel::userInterface())
        host->dialogOpened(*this);
}

void CDialog::openInside()
{
    if (!IsWindow())
        makeWindow();
}

void CDialog::closeInside()
{
    if (!IsWindow())
        return;
    CDialog& outermost = root();
    if (outermost.m_focus != nullptr && &outermost.m_focus->dialog() == this)
        outermost.m_focus = nullptr;
    unmakeWindow();
    PostNcDestroy();
}

int CDialog::runModal()
{
    if (IsWindow())
        return 0;
    const ModalDepth depth;
    if (depth.isTooDeep()) {
        AfxMessageBox(zel::formatText(CMsgDll::pfuncLoadStr("IDS_FORM_TOO_MANY_MODAL_DIALOGS", 0), mostModalDialogs), MB_OK, 0);
        return IDCANCEL;
    }
    m_modal = true;
    makeWindow();
    if (!hasEnded()) {
        appear();
        if (zel::IUserInterface* host = zel::userInterface())
            host->runModal(*this);
        if (!hasEnded())  // nobody is there to end it
            m_endCode = IDCANCEL;
    }
    const int code = m_endCode.value_or(IDCANCEL);
    unmakeWindow();
    if (m_appeared) {
        m_appeared = false;
        if (zel::IUserInterface* host = zel::userInterface())
            host->dialogClosed(*this);
    }
    PostNcDestroy();
    m_modal = false;
    return code;
}

void CDialog::openModeless()
{
    m_modal = false;
    makeWindow();
}

void CDialog::EndDialog(int code)
{
    if (m_container != nullptr)
        root().EndDialog(code);
    else if (!m_modal)
        DestroyWindow();
    else if (IsWindow()) {
        m_endCode = code;
        formChanged();
    }
}

int CDialog::DestroyWindow()
{
    if (!IsWindow())
        return 0;
    if (m_modal) {
        if (!hasEnded())
            EndDialog(IDCANCEL);
        return 1;
    }
    unmakeWindow();
    if (m_appeared) {
        m_appeared = false;
        if (zel::IUserInterface* host = zel::userInterface())
            host->dialogClosed(*this);
    }
    PostNcDestroy();
    return 1;
}

void CDialog::shown(bool show)
{
    const bool appears = show && IsWindow() && !m_modal && m_container == nullptr && !m_appeared;
    if (appears)
        appear();
    else
        formChanged();
}

void CDialog::SetActiveWindow()
{
    if (!IsWindow() || m_container != nullptr)
        return;
    if (!m_appeared)
        appear();
    zel::WindowList::instance().toFront(*this);
    const bool opening = m_fresh && !m_modal;
    m_fresh = false;
    if (opening)
        return;
    if (zel::IUserInterface* host = zel::userInterface())
        host->dialogActivated(*this);
}

// The user's channel

Taken CDialog::reach() const
{
    const CDialog& outermost = root();
    const CString name = "\"" + outermost.GetWindowText() + "\" (" + outermost.ClassName() + ")";
    if (!outermost.IsWindow() || outermost.hasEnded())
        return {"the dialog " + name + " is not open"};
    for (const CDialog* other : zel::openDialogs()) {
        if (other == &outermost)
            return {};
        if (other->isModal())
            return {"the dialog " + name + " can't be reached: \"" + other->GetWindowText() + "\" (" + other->ClassName() + ") waits for input"};
    }
    return {};
}

Taken CDialog::userActivate()
{
    if (Taken reached = reach(); !reached)
        return reached;
    root().SetActiveWindow();
    return {};
}

Taken CDialog::userClose()
{
    if (Taken reached = reach(); !reached)
        return reached;
    const zel::UserAction action;
    root().OnClose();
    return {};
}

bool CDialog::translateKey(zel::UserKey key)
{
    if (m_focus != nullptr) {
        for (CDialog* form = &m_focus->dialog(); form != this && form->m_container != nullptr; form = &form->m_container->dialog()) {
            if (form->PreTranslateKey(key))
                return true;
        }
    }
    return PreTranslateKey(key) || (m_focus != nullptr && m_focus->onKey(key));
}

Taken CDialog::userKey(zel::UserKey key)
{
    if (m_container != nullptr)
        return root().userKey(key);
    if (Taken reached = reach(); !reached)
        return reached;
    const zel::UserAction action;
    if (translateKey(key))
        return {};
    switch (key) {
    case zel::UserKey::enter:
        if (m_defaultButton != nullptr)
            return m_defaultButton->press();
        OnOK();
        break;
    case zel::UserKey::escape:
        OnCancel();
        break;
    case zel::UserKey::tab:
        nextFocus();
        break;
    }
    return {};
}

void CDialog::nextFocus()
{
    std::vector<Control*> candidates = controls();
    std::erase_if(candidates, [this](const Control* control) { return control != m_focus && !canHaveFocus(*control); });
    if (candidates.empty())
        return;
    const auto here = std::find(candidates.begin(), candidates.end(), m_focus);
    const auto next = here == candidates.end() || here + 1 == candidates.end() ? candidates.begin() : here + 1;
    (void)(*next)->focus();
}
