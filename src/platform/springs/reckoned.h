#pragma once

#include "contract/text.h"

namespace zel::springs {

/// A number with how it was come by: `reckoned(25.0) / reckoned(3000.0)` is 0.00833 and "25 / 3000". Value and text are made by the same
/// operation, so they can't differ.
class Reckoned {
public:
    /// A given number, shown with up to six digits.
    explicit Reckoned(double value);
    /// A coefficient, shown with three digits: "1.00".
    static Reckoned coefficient(double value);

    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] const CString& text() const { return m_text; }

    friend Reckoned operator+(const Reckoned& left, const Reckoned& right);
    friend Reckoned operator*(const Reckoned& left, const Reckoned& right);
    friend Reckoned operator/(const Reckoned& left, const Reckoned& right);

private:
    enum class Kind { number, product, sum };

    Reckoned(double value, CString text, Kind kind) : m_value(value), m_text(std::move(text)), m_kind(kind) {}
    /// The text as an operand: in parentheses unless it binds as closely as that.
    [[nodiscard]] CString operand(Kind loosest) const;

    double m_value;
    CString m_text;
    Kind m_kind = Kind::number;
};

}  // namespace zel::springs
