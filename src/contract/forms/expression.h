#pragma once

#include <string_view>

namespace zel {

/// What is wrong with an expression. The numbers are those that grids report.
enum class ExpressionFault {
    none = 0,
    formula = 1,    ///< unbalanced or incomplete, or empty
    character = 2,  ///< a character that no expression has
    tooBig = 3      ///< the value is not finite, or above 1e30 in magnitude
};

struct Expression {
    ExpressionFault fault = ExpressionFault::none;
    double value = 0.0;  ///< of a sound expression, and of one that is too big (there it may be infinite or no number)
};

/// Evaluates numbers (with point and exponent: "1.5e-3"), + - * / ^ and parentheses, with blanks between them. There are no names.
[[nodiscard]] Expression evaluateExpression(std::string_view text);

}  // namespace zel
