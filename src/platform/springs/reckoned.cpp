#include "platform/springs/reckoned.h"

#include "contract/format_text.h"

namespace zel::springs {

Reckoned::Reckoned(double value) : Reckoned(value, formatText("%g", value), Kind::number) {}

Reckoned Reckoned::coefficient(double value)
{
    return {value, formatText("%#.3g", value), Kind::number};
}

CString Reckoned::operand(Kind loosest) const
{
    return m_kind <= loosest ? m_text : "(" + m_text + ")";
}

Reckoned operator+(const Reckoned& left, const Reckoned& right)
{
    return {left.m_value + right.m_value, left.m_text + " + " + right.m_text, Reckoned::Kind::sum};
}

Reckoned operator*(const Reckoned& left, const Reckoned& right)
{
    using enum Reckoned::Kind;
    return {left.m_value * right.m_value, left.operand(product) + " x " + right.operand(product), product};
}

Reckoned operator/(const Reckoned& left, const Reckoned& right)
{
    using enum Reckoned::Kind;
    return {left.m_value / right.m_value, left.operand(product) + " / " + right.operand(number), product};
}

}  // namespace zel::springs
