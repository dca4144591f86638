#include "contract/forms/child_dialog.h"

#include "contract/format_text.h"
#include "contract/forms/edit_unit.h"
#include "contract/messages.h"
#include "contract/user_interface.h"

CPanel::CPanel(const zel::Place& place, std::string_view id) : Control(place, id, {}) {}

CPanel::~CPanel()
{
    if (m_child != nullptr)
        m_child->setContainer(nullptr);
}

std::vector<zel::Control::Nested> CPanel::nested() const
{
    if (m_child == nullptr)
        return {};
    return {{m_child, {}, true}};
}

void CPanel::forget(const CDialog& child)
{
    if (m_child == &child)
        m_child = nullptr;
}

int CChildDialog::CreateInit(CPanel& panel)
{
    if (IsCreated())
        return 0;
    if (panel.m_child != nullptr)
        panel.m_child->CChildDialog::End();
    panel.m_child = this;
    setContainer(&panel);
    openInside();
    formChanged();
    return 1;
}

int CChildDialog::CreateInit(CPanel& panel, int /*x*/, int /*y*/)
{
    return CreateInit(panel);
}

int CChildDialog::End()
{
    if (!IsCreated())
        return 0;
    closeInside();
    formChanged();
    if (container() != nullptr)
        container()->forget(*this);
    setContainer(nullptr);
    return 1;
}

int CChildDialog::DoDataExchange(bool /*load*/)
{
    return 1;
}

namespace {

const char* messageText(const char* key)
{
    return CMsgDll::pfuncLoadStr(key, 0);
}

/// Reads a whole number or a real one within a range into `value`, and reports what is not.
template <class Number> int load(CEdit& field, Number& value, Number lowest, Number highest)
{
    Number entered{};
    CString fault;
    if (CEditUnit::GetEditValue(field.GetWindowText(), entered) == 0)
        fault = messageText("IDS_ZEL_FORM_NOT_A_NUMBER");
    else if (entered < lowest || entered > highest)
        fault = zel::formatText(messageText("IDS_ZEL_FORM_OUT_OF_RANGE"), static_cast<double>(lowest), static_cast<double>(highest));
    if (fault.empty()) {
        value = entered;
        return 1;
    }
    AfxMessageBox(fault, MB_OK, 0);
    field.SetFocus();
    field.SetSel(0, -1);
    return 0;
}

}  // namespace

int CChildDialog::exchange(bool loading, CEdit& field, double& value, double lowest, double highest)
{
    if (loading)
        return load(field, value, lowest, highest);
    field.SetWindowText(zel::formatText("%g", value));
    return 1;
}

int CChildDialog::exchange(bool loading, CEdit& field, int& value, int lowest, int highest)
{
    if (loading)
        return load(field, value, lowest, highest);
    field.SetWindowText(zel::formatText("%d", value));
    return 1;
}
