#include "contract/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace {

constexpr std::string_view blanks = " \t\r\n\v\f";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Cuts a leading "+", which std::from_chars does not take.
std::string_view withoutPlus(std::string_view text)
{
    const bool plus = text.size() > 1 && text[0] == '+' && (isDigit(text[1]) || text[1] == '.');
    return plus ? text.substr(1) : text;
}

template <class T> std::optional<T> readWhole(std::string_view text)
{
    text = withoutPlus(zel::number::trim(text));
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

/// The parts of `text` between separators, each read by `readOne`; empty if one of them cannot be read.
template <class T> CArray<T> readList(std::string_view text, std::optional<T> (*readOne)(std::string_view))
{
    constexpr std::string_view separators = " \t\r\n\v\f,;";
    CArray<T> values;
    for (;;) {
        const std::size_t begin = text.find_first_not_of(separators);
        if (begin == std::string_view::npos)
            return values;
        const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
        const std::optional<T> value = readOne(text.substr(begin, end - begin));
        if (!value)
            return {};
        values.push_back(*value);
        text.remove_prefix(end);
    }
}

template <class T> int takeNext(const CArray<T>& values, std::size_t& next, T& value)
{
    if (next >= values.size())
        return 0;
    value = values[next++];
    return 1;
}

}  // namespace

namespace zel::number {

std::string_view trim(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::optional<double> read(std::string_view text)
{
    const std::optional<double> value = readWhole<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> readInteger(std::string_view text)
{
    return readWhole<int>(text);
}

}  // namespace zel::number

int CStrParser::GetFloatNumber(const CString& text, double& value)
{
    const std::optional<double> number = zel::number::read(text);
    if (!number)
        return 0;
    value = *number;
    return 1;
}

int MyParser::ParsingNumberArg(const CString& text)
{
    numbers_ = readList(text, zel::number::read);
    nextNumber_ = 0;
    return static_cast<int>(numbers_.size());
}

int MyParser::ParsingINumberArg(const CString& text)
{
    integers_ = readList(text, zel::number::readInteger);
    nextInteger_ = 0;
    return static_cast<int>(integers_.size());
}

int MyParser::GetNumberData(double& value)
{
    return takeNext(numbers_, nextNumber_, value);
}

int MyParser::GetINumberData(int& value)
{
    return takeNext(integers_, nextInteger_, value);
}
