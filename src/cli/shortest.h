#pragma once

#include <charconv>
#include <string>

namespace zel::cli {

/// The fewest digits that read back as exactly this number: "1.2".
inline std::string shortest(double value)
{
    char buffer[32];
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, end.ptr};
}

}  // namespace zel::cli
