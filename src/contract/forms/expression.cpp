#include "contract/forms/expression.h"

#include "contract/format_text.h"
#include "contract/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include <muParser.h>

namespace zel {

namespace {

constexpr std::string_view alphabet = "0123456789.eE+-*/^() \t";
constexpr double greatest = 1e30;

bool beginsNumber(char character)
{
    return (character >= '0' && character <= '9') || character == '.';
}

/// The expression with each number written anew, so that no number depends on how the formula parser reads digits.
/// Nothing if a number is incomplete or runs into another one; numbers beyond a double become infinite or 0.
struct Rewritten {
    std::string text;
    ExpressionFault fault = ExpressionFault::none;
};

Rewritten rewrite(std::string_view text)
{
    Rewritten made;
    const char* at = text.data();
    const char* const end = at + text.size();
    bool afterNumber = false;
    while (at < end) {
        if (!beginsNumber(*at)) {
            if (*at == 'e' || *at == 'E')
                return {{}, ExpressionFault::formula};
            afterNumber = afterNumber && (*at == ' ' || *at == '\t');
            made.text += *at == '\t' ? ' ' : *at;
            ++at;
            continue;
        }
        double value = 0.0;
        const auto read = std::from_chars(at, end, value);
        if (read.ec == std::errc::invalid_argument || afterNumber)
            return {{}, ExpressionFault::formula};
        if (read.ec == std::errc::result_out_of_range) {
            const std::string_view digits{at, static_cast<std::size_t>(read.ptr - at)};
            const std::size_t exponent = digits.find_first_of("eE");
            if (exponent == std::string_view::npos || digits.substr(exponent + 1, 1) != "-")
                return {{}, ExpressionFault::tooBig};
            value = 0.0;
        }
        made.text += formatText("%.17g", value);
        at = read.ptr;
        afterNumber = true;
    }
    return made;
}

std::optional<double> calculate(const std::string& text)
{
    try {
        mu::Parser parser;
        parser.ClearConst();
        parser.ClearFun();
        parser.SetExpr(text);
        int values = 0;
        const double* const results = parser.Eval(values);
        return values == 1 ? std::optional{results[0]} : std::nullopt;
    } catch (const mu::ParserError&) {
        return std::nullopt;
    }
}

}  // namespace

Expression evaluateExpression(std::string_view text)
{
    if (text.find_first_not_of(alphabet) != std::string_view::npos)
        return {ExpressionFault::character, 0.0};
    std::optional<double> value = number::read(text);  // most texts are plain numbers
    if (!value) {
        const Rewritten rewritten = rewrite(text);
        if (rewritten.fault == ExpressionFault::tooBig)
            return {ExpressionFault::tooBig, std::numeric_limits<double>::infinity()};
        if (rewritten.fault != ExpressionFault::none)
            return {rewritten.fault, 0.0};
        value = calculate(rewritten.text);
    }
    if (!value)
        return {ExpressionFault::formula, 0.0};
    if (!std::isfinite(*value) || std::abs(*value) > greatest)
        return {ExpressionFault::tooBig, *value};
    return {ExpressionFault::none, *value};
}

}  // namespace zel
