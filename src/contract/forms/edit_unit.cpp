#include "contract/forms/edit_unit.h"

#include "contract/document.h"
#include "contract/format_text.h"
#include "contract/forms/expression.h"
#include "contract/number_text.h"
#include "contract/units.h"

#include <cmath>
#include <cstdarg>

namespace {

T_UNIT_INDEX currentUnits()
{
    T_UNIT_INDEX units;
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->GetUnitCtrl()->GetUnitIndexCurrent(units);
    return units;
}

/// A field whose unit its record decides has none until the dialog gives it one.
int unitOf(const zel::Field& field)
{
    return field.unit() == Unit::byRecord ? Unit::none : field.unit();
}

}  // namespace

CEditUnit::CEditUnit(const zel::Place& place, std::string_view id, CString label, int unitType, zel::Action<> onChange)
    : CEdit(place, id, std::move(label), std::move(onChange)), m_unitType(unitType), m_units(currentUnits())
{
}

CEditUnit::CEditUnit(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onChange)
    : CEdit(place, id, std::move(label), field, std::move(onChange)), m_unitType(unitOf(field)), m_units(currentUnits())
{
}

void CEditUnit::showField(const void* record)
{
    if (field().type() == zel::FieldType::real)
        SetEditUnit(field().real(record));
    else
        CEdit::showField(record);
}

void CEditUnit::SetWindowText(const CString& text)
{
    m_hasValue = false;
    m_units = currentUnits();
    CEdit::SetWindowText(text);
}

void CEditUnit::SetEditUnit(double value)
{
    SetWindowText(zel::formatText("%g", value));
    m_value = value;
    m_hasValue = std::isfinite(value);
}

void CEditUnit::SetEditText(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const CString text = zel::formatTextList(format, arguments);
    va_end(arguments);
    SetWindowText(text);
}

int CEditUnit::GetEditValue(double& value) const
{
    if (m_hasValue) {
        value = m_value;
        return 1;
    }
    return GetEditValue(GetWindowText(), value);
}

int CEditUnit::GetEditValue(int& value) const
{
    return GetEditValue(GetWindowText(), value);
}

double CEditUnit::GetEditValue() const
{
    double value = 0.0;
    GetEditValue(value);
    return value;
}

int CEditUnit::GetEditValue(const CString& text, double& value)
{
    const zel::Expression result = zel::evaluateExpression(text);
    const bool readable = result.fault == zel::ExpressionFault::none || result.fault == zel::ExpressionFault::tooBig;
    if (!readable || !std::isfinite(result.value))
        return 0;
    value = result.value;
    return 1;
}

int CEditUnit::GetEditValue(const CString& text, int& value)
{
    const std::optional<int> number = zel::number::readInteger(text);
    if (!number)
        return 0;
    value = *number;
    return 1;
}

int CEditUnit::GetEditValue(const CWnd* field, int& value)
{
    return field != nullptr ? GetEditValue(field->GetWindowText(), value) : 0;
}

void CEditUnit::OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/)
{
    if (hint == Hint::units)
        convert();
}

void CEditUnit::convert()
{
    // What the text means is told by the units in which it was entered: a dialog that has written into the field from inside
    // the same notice has written in the new ones.
    const T_UNIT_INDEX units = currentUnits();
    double value = 0.0;
    if (m_unitType == Unit::none || units == m_units || GetEditValue(value) == 0)
        return;
    const double factor = zel::unitFactor(m_unitType, m_units) / zel::unitFactor(m_unitType, units);
    if (factor != 1.0)
        SetEditUnit(value * factor);
    m_units = units;
}

CTextUnit::CTextUnit(const zel::Place& place, std::string_view id, int unitType) : CStatic(place, id, {})
{
    SetUnitType(unitType);
}

CTextUnit::CTextUnit(const zel::Place& place, std::string_view id, const zel::Field& field) : CTextUnit(place, id, unitOf(field)) {}

void CTextUnit::SetUnitType(int unitType)
{
    m_unitType = unitType;
    CString text;
    CUnitCtrl::GetUnitSystem(unitType, text);
    SetWindowText(text);
}

void CTextUnit::OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/)
{
    if (hint == Hint::units && m_unitType != Unit::none)
        SetUnitType(m_unitType);
}
