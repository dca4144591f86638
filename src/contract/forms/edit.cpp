#include "contract/forms/edit.h"

#include "contract/format_text.h"
#include "contract/forms/dialog.h"
#include "contract/forms/field_writer.h"
#include "contract/number_text.h"

using zel::Taken;

CEdit::CEdit(const zel::Place& place, std::string_view id, CString label, zel::Action<> onChange)
    : CEdit(place, id, std::move(label), zel::Field(), std::move(onChange))
{
}

CEdit::CEdit(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onChange)
    : Control(place, id, std::move(label), field), m_onChange(std::move(onChange))
{
}

void CEdit::showField(const void* record)
{
    SetWindowText(fieldText(record));
}

bool CEdit::readField(void* record) const
{
    const CString& text = GetWindowText();
    if (field().type() == zel::FieldType::text) {
        const CString taken = field().isTrimmed() ? CString(zel::number::trim(text)) : text;
        if (taken.empty() && field().isRequired())
            return false;
        field().setText(record, taken);
        return true;
    }
    if (field().type() == zel::FieldType::real) {
        double value = 0.0;
        if (readNumber(value) == 0 && !field().isZeroIfUnread())
            return false;
        field().setReal(record, value);
        return true;
    }
    const std::optional<int> value = zel::number::readInteger(text);
    if (!value && !field().isZeroIfUnread())
        return false;
    field().setInteger(record, value.value_or(0));
    return true;
}

int CEdit::readNumber(double& value) const
{
    return CStrParser::GetFloatNumber(GetWindowText(), value);
}

void CEdit::refuseEntry()
{
    SetFocus();
    SetSel(0, -1);
    m_refused = true;
    changed();
}

void CEdit::SetSel(int start, int end)
{
    const int length = static_cast<int>(GetWindowText().size());
    m_selection = {start, end < 0 ? length : end};
    changed();
}

void CEdit::SetReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    changed();
}

void CEdit::SetWindowText(const CString& text)
{
    m_selection = {0, 0};
    m_refused = false;
    Control::SetWindowText(text);
}

Taken CEdit::type(const CString& text)
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (m_readOnly)
        return refuse("is read-only");
    if (const CString reason = objection(text); !reason.empty())
        return refuse(reason);
    const zel::UserAction action;
    SetWindowText(text);
    fire(m_onChange);
    return {};
}

Taken CEdit::set(const zel::UserValue& value)
{
    CString text;
    if (const auto* number = std::get_if<double>(&value))
        text = zel::formatText("%.15g", *number);
    else if (const auto* typed = std::get_if<CString>(&value))
        text = *typed;
    else
        return refuse("takes a text");

    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (Taken typed = type(text); !typed)
        return typed;
    return leave();
}

bool CEdit::onKey(zel::UserKey key)
{
    const zel::Action<>& action = key == zel::UserKey::enter ? m_onEnter : m_onEscape;
    if (key == zel::UserKey::tab || !action)
        return false;
    fire(action);
    return true;
}

void CEdit::describe(zel::IFieldWriter& writer) const
{
    writer.text("value", GetWindowText());
}

CStatic::CStatic(const zel::Place& place, std::string_view id, CString text) : Control(place, id, {})
{
    m_text = std::move(text);
}

void CStatic::describe(zel::IFieldWriter& writer) const
{
    writer.text("value", GetWindowText());
}
