#include "loadcomb/generation/number_token.h"

#include <charconv>
#include <cmath>

namespace zel::loadcomb {

namespace {

constexpr std::size_t longestNumber = 400;  // "%.3f" of the largest double has 313 characters

std::string printed(double value, std::chars_format format, int precision)
{
    char buffer[longestNumber];
    return {buffer, std::to_chars(buffer, buffer + longestNumber, value, format, precision).ptr};
}

bool lastDigitIsNot0(double whole)
{
    return std::fmod(std::floor(whole), 10.0) != 0.0;
}

}  // namespace

std::string fixedText(double value, int decimals)
{
    return printed(value, std::chars_format::fixed, decimals);
}

std::string generalText(double value)
{
    return printed(value, std::chars_format::general, 6);
}

std::string tokenNumber(double value)
{
    if (lastDigitIsNot0(value * 1000.0))
        return fixedText(value, 3);
    return fixedText(value, lastDigitIsNot0(value * 100.0) ? 2 : 1);
}

std::string windFactorText(double value)
{
    return std::abs(value - std::round(value)) < 1e-7 ? fixedText(value, 1) : generalText(value);
}

void replaceAll(std::string& text, std::string_view token, std::string_view replacement)
{
    std::size_t at = token.empty() ? std::string::npos : text.find(token);
    if (at == std::string::npos)
        return;
    std::string replaced;
    std::size_t copied = 0;
    for (; at != std::string::npos; at = text.find(token, copied)) {
        replaced.append(text, copied, at - copied).append(replacement);
        copied = at + token.size();
    }
    replaced.append(text, copied, std::string::npos);
    text = std::move(replaced);
}

}  // namespace zel::loadcomb
