#pragma once

#include <charconv>
#include <string>

namespace zel::cli {

/// The fewest digits that read back as exactly this number: "0.6666666666666666".
inline std::string shortest(double value)
{
    char buffer[32];
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, end.ptr};
}

/// The number with at most so many significant digits, for people: "0.666667".
inline std::string rounded(double value, int digits)
{
    char buffer[64];
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    return {buffer, end.ptr};
}

inline std::string readable(double value)
{
    return rounded(value, 6);
}

}  // namespace zel::cli
