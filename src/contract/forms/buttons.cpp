#include "contract/forms/buttons.h"

#include "contract/forms/dialog.h"
#include "contract/forms/edit_unit.h"
#include "contract/forms/field_writer.h"

#include <algorithm>
#include <string>

using zel::Taken;

CButton::CButton(const zel::Place& place, std::string_view id, CString caption, zel::Action<> onClick) : Control(place, id, {}), m_onClick(std::move(onClick))
{
    m_text = std::move(caption);
}

bool CButton::isDefault() const
{
    return dialog().root().defaultButton() == this;
}

Taken CButton::press()
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    fire(m_onClick);
    return {};
}

bool CButton::onKey(zel::UserKey key)
{
    return key == zel::UserKey::enter && press().ok();
}

CCheckBox::CCheckBox(const zel::Place& place, std::string_view id, CString caption, zel::Action<> onClick)
    : CCheckBox(place, id, std::move(caption), zel::Field(), std::move(onClick))
{
}

CCheckBox::CCheckBox(const zel::Place& place, std::string_view id, CString caption, const zel::Field& field, zel::Action<> onClick)
    : Control(place, id, {}, field), m_onClick(std::move(onClick))
{
    m_text = std::move(caption);
}

bool CCheckBox::readField(void* record) const
{
    field().setInteger(record, m_checked ? 1 : 0);
    return true;
}

void CCheckBox::SetCheck(bool checked)
{
    m_checked = checked;
    changed();
}

Taken CCheckBox::set(const zel::UserValue& value)
{
    const bool* checked = std::get_if<bool>(&value);
    if (checked == nullptr)
        return refuse("takes true or false");
    if (*checked == m_checked)
        return reach();
    return press();
}

Taken CCheckBox::press()
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    SetCheck(!m_checked);
    fire(m_onClick);
    return {};
}

void CCheckBox::describe(zel::IFieldWriter& writer) const
{
    writer.flag("value", m_checked);
}

void CRadioGroup::SetSel(int index)
{
    m_selected = index >= 0 && index < static_cast<int>(m_buttons.size()) ? index : -1;
    for (CRadioButton* button : m_buttons)
        button->changed();
}

int CRadioGroup::indexOf(const void* record) const
{
    const auto chosen = std::ranges::find(m_buttons, m_field.integer(record), &CRadioButton::m_code);
    return chosen != m_buttons.end() ? (*chosen)->m_index : -1;
}

CRadioButton::CRadioButton(CRadioGroup& radios, std::string_view id, CString caption) : CRadioButton(radios.m_place, radios, id, std::move(caption)) {}

CRadioButton::CRadioButton(CRadioGroup& radios, std::string_view id, CString caption, int code) : CRadioButton(radios, id, std::move(caption))
{
    m_code = code;
}

CRadioButton::CRadioButton(const zel::Place& place, CRadioGroup& radios, std::string_view id, CString caption)
    : Control(place, id, {}), m_radios(radios), m_index(static_cast<int>(radios.m_buttons.size())), m_code(m_index)
{
    m_text = std::move(caption);
    radios.m_buttons.push_back(this);
}

bool CRadioButton::readField(void* record) const
{
    if (m_radios.GetSel() >= 0)
        field().setInteger(record, m_radios.buttons()[static_cast<std::size_t>(m_radios.GetSel())]->m_code);
    return m_radios.GetSel() >= 0 || !field().isRequired();
}

CString CRadioButton::fieldText(const void* record) const
{
    const int index = m_radios.indexOf(record);
    return index >= 0 ? m_radios.buttons()[static_cast<std::size_t>(index)]->label() : CString();
}

bool CRadioButton::GetCheck() const
{
    return m_radios.GetSel() == m_index;
}

Taken CRadioButton::set(const zel::UserValue& value)
{
    const bool* chosen = std::get_if<bool>(&value);
    if (chosen == nullptr || !*chosen)
        return refuse("takes true: a radio is cleared by choosing another one");
    return press();
}

Taken CRadioButton::press()
{
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    m_radios.SetSel(m_index);
    fire(m_radios.m_onChoose);
    return {};
}

void CRadioButton::describe(zel::IFieldWriter& writer) const
{
    writer.flag("value", GetCheck());
}

CSpinButtonCtrl::CSpinButtonCtrl(const zel::Place& place, std::string_view id, CEdit& buddy, zel::Action<int> onDelta)
    : Control(place, id, {}), m_buddy(buddy), m_onDelta(std::move(onDelta))
{
}

void CSpinButtonCtrl::SetRange(int lowest, int highest)
{
    m_lowest = lowest;
    m_highest = highest;
}

Taken CSpinButtonCtrl::spin(int delta)
{
    if (delta != 1 && delta != -1)
        return refuse("turns by +1 or -1");
    if (Taken reached = reach(); !reached)
        return reached;
    const zel::UserAction action;
    if (m_onDelta) {
        fire(m_onDelta, -delta);
        return {};
    }
    int value = 0;
    CEditUnit::GetEditValue(&m_buddy, value);
    return m_buddy.type(std::to_string(std::clamp(value + delta, m_lowest, m_highest)));
}

void CSpinButtonCtrl::describe(zel::IFieldWriter& writer) const
{
    writer.text("control", m_buddy.id());
}
